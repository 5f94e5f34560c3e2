#include "page/output/output_format.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>

namespace {

using host::OutputFormat;

TEST(OutputFormat, IsTheOneOfTheEnding) {
    const struct {
        std::string path;
        OutputFormat format;
        bool isForPrint;
    } rows[] = {
        {"page.png", OutputFormat::Png, false},
        {"a.b/page.PNG", OutputFormat::Png, false},
        {"page.jpg", OutputFormat::Jpeg, false},
        {"page.Jpeg", OutputFormat::Jpeg, false},
        {"page.bmp", OutputFormat::Bmp, false},
        {"page.tif", OutputFormat::Tiff, false},
        {"page.TIFF", OutputFormat::Tiff, false},
        {"page.ps", OutputFormat::PostScript, true},
        {"page.pdf", OutputFormat::Pdf, true},
        {"a/page.SVG", OutputFormat::Svg, true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(host::OutputFormatOf(row.path), row.format) << row.path;
        EXPECT_EQ(host::IsForPrint(row.format), row.isForPrint) << row.path;
    }
}

TEST(OutputFormat, IsNoneForOtherEndings) {
    for (const char* path : {"", "page", "png", ".png", "page.gif", "page.png ",
                             "page.png/", "page.svgz", "page.pngx"}) {
        EXPECT_THAT([&] { host::OutputFormatOf(path); },
                    ::testing::ThrowsMessage<std::runtime_error>(
                        "ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps"))
            << path;
    }
}

TEST(OutputFormat, IsListedByItsUsualEnding) {
    EXPECT_EQ(host::EndingsOfThose([](const auto& facts) { return facts.isForPrint; }),
              ".pdf, .svg or .ps");
    EXPECT_EQ(host::EndingsOfThose(
                  [](const auto& facts) { return facts.worldFile[0] != '\0'; }),
              ".png or .jpg");
    EXPECT_EQ(host::EndingsOfThose(
                  [](const auto& facts) { return facts.format == OutputFormat::Tiff; }),
              ".tif");
}

}  // namespace
