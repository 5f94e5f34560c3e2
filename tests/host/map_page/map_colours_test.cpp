// The colours of a drawn map, read back from its pixels.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

#include "map_page/page_file_folder.h"
#include "true_pages/picture.h"

namespace {

using host_tests::Arguments;

// data/scene.tif has 120 x 120 pixels of 30 m, the first at 500000, 9000000. At column x
// and row y its red is x * 200 / 120, its green y * 200 / 120, its blue (x + y) % 200.
constexpr int kSide = 120;

unsigned Colour(long red, long green, long blue) {
    return static_cast<unsigned>(red << 16 | green << 8 | blue);
}

class MapColours : public host_tests::PageFileTest {
protected:
    /// A page that is nothing but a map, at 96 dpi three pixels for each of the scene's.
    void WritePage(const std::string& properties) const {
        Write("page.json",
              R"({"version": 2, "width": 360, "height": 360, "elements": [{"type": )"
              R"("map", "rasters": ["data/scene.tif"], )" +
                  properties +
                  R"("frame": {"left": 0, "top": 360, "width": 360, "height": 360}}]})");
    }

    /// What is said of drawing page.json.
    std::string Draw(const Arguments& options) {
        return RunWell(options + "page.json -o map.png --dpi 96").err;
    }

    /// The colour of a pixel of an image file, without its alpha.
    unsigned ColourIn(const char* name, int x, int y) const {
        const true_pages::Picture picture(folder.Path(name));
        EXPECT_EQ(picture.Width(), 360);
        const true_pages::Pixel pixel = picture.At(x, y);
        return Colour(pixel.red, pixel.green, pixel.blue);
    }

    /// That of the scene's pixel where the whole scene is drawn.
    unsigned At(int column, int row) const {
        return ColourIn("map.png", 3 * column + 1, 3 * row + 1);
    }
};

unsigned Grey(double part) {
    const long shade = std::lround(255.0 * std::min(1.0, std::max(0.0, part)));
    return Colour(shade, shade, shade);
}

int Red(int column) { return column * 200 / kSide; }
int Green(int row) { return row * 200 / kSide; }

TEST_F(MapColours, OfFinishedRasterAreItsOwn) {
    WritePage("");
    ASSERT_EQ(Draw({}), "");
    for (const int column : {1, 17, 60, 118}) {
        for (const int row : {2, 59, 117}) {
            EXPECT_EQ(At(column, row),
                      Colour(Red(column), Green(row), (column + row) % 200))
                << column << " " << row;
        }
    }
}

TEST_F(MapColours, AreTheSameOnEverySheetAndAtEverySize) {
    // One band is stretched from its least value, 0, to its greatest, 198.
    WritePage(R"("bands": "1", )");
    ASSERT_EQ(Draw({}), "");
    EXPECT_EQ(At(60, 60), Grey(100.0 / 198.0));
    EXPECT_EQ(At(118, 60), Grey(196.0 / 198.0));
    // 20 x 20 pixels of the scene, column 50 to 69, row 50 to 69: 18 pixels for each.
    Write("list.csv",
          "name,extent,stretch\n"
          "a,501500 8997900 502100 8998500,\n"
          "b,501500 8997900 502100 8998500,percent 10 90\n");
    RunWell("page.json --series list.csv -o {name}.png --dpi 96");
    for (const auto& [output, black, white] :
         {std::tuple{"a.png", 0.0, 198.0}, {"b.png", 20.0, 178.0}}) {
        for (const int column : {50, 57, 69}) {
            EXPECT_EQ(ColourIn(output, 18 * (column - 50) + 9, 100),
                      Grey((Red(column) - black) / (white - black)))
                << output << " " << column;
        }
    }
}

// Of green, each value of 0 to 198 as often as the next: half of 0 to 198 is 99, a
// twelfth of the raster's variance as of any even spread.
TEST_F(MapColours, FollowTheOptions) {
    const struct {
        Arguments options;
        unsigned at;  ///< column 60, row 30: red 100, green 50, blue 90
    } rows[] = {
        {"--bands 2,1,3", Colour(50, 100, 90)},
        {"--bands 3 --stretch none", Colour(90, 90, 90)},
        {"--bands 2", Grey(50.0 / 198.0)},
        {{"--bands", "2", "--stretch", "percent 10 90"}, Grey((50.0 - 20.0) / 158.0)},
        {"--stretch percent 0 100 --bands 1", Grey(100.0 / 198.0)},
        {"--stretch minmax",
         Colour(std::lround(100 * 255.0 / 198.0), std::lround(50 * 255.0 / 198.0),
                std::lround(90 * 255.0 / 199.0))},
        {"--stretch none --nodata 100", 0xFFFFFFU},
        {"--stretch none --nodata 99", Colour(100, 50, 90)},
    };
    WritePage("");
    for (const auto& row : rows) {
        ASSERT_EQ(Draw(row.options), "");
        EXPECT_EQ(At(60, 30), row.at) << row.options[0] << " " << row.options[1];
    }
}

TEST_F(MapColours, OfNothingAreTold) {
    WritePage(R"("extent": {"left": 0, "bottom": 0, "right": 9, "top": 9}, )");
    EXPECT_EQ(
        Draw({}),
        "map_page: warning: data/scene.tif: the map's extent lies beside it, so that "
        "the map is blank\n");
    // All of the first column and row are 0 in one band or the other.
    WritePage(
        R"("extent": {"left": 500005, "bottom": 8999975, "right": 500025, "top": 8999995}, )");
    EXPECT_EQ(Draw("--nodata 0"),
              "map_page: warning: data/scene.tif: it has no data in the map's extent, so "
              "that the map is blank\n");
    EXPECT_EQ(Draw({}), "");
}

}  // namespace
