// A page as SVG: what stands in the file. How it looks is tested beside PDF and
// PostScript.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "scratch_folder.h"

namespace {

using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;
using ::testing::HasSubstr;

class Svg : public ::testing::Test {
protected:
    std::string Drawn(const Arguments& more) const {
        WriteScene(folder.Path("scene.tif"), 60, 60);
        Arguments arguments = {"scene.tif", "-o", "page.svg"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Result result = host_tests::RunMapPage(folder, arguments);
        EXPECT_EQ(result.status, 0) << result.err;
        return ContentsOf(folder.Path("page.svg"));
    }

    ScratchFolder folder;
};

std::size_t CountOf(const std::string& part, const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos;
         at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

TEST_F(Svg, HasTheTrueSizeAndOneImage) {
    for (const char* dpi : {"72", "200"}) {
        const std::string page = Drawn({"--dpi", dpi, "--size", "A5"});
        // 210 x 148 mm
        EXPECT_THAT(page, HasSubstr("width=\"595.275591pt\" height=\"419.527559pt\" "
                                    "viewBox=\"0 0 595.275591 419.527559\""));
        EXPECT_EQ(CountOf("<image ", page), 1u);
    }
}

TEST_F(Svg, HasItsWordsAsTextThatIsNotSeen) {
    const std::string page =
        Drawn({"--title", "Harbour <影像> & مرفأ 🗺", "--language", "de"});
    EXPECT_THAT(page, HasSubstr(" xml:lang=\"de\">\n<title>Harbour &lt;影像&gt; &amp; "
                                "مرفأ 🗺</title>\n"));
    EXPECT_THAT(page, HasSubstr("<desc>Karte, "));
    const std::string words = page.substr(page.find("<g fill-opacity=\"0\""));
    for (const char* text : {"Harbour &lt;影像&gt; &amp; مرفأ 🗺", "scene.tif",
                             "Legende", "Kanal 1"}) {
        EXPECT_THAT(words, HasSubstr(">" + std::string(text) + "</text>"));
    }
}

TEST_F(Svg, LeavesNoPaperBetweenTheStripsOfARamp) {
    const std::string page = Drawn({"--bands", "1"});
    EXPECT_GE(CountOf("<path shape-rendering=\"crispEdges\" ", page), 100u);
}

TEST_F(Svg, IsTheSameEachTime) { EXPECT_EQ(Drawn({}), Drawn({})); }

}  // namespace
