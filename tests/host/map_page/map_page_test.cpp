#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "map_page/page_file_folder.h"
#include "system/confinement.h"
#include "true_pages/picture.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::Result;
using true_pages::Picture;
using true_pages::Pixel;

/// The share of pixels that are not white in a part of a page, whose sides are fractions
/// of it from the top left.
double Ink(const Picture& page, double left, double top, double right, double bottom) {
    int inked = 0;
    int all = 0;
    for (int y = static_cast<int>(top * page.Height()); y < bottom * page.Height(); ++y) {
        for (int x = static_cast<int>(left * page.Width()); x < right * page.Width();
             ++x) {
            ++all;
            inked += IsNear(page.At(x, y), {255, 255, 255}, 4) ? 0 : 1;
        }
    }
    return static_cast<double>(inked) / all;
}

class MapPage : public host_tests::PageFileTest {
protected:
    MapPage() { fs::rename(folder.Path("data/scene.tif"), folder.Path("scene.tif")); }

    Picture PictureOf(const std::string& name) const {
        return Picture(folder.Path(name));
    }
};

TEST_F(MapPage, HasTheSizeAskedFor) {
    const struct {
        Arguments options;
        int width;
        int height;
    } rows[] = {
        {{}, 1754, 1240},
        {"--dpi 96", 1123, 794},
        {"--dpi 300", 3508, 2480},
        {"--portrait", 1240, 1754},
        {"--size Letter --dpi 100", 1100, 850},
        {"--size a5 --portrait --dpi 96", 559, 794},
        {"--size 240x120 --dpi 127", 1200, 600},
        {"--size 120x240 --dpi 127 --portrait", 600, 1200},
    };
    for (const auto& row : rows) {
        const Result result = RunWell("scene.tif -o page.png" + row.options);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.out, "page.png: " + std::to_string(row.width) + " x " +
                                  std::to_string(row.height) + " pixels, " +
                                  std::to_string(fs::file_size(folder.Path("page.png"))) +
                                  " bytes\n");
        EXPECT_EQ(PictureOf("page.png").Width(), row.width);
        EXPECT_EQ(PictureOf("page.png").Height(), row.height);
    }
}

TEST_F(MapPage, ShowsMapTitleAndPicture) {
    const Arguments noMore = "--no-legend --scale-bar none --north-arrow none";
    RunWell("scene.tif -o page.png --title Scene --picture logo.png" + noMore);
    const Picture page = PictureOf("page.png");
    EXPECT_GT(Ink(page, 0.4, 0.06, 0.6, 0.13), 0.1) << "the title";
    EXPECT_GT(Ink(page, 0.25, 0.25, 0.6, 0.9), 0.99) << "the map";
    EXPECT_GT(Ink(page, 0.77, 0.84, 0.835, 0.94), 0.4) << "the picture";
    EXPECT_LT(Ink(page, 0.77, 0.3, 0.835, 0.75), 0.01) << "above the picture";
    EXPECT_LT(Ink(page, 0.03, 0.03, 0.97, 0.055), 0.01) << "above the title";
    // North-west is dark and the scene gets redder eastwards, as it was made.
    EXPECT_GT(page.At(1100, 700).red, page.At(400, 700).red + 50);

    RunWell("scene.tif -o bare.png" + noMore);
    const Picture bare = PictureOf("bare.png");
    EXPECT_LT(Ink(bare, 0.83, 0.1, 0.97, 0.95), 0.01) << "no picture";
    EXPECT_GT(Ink(bare, 0.3, 0.1, 0.7, 0.9), 0.99) << "the map takes the title's room";
}

TEST_F(MapPage, DrawsFramesAsAskedFor) {
    const auto count = [this](const Pixel& colour) {
        const Picture page = PictureOf("page.png");
        int found = 0;
        for (int y = 0; y < page.Height() / 5; ++y) {
            for (int x = 0; x < page.Width(); ++x) {
                found += IsNear(page.At(x, y), colour, 0) ? 1 : 0;
            }
        }
        return found;
    };
    const Pixel red = {255, 0, 0};
    const Pixel lime = {0, 255, 0};
    const Pixel blue = {0, 0, 255};
    const char* const draw = "scene.tif -o page.png --title Title --dpi 96";
    RunWell(draw + Arguments("--border #FF0000 --shadow lime --background #0000FFFF"));
    EXPECT_GT(count(red), 100);
    EXPECT_GT(count(lime), 100);
    EXPECT_GT(count(blue), 1000);
    RunWell(draw + Arguments("--border off --shadow off --background off"));
    EXPECT_EQ(count(red), 0);
    EXPECT_EQ(count(lime), 0);
    EXPECT_EQ(count(blue), 0);
}

TEST_F(MapPage, WritesTheFormatOfTheEnding) {
    const std::string tiff("II*\0", 4);
    const std::string pixels = "468 x 331 pixels, ";
    const std::string points = "842 x 595 points, ";
    const struct {
        std::string name;
        std::string magic;
        std::string size;
    } rows[] = {
        {"page.png", "\x89PNG\r\n\x1A\n", pixels},
        {"page.PNG", "\x89PNG\r\n\x1A\n", pixels},
        {"page.jpg", "\xFF\xD8\xFF", pixels},
        {"page.Jpeg", "\xFF\xD8\xFF", pixels},
        {"page.bmp", "BM", pixels},
        {"page.tif", tiff, pixels},
        {"page.TIFF", tiff, pixels},
        {"page.pdf", "%PDF-", points},
        {"page.ps", "%!PS-", points},
        {"page.SVG", "<?xml ", points},
    };
    for (const auto& row : rows) {
        const Result result = RunWell({"scene.tif", "-o", row.name, "--dpi", "40"});
        EXPECT_THAT(result.out, ::testing::StartsWith(row.name + ": " + row.size));
        EXPECT_THAT(Contents(row.name), ::testing::StartsWith(row.magic));
        if (row.size == pixels) {
            EXPECT_EQ(PictureOf(row.name).Width(), 468) << row.name;
        }
    }
}

TEST_F(MapPage, EndsCleanlyAfterAnyTitle) {
    for (const char* title : {"奥林达和累西腓", "Olinda 奥林达", "\xF0\x9F\x97\xBA map",
                              "مدينة", " ", "", "%s %n \\ \"", "-"}) {
        const Result result = RunWell(Arguments("scene.tif -o page.png --dpi 60") +
                                      Arguments{"--title", title});
        EXPECT_EQ(result.err, title[0] != '\xF0'
                                  ? ""
                                  : "map_page: warning: title: no font has "
                                    "\"\xF0\x9F\x97\xBA\" (U+1F5FA): a "
                                    "box is drawn\n")
            << title;
    }
}

TEST_F(MapPage, TakesTheFontAskedFor) {
    const auto draw = [this](const std::string& font, const std::string& style) {
        RunWell(Arguments("scene.tif -o page.png --dpi 60 --title Recife") +
                Arguments{"--title-font", font, "--title-style", style});
        return Contents("page.png");
    };
    const std::string sans = draw("Arial", "bold");
    EXPECT_TRUE(draw("Liberation Sans", "bold") == sans);
    EXPECT_FALSE(draw("Times New Roman", "bold") == sans);
    EXPECT_FALSE(draw("Arial", "regular") == sans);
    EXPECT_FALSE(draw("Arial", "bold-italic") == sans);
}

TEST_F(MapPage, WarnsOfARasterItCannotPlace) {
    MadeRaster other;
    other.transform = {0.0, 1.0, 0.0, 0.0, 0.0, -1.0};
    other.projection = "EPSG:4326";
    WriteRaster(folder.Path("other.tif"), other);
    EXPECT_EQ(RunWell("scene.tif other.tif -o page.png").err,
              "map_page: warning: other.tif: left off the map: its coordinate system is "
              "not that of the first raster\n");
}

TEST_F(MapPage, TellsItsOptionsAndItsVersion) {
    const Result help = RunWell("--help");
    EXPECT_EQ(help.err, "");
    for (const char* option :
         {"RASTER", "--output", "--title ", "--title-font", "--title-size",
          "--title-style", "--picture", "--size", "--portrait", "--dpi", "--border",
          "--shadow", "--background", "--version", "--help"}) {
        EXPECT_NE(help.out.find(option), std::string::npos) << option;
    }
    EXPECT_EQ(RunWell("--version").out, "map_page " MAP_PAGE_VERSION
                                        "\nThe process that draws a page file: " +
                                            host::ConfinementHere() + "\n");
}

// The real rasters, where a folder with them is named.
TEST_F(MapPage, DrawsRealRasters) {
    const char* const rasters = std::getenv("MAP_SURROUND_RASTERS");
    if (rasters == nullptr) {
        GTEST_SKIP() << "MAP_SURROUND_RASTERS names no folder";
    }
    const std::string in = std::string(rasters) + "/";
    const Result result =
        RunWell({in + "L7_ETMs.tif", in + "olinda_dem_utm25s.tif", in + "lc.tif", "-o",
                 "page.png", "--title", "Olinda", "--picture", "logo.png"});
    EXPECT_EQ(result.err, "map_page: warning: " + in +
                              "lc.tif: left off the map: its coordinate system is not "
                              "that of the first raster\n");
    const Picture page = PictureOf("page.png");
    EXPECT_GT(Ink(page, 0.4, 0.06, 0.6, 0.13), 0.1) << "the title";
    EXPECT_GT(Ink(page, 0.25, 0.25, 0.6, 0.9), 0.95) << "the map";
    EXPECT_GT(Ink(page, 0.69, 0.17, 0.88, 0.65), 0.05) << "the legend";
    EXPECT_GT(Ink(page, 0.69, 0.71, 0.86, 0.77), 0.05) << "the scale bar";
    EXPECT_GT(Ink(page, 0.69, 0.83, 0.76, 0.93), 0.03) << "the north arrow";
    EXPECT_GT(Ink(page, 0.8, 0.83, 0.88, 0.95), 0.4) << "the picture";
    for (const char* raster : {"olinda_dem_utm25s.tif", "lc.tif"}) {
        RunWell({in + raster, "-o", "page.png"});
    }
}

}  // namespace
