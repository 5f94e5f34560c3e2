#include "page/map/map_layers.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "page/expect_box.h"
#include "page/made_raster.h"
#include "raster_data/make_raster.h"

namespace {

using host_tests::ExpectBox;

constexpr unsigned kRed = 0xFFFF0000;
constexpr unsigned kGreen = 0xFF00FF00;
constexpr unsigned kBlue = 0xFF0000FF;

/// 8 x 8 pixels of 10 m, from a north-west corner.
MadeRaster Square(double west, double north, unsigned argb,
                  const std::string& projection = "EPSG:32725") {
    MadeRaster raster;
    raster.transform = {west, 10.0, 0.0, north, 0.0, -10.0};
    raster.projection = projection;
    raster.argb = raster.cornerArgb = argb;
    return raster;
}

/// The square from (0, 0) to (80, 80), stored from any of its corners, where it is red.
MadeRaster Cornered(double xStep, double yStep) {
    MadeRaster raster =
        Square(xStep > 0.0 ? 0.0 : 80.0, yStep < 0.0 ? 80.0 : 0.0, kGreen);
    raster.transform[1] = xStep;
    raster.transform[5] = yStep;
    raster.cornerArgb = kRed;
    return raster;
}

/// Two by two pixels from (0, 0), stored in the directions that the signs say.
MadeRaster Quarters(double xStep, double yStep) {
    MadeRaster raster = Cornered(xStep, yStep);
    raster.transform[0] = raster.transform[3] = 0.0;
    raster.width = raster.height = 2;
    return raster;
}

/// A map as it is drawn in so many rows of pixels: R, G and B, and a dot for nothing.
std::vector<std::string> Drawn(host::MapLayers& map, int width, int height) {
    const host::PixelImage image = map.Render(width, height, {});
    std::vector<std::string> rows(static_cast<std::size_t>(height));
    for (int i = 0; i < width * height; ++i) {
        const unsigned argb = raster_test::Pixel(image, i % width, i / width);
        rows[static_cast<std::size_t>(i / width)] += argb == kRed       ? 'R'
                                                     : argb == kGreen   ? 'G'
                                                     : argb == kBlue    ? 'B'
                                                     : argb >> 24U == 0 ? '.'
                                                                        : '?';
    }
    return rows;
}

class MapLayers : public ::testing::Test {
protected:
    host::MapLayers Layers(const std::vector<MadeRaster>& made,
                           const std::optional<host::Box>& extent = std::nullopt) {
        std::vector<std::shared_ptr<host::GdalRaster>> rasters;
        for (const MadeRaster& raster : made) {
            const std::string path =
                folder.Path("raster" + std::to_string(count++) + ".tif");
            WriteRaster(path, raster);
            rasters.emplace_back(raster_test::Open(path));
        }
        return host::MapLayers(std::move(rasters), extent);
    }

    static void ExpectShown(host::MapLayers map, const host::Box& extent,
                            const std::vector<std::string>& drawn) {
        SCOPED_TRACE(::testing::PrintToString(drawn));
        ExpectBox(map.Extent(), extent);
        const int width = static_cast<int>(drawn.front().size());
        const int height = static_cast<int>(drawn.size());
        EXPECT_EQ(Drawn(map, width, height), drawn);
        host::MapLayers again(map.Given(), map.Asked());
        EXPECT_EQ(Drawn(again, width, height), drawn);
    }
    void ExpectAll(const std::vector<MadeRaster>& rasters, const host::Box& extent,
                   const std::vector<std::string>& drawn) {
        ExpectShown(Layers(rasters), extent, drawn);
    }
    void ExpectPart(const std::vector<MadeRaster>& rasters, const host::Box& extent,
                    const std::vector<std::string>& drawn) {
        ExpectShown(Layers(rasters, extent), extent, drawn);
    }

    ScratchFolder folder;
    int count = 0;
};

TEST_F(MapLayers, NeedARaster) { EXPECT_THROW(Layers({}), std::invalid_argument); }

TEST_F(MapLayers, SpanTheOnlyRaster) {
    MadeRaster raster = Square(1000.0, 2000.0, kRed);
    raster.transform[5] = -20.0;
    const host::MapLayers map = Layers({raster});
    ExpectBox(map.Extent(), {1000.0, 1840.0, 1080.0, 2000.0});
    EXPECT_DOUBLE_EQ(map.AspectRatio(), 0.5);
}

TEST_F(MapLayers, ShowEachRasterInItsPlace) {
    const MadeRaster red = Square(0.0, 80.0, kRed);
    const MadeRaster green = Square(0.0, 80.0, kGreen);
    const MadeRaster farther = Square(40.0, 80.0, kGreen);
    MadeRaster holed = red;
    holed.hole = true;  // from (70, 10) to (80, 0)
    MadeRaster plain;   // without georeference
    plain.width = 4;
    plain.height = 2;
    // Its columns run to the south and its rows to the west, from the north-east corner.
    MadeRaster turned = Cornered(10.0, -10.0);
    turned.width = 4;
    turned.transform = {80.0, 0.0, -10.0, 80.0, -10.0, 0.0};
    // Whichever comes first is on top.
    ExpectAll({red, farther}, {0, 0, 120, 80}, {"RRG", "RRG"});
    ExpectAll({farther, red}, {0, 0, 120, 80}, {"RGG", "RGG"});
    ExpectPart({holed, green}, {60, 0, 80, 20}, {"RR", "RG"});
    ExpectAll({red, Square(160.0, -80.0, kGreen)}, {0, -160, 240, 80},
              {"R..", "...", "..G"});
    // Stored from any corner, and turned.
    ExpectAll({Quarters(10.0, -10.0)}, {0, -20, 20, 0}, {"RG", "GG"});
    ExpectAll({Quarters(-10.0, -10.0)}, {-20, -20, 0, 0}, {"GR", "GG"});
    ExpectAll({Quarters(10.0, 10.0)}, {0, 0, 20, 20}, {"GG", "RG"});
    ExpectAll({Quarters(-10.0, 10.0)}, {-20, 0, 0, 20}, {"GG", "GR"});
    ExpectAll({turned}, {0, 40, 80, 80},
              {"GGGGGGGR", "GGGGGGGG", "GGGGGGGG", "GGGGGGGG"});
    // Over corners, inside one pixel, beside everything, of several.
    ExpectPart({Cornered(10.0, -10.0)}, {-10, 50, 30, 90},
               {"....", ".RGG", ".GGG", ".GGG"});
    ExpectPart({Cornered(-10.0, -10.0)}, {50, 50, 90, 90},
               {"....", "GGR.", "GGG.", "GGG."});
    ExpectPart({Cornered(10.0, 10.0)}, {-10, -10, 30, 30},
               {".GGG", ".GGG", ".RGG", "...."});
    ExpectPart({Cornered(10.0, -10.0)}, {2, 73, 4, 75}, {"RRR", "RRR", "RRR"});
    ExpectPart({red}, {500, 500, 600, 600}, {"..", ".."});
    ExpectPart({red, Square(80.0, 80.0, kBlue)}, {60, 0, 100, 40},
               {"RRBB", "RRBB", "RRBB", "RRBB"});
    // Without georeference as it is stored, and whole, whatever is asked for.
    ExpectAll({plain}, {0, 0, 4, 2}, {"BRRR", "RRRR"});
    ExpectShown(Layers({plain}, host::Box{1, 1, 2, 2}), {0, 0, 4, 2}, {"BRRR", "RRRR"});
}

TEST_F(MapLayers, RefuseAPictureThatIsTooLarge) {
    host::MapLayers tiny =
        Layers({Cornered(10.0, -10.0)}, host::Box{2.0, 73.0, 2.0 + 1e-9, 73.0 + 1e-9});
    EXPECT_THROW(tiny.Render(30, 30, {}), std::runtime_error);
}

TEST_F(MapLayers, MeetWithoutAGap) {
    host::MapLayers map = Layers({Square(0.0, 80.0, kRed), Square(80.0, 80.0, kGreen)});
    for (const int width : {7, 8, 33, 101}) {
        EXPECT_EQ(Drawn(map, width, 5)[2].find('.'), std::string::npos) << width;
    }
}

TEST_F(MapLayers, CutOffASliverThatStandsOut) {
    MadeRaster wider = Square(0.0, 80.0, kGreen);
    wider.transform[1] = 10.09;  // 0.9 % wider than the first
    host::MapLayers cut = Layers({Square(0.0, 80.0, kRed), wider});
    ExpectBox(cut.Extent(), {0.0, 0.0, 80.0, 80.0});
    EXPECT_EQ(Drawn(cut, 800, 80)[40][799], 'R');

    wider.transform[1] = 10.2;  // 2 %
    host::MapLayers kept = Layers({Square(0.0, 80.0, kRed), wider});
    EXPECT_DOUBLE_EQ(kept.Extent().right, 81.6);
    EXPECT_EQ(Drawn(kept, 816, 80)[40][810], 'G');
}

TEST_F(MapLayers, TakeTheSameSystemInOtherWords) {
    // The same projection on another realisation of the same system, centimetres off.
    const host::MapLayers map =
        Layers({Square(300000.0, 9000000.0, kRed, "EPSG:31985"),
                Square(300080.0, 9000000.0, kGreen,
                       "+proj=utm +zone=25 +south +ellps=GRS80 +towgs84=0,0,0 "
                       "+units=m")});
    EXPECT_TRUE(map.Remarks().empty());
    EXPECT_DOUBLE_EQ(map.Extent().right, 300160.0);
}

TEST_F(MapLayers, LeaveOutWhatTheyCannotPlace) {
    const MadeRaster first = Square(300000.0, 9000000.0, kRed);
    const MadeRaster plain;
    MadeRaster turned = first;
    turned.transform = {300000.0, 7.0, 7.0, 9000000.0, 7.0, -7.0};
    const MadeRaster unknown = Square(300000.0, 9000000.0, kGreen, "");
    const MadeRaster other = Square(300000.0, 9000000.0, kGreen, "EPSG:32724");

    const struct {
        MadeRaster first;
        MadeRaster second;
        std::string why;
    } rows[] = {
        {first, first, ""},
        {unknown, unknown, ""},
        {first, other, "its coordinate system is not that of the first raster"},
        {first, unknown, "its coordinate system is not that of the first raster"},
        {first, plain, "it has no georeference"},
        {first, turned, ""},
        {plain, first, "the first raster has no georeference to place it by"},
        {plain, plain, "the first raster has no georeference to place it by"},
        {turned, turned, ""},
        {turned, first, ""},
    };
    for (const auto& row : rows) {
        host::MapLayers map = Layers({row.first, row.second});
        const std::string second = folder.Path("raster" + std::to_string(count - 1));
        EXPECT_EQ(map.Remarks(),
                  row.why.empty() ? std::vector<std::string>()
                                  : std::vector<std::string>{
                                        second + ".tif: left off the map: " + row.why});
        EXPECT_EQ(map.Rasters().size(), row.why.empty() ? 2U : 1U);
        EXPECT_EQ(map.IsPlaced(), row.first.transform[0] > 0.0);
        EXPECT_EQ(map.Render(16, 16, {}).bgra.size(), 16u * 16u * 4u);
    }
}

TEST_F(MapLayers, TellOneProgressForAll) {
    host::MapLayers map = Layers({Square(0.0, 80.0, kRed), Square(80.0, 80.0, kGreen)});
    double last = 0.0;
    map.Render(64, 64, [&last](double part) {
        EXPECT_GE(part, last);
        EXPECT_LE(part, 1.0);
        last = part;
        return true;
    });
    EXPECT_GT(last, 0.5);
}

TEST_F(MapLayers, TellWhenATurnedRasterCannotBeTurnedBack) {
    MadeRaster raster = Square(0.0, 0.0, kRed);
    raster.transform = {0.0, 1e300, 1e300, 0.0, 1e300, -1e300};
    const host::MapLayers map = Layers({raster});
    EXPECT_FALSE(map.IsPlaced());
    ASSERT_EQ(map.Remarks().size(), 1U);
    EXPECT_EQ(
        map.Remarks().front().rfind(
            folder.Path("raster0.tif") + ": shown as it is stored, since it is rotated: ",
            0),
        0U)
        << map.Remarks().front();
    count = 0;
    EXPECT_EQ(Layers({raster}, host::Box{1.0, 1.0, 2.0, 2.0}).Remarks().back(),
              folder.Path("raster0.tif") +
                  ": the map's extent is ignored without a georeference, and all of it "
                  "is shown");
}

TEST_F(MapLayers, TellOfABlankMap) {
    MadeRaster raster = Square(0.0, 80.0, kRed);
    raster.hole = true;  // from (70, 10) to (80, 0)
    const std::string path = folder.Path("raster0.tif");
    host::MapLayers beside = Layers({raster}, host::Box{500.0, 500.0, 600.0, 600.0});
    const std::vector<std::string> liesBeside = {
        path + ": the map's extent lies beside it, so that the map is blank"};
    EXPECT_EQ(beside.Remarks(), liesBeside);
    beside.Render(3, 3, {});
    EXPECT_EQ(beside.Remarks(), liesBeside) << "once";

    count = 0;
    host::MapLayers inHole = Layers({raster}, host::Box{72.0, 2.0, 78.0, 8.0});
    EXPECT_TRUE(inHole.Remarks().empty());
    inHole.Render(3, 3, {});
    EXPECT_EQ(inHole.Remarks(),
              std::vector<std::string>{path + ": it has no data in the map's extent, so "
                                              "that the map is blank"});
    count = 0;
    host::MapLayers partly = Layers({raster}, host::Box{62.0, 2.0, 78.0, 8.0});
    partly.Render(3, 3, {});
    EXPECT_TRUE(partly.Remarks().empty());
}

}  // namespace
