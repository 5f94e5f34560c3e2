// Calls that map_page refuses, and files that it cannot read: one line and a status.

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"
#include "page/catalogue.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;

const Arguments kDraw = "data/scene.tif -o page.png";

class WrongCall : public host_tests::PageFileTest {
    struct ErrorRow {
        int status;
        std::string line;
        Arguments call;
    };

protected:
    WrongCall() {
        Write("page.png", "what was here before");
        for (const char* name : {"folder", "folder.png", "folder.json"}) {
            fs::create_directory(folder.Path(name));
        }
    }

    void ExpectErrors(const std::vector<ErrorRow>& rows) const {
        for (const ErrorRow& row : rows) {
            ExpectError(row.status, row.line, row.call);
        }
    }
};

std::string NotIn(MapSurroundType family) {
    std::string why = "@ not in {";
    for (const host::CatalogueEntry* const style : host::StylesOf(family)) {
        why += style->Style() + std::string(",");
    }
    return why + "none}";
}

TEST_F(WrongCall, OfAValueTellsWhatItMayBe) {
    const std::string seeHelp = ": see map_page --help";
    const std::string noColour =
        R"("@" is neither on, off, #RRGGBB, #RRGGBBAA nor the name of a colour)";
    const struct {
        const char* option;
        std::vector<std::string> values;
        std::string why;  ///< "@" stands for the value
    } rows[] = {
        {"--dpi",
         {"abc", "-150", "0", "9.99", "nan", "1e999", "150dpi", ""},
         R"("@" is not a number from 10 to 2400)" + seeHelp},
        {"--title-size",
         {"big", "0.5", ""},
         R"("@" is not a number from 1 to 1000)" + seeHelp},
        {"--title-style",
         {"fat"},
         "@ not in {regular,bold,italic,bold-italic}" + seeHelp},
        {"--size",
         {"A9", "0x0", "10x10"},
         R"("@" is neither a paper size (A4, Letter, ...) nor WIDTHxHEIGHT with sides )"
         "from 20 to 5000 mm"},
        {"--border", {"reddish"}, noColour},
        {"--shadow", {"#12345"}, noColour},
        {"--background", {"#GGGGGG"}, noColour},
        {"--divisions", {"101", "4.5"}, "Value @ not in range 1 to 100" + seeHelp},
        {"--subdivisions", {"few"}, "Value @ not in range 0 to 100" + seeHelp},
        {"--scale-bar", {"wavy"}, NotIn(SurroundScaleBar) + seeHelp},
        {"--unit-position", {"above"}, "@ not in {after,before}" + seeHelp},
        {"--north-arrow", {"six"}, NotIn(SurroundNorthArrow) + seeHelp},
        {"--north-angle",
         {"361"},
         R"(("@" is not a number from -360 to 360) OR (@ not in {true}))" + seeHelp},
        {"--bands",
         {"1,2"},
         "must be the number of a band, or three with commas between, such as 3,2,1"},
        {"--nodata", {"x"}, "must be a number, nan, or none"},
        {"--author", {"\xFF\xFE"}, "is not valid UTF-8"},
        {"--title", {"\xFF\xFE"}, "is not valid UTF-8"},
    };
    for (const auto& row : rows) {
        for (const std::string& value : row.values) {
            std::string line = std::string(row.option) + ": " + row.why;
            for (std::size_t at; (at = line.find('@')) != std::string::npos;) {
                line.replace(at, 1, value);
            }
            ExpectError(2, line, kDraw + Arguments{row.option, value});
        }
    }
}

TEST_F(WrongCall, IsToldInOneLine) {
    Write("text.tif", "not a raster");
    Write("text.png", "not a picture");
    Write("empty.png", "");
    Write("cut.png", Contents("logo.png").substr(0, 60));
    Gdiplus::Bitmap wide(40000, 2, PixelFormat24bppRGB);
    host_tests::SavePng(wide, folder.Path("wide.png"));
    const std::string noImage = ": is not an image that can be read";
    const std::string noEnding =
        ": ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps";
    const std::string noOutput = "--output or --save is required: see map_page --help";
    ExpectErrors({
        {2, "--map-images: needs an output in .pdf, .svg or .ps",
         kDraw + "--map-images jpeg"},
        {2, "--pdf-standard: needs an output in .pdf", kDraw + "--pdf-standard a-2u"},
        {1, "missing.tif: *", "missing.tif -o page.png"},
        {1, "text.tif: *", "text.tif -o page.png"},
        {1, "folder: *", "folder -o page.png"},
        {1, "missing.tif: *", kDraw + "missing.tif"},
        {1, R"(--title-font: no font family "No Such" is installed)",
         kDraw + Arguments{"--title", "a", "--title-font", "No Such"}},
        {1, R"(--title-font: no font family "" is installed)",
         kDraw + Arguments{"--title-font", ""}},
        {1, "missing.png: No such file or directory", kDraw + "--picture missing.png"},
        {1, "folder: Is a directory", kDraw + "--picture folder"},
        {1, "text.png" + noImage, kDraw + "--picture text.png"},
        {1, "empty.png" + noImage, kDraw + "--picture empty.png"},
        {1, "cut.png" + noImage, kDraw + "--picture cut.png"},
        {1, "wide.png: has 40000 x 2 pixels; at most 32767 a side are drawn",
         kDraw + "--picture wide.png"},
        {1, "none/page.png: No such file or directory",
         "data/scene.tif -o none/page.png"},
        {1, "text.tif/page.png: Not a directory", "data/scene.tif -o text.tif/page.png"},
        {1, "folder.png: Is a directory", "data/scene.tif -o folder.png"},
        {1, "/proc/page.png: *", "data/scene.tif -o /proc/page.png"},
        {2, "page.gif" + noEnding, "data/scene.tif -o page.gif"},
        {2, "page" + noEnding, "data/scene.tif -o page"},
        {1,
         "--dpi: the page would have 28063 x 19843 pixels; at most 32767 a side and 250 "
         "million are drawn",
         kDraw + "--dpi 2400"},
        {2, "--jobs: Value 0 not in range 1 to 256: see map_page --help",
         kDraw + "--series list.csv --jobs 0"},
        {2, "--jobs requires --series: see map_page --help", kDraw + "--jobs 2"},
        {2, "--series: needs a page file", kDraw + "--series list.csv"},
        {2,
         "--stretch: must be auto, none, minmax, percent LOW HIGH (from 0 to 100) or "
         "stddev COUNT (above 0)",
         kDraw + "--stretch percent 98 2"},
        {2, "RASTER is required: see map_page --help", "-o page.png"},
        {2, noOutput, "data/scene.tif"},
        {2, "page.txt: does not end in .json", "data/scene.tif --save page.txt"},
        {1, "none/page.json: No such file or directory",
         "data/scene.tif --save none/page.json"},
        {1, "none/page.json: No such file or directory", kDraw + "--save none/page.json"},
        {2, "*", kDraw + "--no-such-option"},
        {2, "*", kDraw + "--dpi"},
        {2, "*", kDraw + "--portrait=often"},
        {2, "*", {}},
    });
}

TEST_F(WrongCall, OfAPageFileIsToldWithItsPlace) {
    const auto write = [this](const std::string& name, const std::string& elements) {
        Write(name, R"({"version": 2, "width": 400, "height": 300, "elements": [)" +
                        elements + "]}");
    };
    write("good.json", "");
    write("titles.json", R"({"type": "title"}, {"type": "title"})");
    write("size.json", R"({"type": "frame"}, {"type": "title", "size": "big"})");
    write("raster.json", R"({"type": "map", "rasters": ["none.tif"]})");
    write("bands.json", R"({"type": "map", "rasters": ["data/scene.tif"]})");
    write("stretch.json", R"({"type": "map", "stretch": "much"})");
    write("picture.json", R"({"type": "picture", "path": "none.png"})");
    write("font.json", R"({"type": "title", "font": "No Such"})");
    Write("broken.json", "{\n\"version\": }");
    Write("empty.json", "");
    const std::string noJson = "is not valid JSON: unexpected ";
    ExpectErrors({
        {1, "size.json: elements[1].size: must be a whole number",
         "size.json -o page.png"},
        {1, "raster.json: elements[0].rasters: none.tif: no such file",
         "raster.json -o page.png"},
        {1, "bands.json: elements[0].rasters: data/scene.tif: has no band 9 (it has 3)",
         "bands.json -o page.png --bands 1,2,9"},
        {1, "stretch.json: elements[0].stretch: must be auto, *",
         "stretch.json -o page.png"},
        {1, "picture.json: elements[0].path: none.png: No such file or directory",
         "picture.json -o page.png"},
        {1, R"(font.json: elements[0].font: no font family "No Such" is installed)",
         "font.json -o page.png"},
        {1,
         "broken.json: line 2, column 12: " + noJson +
             "'}'; expected '[', '{', or a literal",
         "broken.json -o page.png"},
        {1,
         "empty.json: line 1, column 1: " + noJson +
             "end of input; expected '[', '{', or a literal",
         "empty.json -o page.png"},
        {1, "none.json: No such file or directory", "none.json -o page.png"},
        {1, "folder.json: is not a file", "folder.json -o page.png"},
        {2, "--save: cannot be used with --series",
         "good.json --series a.csv -o page.png --save other.json"},
        {2, "--jobs: needs an output for each page",
         "good.json --series a.csv -o atlas.pdf --jobs 2"},
        {2, "size.json: is a second page file",
         "good.json data/scene.tif size.json -o page.png"},
        {1, "good.json: --title: the page has no title",
         "good.json -o page.png --title A"},
        {1, "good.json: --units: the page has no scale bar",
         "good.json -o page.png --units mi"},
        {1,
         "titles.json: --title-size: the page has 2 of its kind, and none is called "
         R"("title")",
         "titles.json -o page.png --title-size 12"},
        {1, "good.json: would replace good.json, which the page is drawn from",
         "good.json --size A3 --save good.json"},
        {2, "--output or --save is required: see map_page --help", {"good.json"}},
    });
}

TEST_F(WrongCall, ReplacesNothingThatThePageIsDrawnFrom) {
    fs::create_symlink("data/scene.tif", folder.Path("link.tif"));
    fs::create_hard_link(folder.Path("data/scene.tif"), folder.Path("hard.tif"));
    Write("scene.vrt",
          R"(<VRTDataset rasterXSize="120" rasterYSize="120">)"
          R"(<VRTRasterBand dataType="Byte" band="1"><SimpleSource>)"
          R"(<SourceFilename relativeToVRT="1">data/scene.tif</SourceFilename>)"
          "<SourceBand>1</SourceBand></SimpleSource></VRTRasterBand></VRTDataset>");
    RunWell("data/scene.tif --picture logo.png --save page.json");
    const std::string scene = Contents("data/scene.tif");
    const std::string logo = Contents("logo.png");
    for (const Arguments call :
         {"data/scene.tif -o data/scene.tif", "data/scene.tif -o link.tif",
          "data/scene.tif -o hard.tif", "data/scene.tif --picture logo.png -o logo.png",
          "page.json -o data/scene.tif", "page.json -o logo.png",
          "scene.vrt -o data/scene.tif"}) {
        ExpectError(1, call.back() + ": would replace *", call);
        EXPECT_TRUE(Contents("data/scene.tif") == scene);
        EXPECT_TRUE(Contents("logo.png") == logo);
    }
}

}  // namespace
