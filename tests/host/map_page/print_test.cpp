// Pages for print: PDF, PostScript and SVG.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "map_page/run_map_page.h"
#include "map_page/squares.h"
#include "page/made_raster.h"
#include "pdf/pdf_check.h"

namespace {

using namespace std::string_literals;
using host_tests::Arguments;
using host_tests::Result;
using host_tests::Said;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// What stands behind a label that begins a line, to the line's end.
std::string After(const std::string& text, const std::string& label) {
    std::smatch found;
    std::regex_search(text, found, std::regex("(?:^|\n)" + label + " *([^\n]*)"));
    return found[1];
}

auto CountOf(const std::string& part, const std::string& text) {
    const std::regex each(part);
    return std::distance(std::sregex_iterator(text.begin(), text.end(), each), {});
}

class Print : public host_tests::MapPageTest {
protected:
    Print() { WriteScene(folder.Path("scene.tif"), 300, 300); }

    Result Draw(const std::string& output, const Arguments& more = {},
                const std::string& title = "Harbour 影像") const {
        return RunWell(Arguments{"scene.tif", "-o", output, "--title", title} + more);
    }

    /// What a program says of page.pdf.
    std::string SaidBy(const std::string& program, const std::string& more = "") const {
        return Said(program + " " + folder.Path("page.pdf") + " " + more);
    }

    /// Squares of the page as pixels at 100 dpi, 1169 x 827.
    std::vector<double> Rendered(const std::string& file) const {
        const std::string to = folder.Path("rendered.png") + " " + folder.Path(file);
        Said((file == "page.svg" ? "rsvg-convert -d 100 -p 100 -o "
                                 : "gs -q -dBATCH -dNOPAUSE -sDEVICE=png16m -r100 "
                                   "-dTextAlphaBits=4 -dGraphicsAlphaBits=4 "
                                   "-sOutputFile=") +
             to);
        return host_tests::SquaresOf(folder.Path("rendered.png"), 20);
    }
};

TEST_F(Print, HasTheTrueSizeAtEveryResolution) {
    // 297 mm are 841.890 points, 420 mm 1190.551, 210 mm 595.276, 148 mm 419.528; told
    // with six digits.
    const struct {
        Arguments options;
        const char* size;
        const char* summary;
    } rows[] = {
        {"--dpi 72", "841.89 x 595.276 pts (A4)", "842 x 595 points"},
        {"--dpi 300", "841.89 x 595.276 pts (A4)", "842 x 595 points"},
        {"--dpi 600 --size A3", "1190.55 x 841.89 pts (A3)", "1191 x 842 points"},
        {"--dpi 600 --portrait --size A5", "419.528 x 595.276 pts", "420 x 595 points"},
    };
    for (const auto& row : rows) {
        EXPECT_THAT(Draw("page.pdf", row.options).out, HasSubstr(row.summary));
        const std::string info = SaidBy("pdfinfo");
        EXPECT_EQ(After(info, "Page size:"), row.size);
        EXPECT_EQ(After(info, "Pages:"), "1");
    }
}

TEST_F(Print, KeepsTextsAsTextInEmbeddedFonts) {
    // Letters that change their shapes are still those that were written, and so are
    // characters that no font has.
    for (const char* title :
         {"خريطة الميناء", "office ﬁ", "ཀཁ 🗺", "Harbour 影像"}) {
        Draw("page.pdf", {}, title);
        const std::string text = SaidBy("pdftotext", "-");
        for (const char* part : {title, "scene.tif", "Legend"}) {
            EXPECT_THAT(text, HasSubstr(part));
        }
    }
    const std::string fonts = SaidBy("pdffonts");
    EXPECT_THAT(fonts, HasSubstr("LiberationSans"));
    EXPECT_THAT(fonts, Not(HasSubstr(" no  "))) << "not embedded";
}

TEST_F(Print, HasTheMapAsOneImageOfTheResolution) {
    MadeRaster holes;
    holes.transform = {500000.0, 450.0, 0.0, 9000000.0, 0.0, -450.0};
    holes.hole = true;
    WriteRaster(folder.Path("holes.tif"), holes);
    const struct {
        const char* call;
        const char* encoding;
        bool hasMask;
    } rows[] = {
        {"scene.tif --map-images lossless", " image  no ", false},
        {"scene.tif --map-images jpeg", " jpeg   no ", false},
        {"holes.tif --map-images lossless", " image  no ", true},
        {"holes.tif --map-images jpeg", " jpeg   no ", true},
    };
    for (const auto& row : rows) {
        RunWell(row.call + Arguments("-o page.pdf --dpi 200"));
        const std::string images = SaidBy("pdfimages -list");
        EXPECT_THAT(images, HasSubstr(" 200   200 "));
        EXPECT_THAT(images, HasSubstr(row.encoding));
        EXPECT_EQ(images.find(" smask ") != std::string::npos, row.hasMask) << images;
        EXPECT_EQ(std::count(images.begin(), images.end(), '\n'), row.hasMask ? 4 : 3)
            << images;
    }
}

TEST_F(Print, LooksLikeThePicture) {
    Draw("page.png", "--dpi 100");
    const std::vector<double> picture =
        host_tests::SquaresOf(folder.Path("page.png"), 20);
    ASSERT_GT(picture.size(), 3U * 25 * 25);
    for (const char* const file : {"page.pdf", "page.ps", "page.svg"}) {
        for (const auto& [images, most] : {std::pair("lossless", 1.2), {"jpeg", 1.3}}) {
            SCOPED_TRACE(std::string(file) + " " + images);
            Draw(file, {"--dpi", "100", "--map-images", images});
            const std::vector<double> print = Rendered(file);
            ASSERT_EQ(print.size(), picture.size());
            double sum = 0.0;
            for (std::size_t i = 0; i < print.size(); ++i) {
                const double difference = std::abs(print[i] - picture[i]);
                EXPECT_LT(difference, 60.0) << "square " << i / 3;
                sum += difference;
            }
            EXPECT_LT(sum / static_cast<double>(print.size()), most);
        }
    }
}

TEST_F(Print, GivesTheSameFileEachTime) {
    for (const auto& [file, again] : {std::pair("page.ps", "again.PS"),
                                      {"page.pdf", "again.PDF"},
                                      {"page.svg", "again.SVG"}}) {
        Draw(file);
        Draw(again);
        EXPECT_TRUE(Contents(file) == Contents(again)) << file;
    }
}

TEST_F(Print, OfPostScriptSaysItsSizeAndItsTitle) {
    Draw("page.ps");
    EXPECT_THAT(Contents("page.ps"),
                AllOf(HasSubstr("\n%%BoundingBox: 0 0 842 596\n"),
                      HasSubstr("\n%%HiResBoundingBox: 0 0 841.889764 595.275591\n"),
                      HasSubstr("\n841.889764 595.275591 cairo_set_page_size\n"
                                "0 -0.724409 translate\n"),
                      Not(HasSubstr("%%Title"))))  // comments are ASCII
        << "page.ps";
    Draw("page.ps", "--save page.json", "Harbour");
    EXPECT_THAT(Contents("page.ps"), HasSubstr("\n%%Title: Harbour\n"));
    RunWell("page.json -o confined.ps");
    EXPECT_TRUE(Contents("confined.ps") == Contents("page.ps"));
}

TEST_F(Print, IsDatedByTheEnvironment) {
    const auto drawnAt = [this](const char* epoch) {
        return Run("scene.tif -o page.pdf",
                   [epoch] { setenv("SOURCE_DATE_EPOCH", epoch, 1); });
    };
    Draw("page.pdf");
    EXPECT_THAT(SaidBy("pdfinfo"), Not(HasSubstr("CreationDate")));
    ASSERT_EQ(drawnAt("86400").status, 0);  // a day after the epoch
    EXPECT_EQ(After(SaidBy("pdfinfo -isodates"), "CreationDate:"),
              "1970-01-02T00:00:00Z");
    EXPECT_THAT(SaidBy("pdfinfo -meta"),
                HasSubstr("<xmp:CreateDate>1970-01-02T00:00:00Z</xmp:CreateDate>"));
    EXPECT_EQ(drawnAt("yesterday").err,
              "map_page: page.pdf: SOURCE_DATE_EPOCH is not a number of seconds\n");
}

TEST_F(Print, IsReadAloudInThePagesLanguage) {
    const struct {
        std::string title;
        Arguments options;
        std::vector<std::string> read;
    } rows[] = {
        {"Harbour 影像",
         "--numeric-scale",
         {"H1: Harbour 影像", "Figure: Map, 1 : ",
          "Figure: Legend: scene.tif: Band 1, red; Band 2, green; Band 3, blue",
          "Figure: Scale bar: 2000 m in 4 divisions", "P: 1 : ",
          "Figure: North arrow: north is up"}},
        {"خريطة الميناء",
         "--language zh",
         {"H1: خريطة الميناء", "Figure: 地图，1 : ",
          "Figure: 图例: 影像名：scene.tif: 波段_1，红色; 波段_2，绿色; 波段_3，蓝色",
          "Figure: 比例尺：2000 米，共4段", "Figure: 指北针：北在上方"}},
        {"Wo? 🗺 <&>", {}, {"H1: Wo? 🗺 <&>"}},
        {"ཀཁ\tafﬁne", {}, {"H1: ཀཁ afﬁne"}},
    };
    for (const auto& row : rows) {
        Draw("page.pdf", row.options, row.title);
        EXPECT_THAT(host_tests::AgainstPdfUa(folder.Path("page.pdf")), IsEmpty());
        const std::vector<std::string> read =
            host_tests::ReadAloud(folder.Path("page.pdf"));
        ASSERT_GE(read.size(), row.read.size());
        for (std::size_t i = 0; i < row.read.size(); ++i) {
            EXPECT_THAT(read[i], ::testing::StartsWith(row.read[i]));
        }
        SaidBy("qpdf --check");
    }
}

TEST_F(Print, KeepsTheRulesOfPdfAWhereThatIsAsked) {
    const auto wrong = [&] { return host_tests::AgainstPdfA(folder.Path("page.pdf")); };
    Draw("page.pdf");
    EXPECT_THAT(wrong(), ::testing::Contains("no output intent"));
    Draw("page.pdf", "--pdf-standard a-2u");
    EXPECT_THAT(wrong(), IsEmpty());
    EXPECT_THAT(host_tests::AgainstPdfUa(folder.Path("page.pdf")), IsEmpty());
    const std::string first = Contents("page.pdf");
    Draw("page.pdf", "--pdf-standard a-2u");
    EXPECT_TRUE(Contents("page.pdf") == first);
    EXPECT_THAT(Run(Arguments("scene.tif -o page.pdf --pdf-standard a-2u --title") +
                    Arguments{"\u0F40"})
                    .err,
                HasSubstr("a box is drawn, which PDF/A does not allow"));
}

TEST_F(Print, SaysOfItselfWhatOptionsSay) {
    Draw("page.pdf");
    EXPECT_EQ(After(SaidBy("pdfinfo"), "Title:"), "Harbour 影像");
    Draw("page.pdf", {"--author", "N. <N>", "--subject", "A & B", "--keywords",
                      "sea, land", "--document-title", "Küste"});
    const std::string info = SaidBy("pdfinfo");
    EXPECT_EQ(After(info, "Title:"), "Küste");
    EXPECT_EQ(After(info, "Author:"), "N. <N>");
    EXPECT_EQ(After(info, "Subject:"), "A & B");
    EXPECT_EQ(After(info, "Keywords:"), "sea, land");
    EXPECT_THAT(SaidBy("pdfinfo -meta"), AllOf(HasSubstr("<rdf:li>N. &lt;N&gt;</rdf:li>"),
                                               HasSubstr("A &amp; B")));
}

TEST_F(Print, NeedsNoOtherProgram) {
    const auto isolate = [] { setenv("PATH", "/nowhere", 1); };
    EXPECT_EQ(Run("scene.tif -o page.pdf", isolate).status, 0);
    EXPECT_THAT(Contents("page.pdf"), ::testing::StartsWith("%PDF-"));
}

TEST_F(Print, OfSvgHasTheTrueSizeAndOneImage) {
    for (const char* dpi : {"72", "200"}) {
        Draw("page.svg", {"--dpi", dpi, "--size", "A5"});
        // 210 x 148 mm
        EXPECT_THAT(Contents("page.svg"),
                    HasSubstr("width=\"595.275591pt\" height=\"419.527559pt\" "
                              "viewBox=\"0 0 595.275591 419.527559\""));
        EXPECT_EQ(CountOf("<image ", Contents("page.svg")), 1);
    }
}

TEST_F(Print, OfSvgHasItsWordsAsTextThatIsNotSeen) {
    Draw("page.svg", "--language de", "Harbour <影像> & مرفأ 🗺");
    const std::string title = "Harbour &lt;影像&gt; &amp; مرفأ 🗺";
    const std::string page = Contents("page.svg");
    EXPECT_THAT(page, HasSubstr(" xml:lang=\"de\">\n<title>" + title + "</title>\n"));
    EXPECT_THAT(page, HasSubstr("<desc>Karte, "));
    const std::string words = page.substr(page.find("<g fill-opacity=\"0\""));
    for (const std::string& text : {title, "scene.tif"s, "Legende"s, "Kanal 1"s}) {
        EXPECT_THAT(words, HasSubstr(">" + text + "</text>"));
    }
}

TEST_F(Print, OfSvgLeavesNoPaperBetweenTheStripsOfARamp) {
    Draw("page.svg", "--bands 1");
    EXPECT_GE(CountOf("<path shape-rendering=\"crispEdges\" ", Contents("page.svg")),
              100);
}

}  // namespace
