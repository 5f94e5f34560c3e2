// What map_page cannot draw or write as asked, it tells; a page is whole or there is
// none.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <string>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::Result;

class HonestStatus : public host_tests::PageFileTest {
protected:
    /// Has map_page run with a configuration of fonts.
    host_tests::Preparation Fonts(const std::string& configuration) const {
        Write("fonts.conf",
              "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM "
              "\"fonts.dtd\"><fontconfig>" +
                  configuration + "</fontconfig>");
        return
            [this] { setenv("FONTCONFIG_FILE", folder.Path("fonts.conf").c_str(), 1); };
    }
};

TEST_F(HonestStatus, OfTextsThatAreTooLargeOrTooSmall) {
    RunWell("data/scene.tif --title Olinda --save page.json");
    Write("page.json",
          std::regex_replace(Contents("page.json"), std::regex("\"fontSize\": [^,]*"),
                             "\"fontSize\": 20000"));
    ExpectError(1, "title: is 83333 pixels high, and texts of at most 65535 are drawn",
                "page.json -o page.png --dpi 400");
    ExpectError(1, "scale bar: is 3 pixels high, too little for its text",
                "data/scene.tif --size A6 --dpi 10 -o page.png");
}

TEST_F(HonestStatus, OfFontsThatAreNotThere) {
    const Arguments draw = "data/scene.tif -o page.png";
    ExpectError(1, "--title-font: no font family \"Arial\" is installed", draw,
                Fonts(""));
    // Sans, but no serif for the numbers of the bar, and no Chinese for the captions.
    const std::string sans =
        "<dir>/usr/share/fonts/truetype/liberation</dir><selectfont><rejectfont>"
        "<glob>*Serif*</glob></rejectfont></selectfont>"
        "<include>/etc/fonts/conf.d</include>";
    const std::string why = "scale bar: no font family \"Times New Roman\" is installed";
    RunWell("data/scene.tif --save page.json");
    const host_tests::Preparation fonts = Fonts(sans);
    ExpectError(1, why, draw, fonts);
    ExpectError(1, "page.json: " + why, "page.json -o page.png", fonts);
    const Result boxes = Run(draw + "--scale-bar none --language zh", fonts);
    EXPECT_EQ(boxes.status, 0);
    EXPECT_THAT(boxes.err, ::testing::StartsWith(
                               "map_page: warning: legend: no font has \"图例影像名："));
}

#ifndef __SANITIZE_ADDRESS__      // which takes memory and descriptors itself
constexpr int kNotStarted = 127;  // for want of a library

// Fonts and rasters are files, and take memory: without either, texts were once boxes.
TEST_F(HonestStatus, OfDescriptorsAndMemoryThatRunOut) {
    const Arguments draw = "data/scene.tif -o page.png --dpi 60";
    RunWell(draw);
    const std::string whole = Contents("page.png");
    const auto tryWith = [&](int resource, rlim_t most) {
        fs::remove(folder.Path("page.png"));
        const Result result = Run(draw, [resource, most] {
            const rlimit limit = {most, most};
            alarm(60);  // seconds; a page takes a fraction of one
            setrlimit(static_cast<__rlimit_resource>(resource), &limit);
        });
        const bool drawn = result.status == 0;
        EXPECT_TRUE(drawn || result.status == 1 || result.status == kNotStarted)
            << most << " ends with " << result.status;
        EXPECT_EQ(fs::exists(folder.Path("page.png")), drawn) << most;
        EXPECT_TRUE(!drawn || Contents("page.png") == whole) << most;
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), drawn ? 0 : 1)
            << most << result.err;
        return drawn;
    };
    bool isEnough = false;
    for (rlim_t most = 3; !isEnough; ++most) {
        ASSERT_LT(most, 100u);
        isEnough = tryWith(RLIMIT_NOFILE, most);
    }
    std::size_t pages = 0;
    for (rlim_t megabytes = 100; megabytes <= 600;
         megabytes += megabytes < 250 ? 10 : 50) {
        pages += tryWith(RLIMIT_AS, megabytes << 20) ? 1 : 0;
    }
    EXPECT_GT(pages, 0u);
}
#endif

TEST_F(HonestStatus, OfColumnsThatThePageHasNothingFor) {
    Write("page.json", R"({"version": 2, "width": 300, "height": 200, "elements": []})");
    Write("list.csv", "name,rasters,extent\npage,data/scene.tif,0 0 1 1\n");
    const Result result = RunWell("page.json --series list.csv -o {name}.png");
    const std::string line = "map_page: warning: list.csv: line 2: the page has no map ";
    EXPECT_EQ(result.err, line + "or legend that shows the rasters\n" + line +
                              "whose extent, scale or colours change\n");
}

}  // namespace
