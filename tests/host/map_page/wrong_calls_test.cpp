// Calls that map_page refuses, and files that it cannot read: one line and a status.

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;

class WrongCall : public host_tests::PageFileTest {
protected:
    WrongCall() { fs::rename(folder.Path("data/scene.tif"), folder.Path("scene.tif")); }
};

struct ErrorRow {
    int status;
    std::string line;  ///< after "map_page: "; a "*" at the end stands for anything
    Arguments arguments;
};

TEST_F(WrongCall, IsToldInOneLine) {
    std::ofstream(folder.Path("text.tif")) << "not a raster";
    std::ofstream(folder.Path("text.png")) << "not a picture";
    std::ofstream(folder.Path("empty.png")).close();
    std::ofstream(folder.Path("cut.png"))
        << ContentsOf(folder.Path("logo.png")).substr(0, 60);
    const std::string wide = folder.Path("wide.png");
    Gdiplus::Bitmap(40000, 2, PixelFormat24bppRGB)
        .Save(std::wstring(wide.begin(), wide.end()).c_str(), &host_tests::kPngEncoder);
    fs::create_directory(folder.Path("folder"));
    fs::create_directory(folder.Path("folder.png"));
    const std::string before = "what was here before";
    std::ofstream(folder.Path("page.png")) << before;
    const std::vector<std::string> names = folder.Names();

    const auto with = [](Arguments more) {
        Arguments arguments = {"scene.tif", "-o", "page.png"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    };
    const std::string seeHelp = ": see map_page --help";
    const std::string noImage = ": is no image that can be read";
    const std::string noColor =
        " is neither on, off, #RRGGBB, #RRGGBBAA nor the name of a colour";
    const std::string noPaper =
        " is neither a paper size (A4, Letter, ...) nor WIDTHxHEIGHT with sides from 20 "
        "to 5000 mm";
    const ErrorRow rows[] = {
        {2, "--map-images: goes with an output in .pdf, .svg or .ps",
         with({"--map-images", "jpeg"})},
        {2, "--pdf-standard: goes with an output in .pdf",
         with({"--pdf-standard", "a-2u"})},
        {2, "--author: is not valid UTF-8", with({"--author", "\xFF\xFE"})},
        {1, "missing.tif: *", {"missing.tif", "-o", "page.png"}},
        {1, "text.tif: *", {"text.tif", "-o", "page.png"}},
        {1, "folder: *", {"folder", "-o", "page.png"}},
        {1, "missing.tif: *", with({"missing.tif"})},
        {1, "--title-font: no font family \"No Such\" is installed",
         with({"--title", "a", "--title-font", "No Such"})},
        {1, "--title-font: no font family \"\" is installed", with({"--title-font", ""})},
        {2, "--title: is not valid UTF-8", with({"--title", "\xFF\xFE"})},
        {1, "missing.png: No such file or directory", with({"--picture", "missing.png"})},
        {1, "folder: Is a directory", with({"--picture", "folder"})},
        {1, "text.png" + noImage, with({"--picture", "text.png"})},
        {1, "empty.png" + noImage, with({"--picture", "empty.png"})},
        {1, "cut.png" + noImage, with({"--picture", "cut.png"})},
        {1, "wide.png: has 40000 x 2 pixels; at most 32767 a side are drawn",
         with({"--picture", "wide.png"})},
        {1,
         "missing/page.png: No such file or directory",
         {"scene.tif", "-o", "missing/page.png"}},
        {1,
         "text.tif/page.png: Not a directory",
         {"scene.tif", "-o", "text.tif/page.png"}},
        {1, "folder.png: Is a directory", {"scene.tif", "-o", "folder.png"}},
        {1, "/proc/page.png: *", {"scene.tif", "-o", "/proc/page.png"}},
        {2,
         "page.gif: ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps",
         {"scene.tif", "-o", "page.gif"}},
        {2,
         "page: ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps",
         {"scene.tif", "-o", "page"}},
        {2, "--dpi: \"abc\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "abc"})},
        {2, "--dpi: \"-150\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "-150"})},
        {2, "--dpi: \"0\" is no number from 10 to 2400" + seeHelp, with({"--dpi", "0"})},
        {2, "--dpi: \"9.99\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "9.99"})},
        {2, "--dpi: \"nan\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "nan"})},
        {2, "--dpi: \"1e999\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "1e999"})},
        {2, "--dpi: \"150dpi\" is no number from 10 to 2400" + seeHelp,
         with({"--dpi", "150dpi"})},
        {2, "--dpi: \"\" is no number from 10 to 2400" + seeHelp, with({"--dpi", ""})},
        {1,
         "--dpi: the page would have 28063 x 19843 pixels; at most 32767 a side and "
         "250 million are drawn",
         with({"--dpi", "2400"})},
        {2, "--title-size: \"big\" is no number from 1 to 1000" + seeHelp,
         with({"--title-size", "big"})},
        {2, "--title-size: \"0.5\" is no number from 1 to 1000" + seeHelp,
         with({"--title-size", "0.5"})},
        {2, "--title-size: \"\" is no number from 1 to 1000" + seeHelp,
         with({"--title-size", ""})},
        {2, "--title-style: fat not in {regular,bold,italic,bold-italic}" + seeHelp,
         with({"--title-style", "fat"})},
        {2, "--size: \"A9\"" + noPaper, with({"--size", "A9"})},
        {2, "--size: \"0x0\"" + noPaper, with({"--size", "0x0"})},
        {2, "--border: \"reddish\"" + noColor, with({"--border", "reddish"})},
        {2, "--shadow: \"#12345\"" + noColor, with({"--shadow", "#12345"})},
        {2, "--background: \"#GGGGGG\"" + noColor, with({"--background", "#GGGGGG"})},
        {2, "--jobs: Value 0 not in range 1 to 256" + seeHelp,
         with({"--series", "list.csv", "--jobs", "0"})},
        {2, "--jobs requires --series" + seeHelp, with({"--jobs", "2"})},
        {2, "--divisions: Value 101 not in range 1 to 100" + seeHelp,
         with({"--divisions", "101"})},
        {2, "--divisions: Value 4.5 not in range 1 to 100" + seeHelp,
         with({"--divisions", "4.5"})},
        {2, "--subdivisions: Value few not in range 0 to 100" + seeHelp,
         with({"--subdivisions", "few"})},
        {2,
         "--scale-bar: wavy not in {line,stepped,line2,line3,alternating,"
         "equal-alternating,none}" +
             seeHelp,
         with({"--scale-bar", "wavy"})},
        {2, "--unit-position: above not in {after,before}" + seeHelp,
         with({"--unit-position", "above"})},
        {2, "--north-arrow: six not in {one,two,four,eight,none}" + seeHelp,
         with({"--north-arrow", "six"})},
        {2,
         "--north-angle: (\"361\" is no number from -360 to 360) OR (361 not in {true})" +
             seeHelp,
         with({"--north-angle", "361"})},
        {2, "--size: \"10x10\"" + noPaper, with({"--size", "10x10"})},
        {2, "RASTER is required: see map_page --help", {"-o", "page.png"}},
        {2, "--output or --save is required: see map_page --help", {"scene.tif"}},
        {2, "*", with({"--no-such-option"})},
        {2, "*", with({"--dpi"})},
        {2, "*", with({"--portrait=often"})},
        {2, "*", {}},
    };
    for (const ErrorRow& row : rows) {
        const Result result = Run(row.arguments);
        std::string what;
        for (const std::string& argument : row.arguments) {
            what += argument + " ";
        }
        EXPECT_EQ(result.status, row.status) << what << result.err;
        EXPECT_EQ(result.out, "") << what;
        const std::string expected = "map_page: " + row.line;
        if (expected.back() == '*') {
            const std::string start = expected.substr(0, expected.size() - 1);
            EXPECT_EQ(result.err.substr(0, start.size()), start) << what;
            EXPECT_GT(result.err.size(), start.size() + 1) << what;
        } else {
            EXPECT_EQ(result.err, expected + "\n") << what;
        }
        EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << what << result.err;
        EXPECT_TRUE(ContentsOf(folder.Path("page.png")) == before) << what;
        EXPECT_EQ(folder.Names(), names) << what;
    }
}

}  // namespace
