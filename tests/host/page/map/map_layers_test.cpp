#include "page/map/map_layers.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "page/made_raster.h"
#include "scratch_folder.h"

namespace {

constexpr unsigned kRed = 0xFFFF0000;
constexpr unsigned kGreen = 0xFF00FF00;
constexpr unsigned kBlue = 0xFF0000FF;
constexpr unsigned kYellow = 0xFFFFFF00;
constexpr unsigned kNothing = 0;

/// 8 x 8 pixels of 10 m, from a north-west corner.
MadeRaster Square(double west, double north, unsigned argb,
                  const std::string& projection = "EPSG:32725") {
    MadeRaster raster;
    raster.transform = {west, 10.0, 0.0, north, 0.0, -10.0};
    raster.projection = projection;
    raster.argb = raster.cornerArgb = argb;
    return raster;
}

/// Alpha on top; nothing where it is transparent.
unsigned At(const host::PixelImage& image, int x, int y) {
    const std::uint8_t* pixel =
        image.bgra.data() + 4 * (static_cast<std::size_t>(y * image.width + x));
    if (pixel[3] == 0) {
        return kNothing;
    }
    return static_cast<unsigned>(pixel[3]) << 24 | static_cast<unsigned>(pixel[2]) << 16 |
           static_cast<unsigned>(pixel[1]) << 8 | pixel[0];
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
            std::string why;
            rasters.emplace_back(host::GdalRaster::Open(path, why));
            EXPECT_NE(rasters.back(), nullptr) << why;
        }
        return host::MapLayers(std::move(rasters), extent);
    }

    ScratchFolder folder;
    int count = 0;
};

void ExpectExtent(const host::Box& extent, double left, double bottom, double right,
                  double top) {
    EXPECT_DOUBLE_EQ(extent.left, left);
    EXPECT_DOUBLE_EQ(extent.bottom, bottom);
    EXPECT_DOUBLE_EQ(extent.right, right);
    EXPECT_DOUBLE_EQ(extent.top, top);
}

TEST_F(MapLayers, NeedARaster) { EXPECT_THROW(Layers({}), std::invalid_argument); }

TEST_F(MapLayers, SpanTheOnlyRaster) {
    MadeRaster raster = Square(1000.0, 2000.0, kRed);
    raster.transform[5] = -20.0;
    const host::MapLayers map = Layers({raster});
    ExpectExtent(map.Extent(), 1000.0, 1840.0, 1080.0, 2000.0);
    EXPECT_DOUBLE_EQ(map.AspectRatio(), 0.5);
}

TEST_F(MapLayers, ShowTheFirstRasterOnTop) {
    const MadeRaster red = Square(0.0, 80.0, kRed);
    const MadeRaster green = Square(40.0, 80.0, kGreen);
    for (const bool redFirst : {true, false}) {
        host::MapLayers map = redFirst ? Layers({red, green}) : Layers({green, red});
        ExpectExtent(map.Extent(), 0.0, 0.0, 120.0, 80.0);
        const host::PixelImage image = map.Render(60, 40, {});
        EXPECT_EQ(At(image, 10, 20), kRed);
        EXPECT_EQ(At(image, 30, 20), redFirst ? kRed : kGreen);
        EXPECT_EQ(At(image, 50, 20), kGreen);
    }
}

TEST_F(MapLayers, ShowWhatLiesUnderAHole) {
    MadeRaster red = Square(0.0, 80.0, kRed);
    red.hole = true;  // from (70, 10) to (80, 0)
    host::MapLayers map = Layers({red, Square(0.0, 80.0, kGreen)});
    const host::PixelImage image = map.Render(8, 8, {});
    EXPECT_EQ(At(image, 6, 7), kRed);
    EXPECT_EQ(At(image, 7, 7), kGreen);
}

TEST_F(MapLayers, MeetWithoutAGap) {
    host::MapLayers map = Layers({Square(0.0, 80.0, kRed), Square(80.0, 80.0, kGreen)});
    for (const int width : {7, 8, 33, 101}) {
        const host::PixelImage image = map.Render(width, 5, {});
        for (int x = 0; x < width; ++x) {
            EXPECT_NE(At(image, x, 2), kNothing) << x << " of " << width;
        }
    }
}

TEST_F(MapLayers, LeaveWhatNothingCoversTransparent) {
    host::MapLayers map = Layers({Square(0.0, 80.0, kRed), Square(160.0, -80.0, kGreen)});
    ExpectExtent(map.Extent(), 0.0, -160.0, 240.0, 80.0);
    const host::PixelImage image = map.Render(30, 30, {});
    EXPECT_EQ(At(image, 5, 5), kRed);
    EXPECT_EQ(At(image, 25, 25), kGreen);
    EXPECT_EQ(At(image, 15, 15), kNothing);
}

TEST_F(MapLayers, CutOffASliverThatStandsOut) {
    MadeRaster wider = Square(0.0, 80.0, kGreen);
    wider.transform[1] = 10.09;  // 0.9 % wider than the first
    host::MapLayers cut = Layers({Square(0.0, 80.0, kRed), wider});
    ExpectExtent(cut.Extent(), 0.0, 0.0, 80.0, 80.0);
    EXPECT_EQ(At(cut.Render(800, 80, {}), 799, 40), kRed);

    wider.transform[1] = 10.2;  // 2 %
    host::MapLayers kept = Layers({Square(0.0, 80.0, kRed), wider});
    EXPECT_DOUBLE_EQ(kept.Extent().right, 81.6);
    EXPECT_EQ(At(kept.Render(816, 80, {}), 810, 40), kGreen);
}

TEST_F(MapLayers, StandNorthUp) {
    // The first pixel of the first row lies at the corner that the signs say.
    struct Row {
        double pixelWidth;
        double pixelHeight;
        int x;
        int y;
    };
    for (const Row& row : {Row{10.0, -10.0, 0, 0}, Row{-10.0, -10.0, 7, 0},
                           Row{10.0, 10.0, 0, 7}, Row{-10.0, 10.0, 7, 7}}) {
        MadeRaster raster = Square(0.0, 0.0, kRed);
        raster.cornerArgb = kBlue;
        raster.transform[1] = row.pixelWidth;
        raster.transform[5] = row.pixelHeight;
        host::MapLayers map = Layers({raster});
        EXPECT_DOUBLE_EQ(map.AspectRatio(), 1.0);
        const host::PixelImage image = map.Render(8, 8, {});
        int blue = 0;
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                blue += At(image, x, y) == kBlue ? 1 : 0;
            }
        }
        EXPECT_EQ(blue, 1);
        EXPECT_EQ(At(image, row.x, row.y), kBlue) << row.pixelWidth << row.pixelHeight;
    }
}

TEST_F(MapLayers, ShowARasterWithoutGeoreferenceAsItIsStored) {
    MadeRaster raster;
    raster.width = 8;
    raster.height = 4;
    host::MapLayers map = Layers({raster});
    ExpectExtent(map.Extent(), 0.0, 0.0, 8.0, 4.0);
    EXPECT_EQ(At(map.Render(8, 4, {}), 0, 0), kBlue);
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
    MadeRaster plain = Square(0.0, 0.0, kYellow);
    plain.transform = {};
    plain.projection.clear();
    MadeRaster turned = first;
    turned.transform = {300000.0, 7.0, 7.0, 9000000.0, 7.0, -7.0};
    const MadeRaster unknown = Square(300000.0, 9000000.0, kGreen, "");
    const MadeRaster other = Square(300000.0, 9000000.0, kGreen, "EPSG:32724");

    struct Row {
        MadeRaster first;
        MadeRaster second;
        std::string why;
    };
    const Row rows[] = {
        {first, first, ""},
        {unknown, unknown, ""},
        {first, other, "its coordinate system is not that of the first raster"},
        {first, unknown, "its coordinate system is not that of the first raster"},
        {first, plain, "it has no georeference"},
        {first, turned, ""},
        {plain, first, "the first raster has no georeference to place it by"},
        {plain, plain, "the first raster has no georeference to place it by"},
        {turned, first, ""},
    };
    for (const Row& row : rows) {
        host::MapLayers map = Layers({row.first, row.second});
        const std::string second = folder.Path("raster" + std::to_string(count - 1));
        EXPECT_EQ(map.Remarks(),
                  row.why.empty() ? std::vector<std::string>()
                                  : std::vector<std::string>{
                                        second + ".tif: left off the map: " + row.why});
        EXPECT_EQ(map.Rasters().size(), row.why.empty() ? 2U : 1U);
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

/// The square from (0, 0) to (80, 80), stored from any of its corners, where it is red.
MadeRaster Cornered(double xStep, double yStep) {
    MadeRaster raster =
        Square(xStep > 0.0 ? 0.0 : 80.0, yStep < 0.0 ? 80.0 : 0.0, kGreen);
    raster.transform[1] = xStep;
    raster.transform[5] = yStep;
    raster.cornerArgb = kRed;
    return raster;
}

TEST_F(MapLayers, ShowTheExtentAskedFor) {
    const struct {
        MadeRaster raster;
        host::Box extent;  ///< 4 x 4 pixels, of which 3 x 3 lie on the raster
        int redX;          ///< where the corner pixel is then
        int redY;
    } rows[] = {
        {Cornered(10.0, -10.0), {-10.0, 50.0, 30.0, 90.0}, 1, 1},
        {Cornered(-10.0, -10.0), {50.0, 50.0, 90.0, 90.0}, 2, 1},
        {Cornered(10.0, 10.0), {-10.0, -10.0, 30.0, 30.0}, 1, 2},
    };
    for (const auto& row : rows) {
        host::MapLayers map = Layers({row.raster}, row.extent);
        ExpectExtent(map.Extent(), row.extent.left, row.extent.bottom, row.extent.right,
                     row.extent.top);
        const host::PixelImage image = map.Render(4, 4, {});
        EXPECT_EQ(At(image, row.redX, row.redY), kRed);
        int red = 0, green = 0, nothing = 0;
        for (int i = 0; i < 16; ++i) {
            const unsigned argb = At(image, i % 4, i / 4);
            red += argb == kRed ? 1 : 0;
            green += argb == kGreen ? 1 : 0;
            nothing += argb == kNothing ? 1 : 0;
        }
        EXPECT_EQ(red, 1);
        EXPECT_EQ(nothing, 7);
        EXPECT_EQ(green, 8);
    }
}

TEST_F(MapLayers, ShowAnExtentInsideOnePixelAndOneBesideEverything) {
    host::MapLayers inside =
        Layers({Cornered(10.0, -10.0)}, host::Box{2.0, 73.0, 4.0, 75.0});
    const host::PixelImage image = inside.Render(3, 3, {});
    EXPECT_EQ(At(image, 0, 0), kRed);
    EXPECT_EQ(At(image, 2, 2), kRed);
    host::MapLayers beside =
        Layers({Cornered(10.0, -10.0)}, host::Box{500.0, 500.0, 600.0, 600.0});
    EXPECT_EQ(At(beside.Render(3, 3, {}), 1, 1), kNothing);
    host::MapLayers tiny =
        Layers({Cornered(10.0, -10.0)}, host::Box{2.0, 73.0, 2.0 + 1e-9, 73.0 + 1e-9});
    EXPECT_THROW(tiny.Render(30, 30, {}), std::runtime_error) << "picture too large";
}

TEST_F(MapLayers, ShowAnExtentOfSeveralRasters) {
    host::MapLayers map = Layers({Square(0.0, 80.0, kRed), Square(80.0, 80.0, kBlue)},
                                 host::Box{60.0, 0.0, 100.0, 40.0});
    const host::PixelImage image = map.Render(4, 4, {});
    EXPECT_EQ(At(image, 1, 2), kRed);
    EXPECT_EQ(At(image, 2, 2), kBlue);
}

TEST_F(MapLayers, ShowAllOfARasterAsStored) {
    MadeRaster raster;
    raster.argb = raster.cornerArgb = kRed;
    const host::MapLayers map = Layers({raster}, host::Box{1.0, 1.0, 2.0, 2.0});
    ExpectExtent(map.Extent(), 0.0, 0.0, 8.0, 8.0);
}

TEST_F(MapLayers, ShowATurnedRasterNorthUp) {
    // Its columns run to the south and its rows to the west, from the north-east corner.
    MadeRaster raster = Square(0.0, 0.0, kGreen);
    raster.width = 4;
    raster.transform = {80.0, 0.0, -10.0, 80.0, -10.0, 0.0};
    raster.cornerArgb = kRed;
    host::MapLayers map = Layers({raster});
    EXPECT_TRUE(map.IsPlaced());
    EXPECT_TRUE(map.Remarks().empty());
    ExpectExtent(map.Extent(), 0.0, 40.0, 80.0, 80.0);
    const host::PixelImage image = map.Render(8, 4, {});
    for (int x = 0; x < 8; ++x) {
        for (int y = 0; y < 4; ++y) {
            EXPECT_EQ(At(image, x, y), x == 7 && y == 0 ? kRed : kGreen) << x << " " << y;
        }
    }
    host::MapLayers again(map.Given(), map.Asked());
    EXPECT_EQ(At(again.Render(8, 4, {}), 7, 0), kRed);
}

TEST_F(MapLayers, TellWhenATurnedRasterCannotBeTurnedBack) {
    MadeRaster raster = Square(0.0, 0.0, kRed);
    raster.transform = {0.0, 1e300, 1e300, 0.0, 1e300, -1e300};
    const host::MapLayers map = Layers({raster});
    EXPECT_FALSE(map.IsPlaced());
    ASSERT_EQ(map.Remarks().size(), 1U);
    EXPECT_EQ(map.Remarks().front().rfind(
                  folder.Path("raster0.tif") +
                      ": shown as it is stored, for it is turned against north: ",
                  0),
              0U)
        << map.Remarks().front();
    count = 0;
    EXPECT_EQ(Layers({raster}, host::Box{1.0, 1.0, 2.0, 2.0}).Remarks().back(),
              folder.Path("raster0.tif") +
                  ": the map's extent is of no use without a georeference, and all of it "
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
