#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "raster_data/make_raster.h"

namespace {

using raster_test::Dataset;
using raster_test::Open;
using raster_test::Pixel;
using raster_test::Pixels;
using raster_test::Ramp;
using raster_test::Raster;
using raster_test::Stretched;
using raster_test::WriteAndOpen;

using Colours = std::vector<unsigned int>;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

unsigned int Grey(unsigned int shade) {
    return 0xff000000U | shade << 16U | shade << 8U | shade;
}

/// Of the values 0 to 100, of which 2 % are 2 and 98 % are 98: black at 2, white at 98,
/// and in between the nearest of 256 shades.
unsigned int ShadeOfRamp(int value) {
    const double shade = (value - 2) * 255.0 / 96.0;
    return static_cast<unsigned int>(std::floor(std::clamp(shade, 0.0, 255.0) + 0.5));
}

TEST(RenderGrey, StretchesFrom2To98PercentWhateverTheType) {
    EXPECT_EQ(ShadeOfRamp(1), 0U);
    EXPECT_EQ(ShadeOfRamp(26), 64U);   // 24 / 96 of 255 is 63.75
    EXPECT_EQ(ShadeOfRamp(50), 128U);  // 127.5
    EXPECT_EQ(ShadeOfRamp(99), 255U);
    const ScratchFolder folder;
    for (const GDALDataType type :
         {GDT_Byte, GDT_UInt16, GDT_Int16, GDT_UInt32, GDT_Int32, GDT_UInt64, GDT_Int64,
          GDT_Float32, GDT_Float64, GDT_CInt16, GDT_CInt32, GDT_CFloat32, GDT_CFloat64}) {
        SCOPED_TRACE(GDALGetDataTypeName(type));
        const auto raster =
            WriteAndOpen(folder, {101, {Ramp(0, 100)}, type}, Stretched("percent 2 98"));
        const host::PixelImage image = raster->Render(101, 1);
        ASSERT_EQ(image.width, 101);
        ASSERT_EQ(image.height, 1);
        for (int value = 0; value <= 100; ++value) {
            EXPECT_EQ(Pixel(image, value, 0), Grey(ShadeOfRamp(value))) << value;
        }
    }
}

struct GreyRow {
    const char* name;
    GDALDataType type;
    std::vector<double> values;
    std::optional<double> noData;
    Colours drawn;
};

const GreyRow kGreys[] = {
    {"one pixel has no contrast", GDT_Byte, {7}, {}, {Grey(128)}},
    {"nor has a constant band", GDT_Float32, {0, 0, 0}, {}, Colours(3, Grey(128))},
    {"two values", GDT_Byte, {9, 10}, {}, {Grey(0), Grey(255)}},
    {"30 % of the way", GDT_Byte, {100, 130, 200}, {}, {Grey(0), Grey(77), Grey(255)}},
    {"downwards", GDT_Int16, {200, 130, -100}, {}, {Grey(255), Grey(196), Grey(0)}},
    {"no-data", GDT_Byte, {0, 100, 130, 200}, 0, {0, Grey(0), Grey(77), Grey(255)}},
    {"all no-data", GDT_Byte, {4, 4}, 4, {0, 0}},
    {"NaN", GDT_Float32, {kNan, 100, 130, 200}, {}, {0, Grey(0), Grey(77), Grey(255)}},
    {"NaN as no-data",
     GDT_Float64,
     {kNan, 100, 130, 200},
     kNan,
     {0, Grey(0), Grey(77), Grey(255)}},
    {"all NaN", GDT_Float32, {kNan, kNan}, {}, {0, 0}},
    {"infinite",
     GDT_Float32,
     {kInfinity, 0, 3, 10, -kInfinity},
     {},
     {0, Grey(0), Grey(77), Grey(255), 0}},
    {"no-data that no float holds",
     GDT_Float64,
     {-1.7976931348623157e308, 0, 3, 10},
     -1.7976931348623157e308,
     {0, Grey(0), Grey(77), Grey(255)}},
    {"as far apart as doubles are",
     GDT_Float64,
     {-1.7e308, 0, 1.7e308},
     {},
     {Grey(0), Grey(128), Grey(255)}},
    {"as near as doubles are",
     GDT_Float64,
     {1e9, 1e9 + 0.375, 1e9 + 1.25},
     {},
     {Grey(0), Grey(77), Grey(255)}},
};

TEST(RenderGrey, DrawsEveryValueAndLeavesOutWhatIsNone) {
    const ScratchFolder folder;
    for (const GreyRow& row : kGreys) {
        SCOPED_TRACE(row.name);
        const int width = static_cast<int>(row.values.size());
        Raster raster{width, {row.values}, row.type};
        raster.noData = row.noData;
        EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(width, 1)), row.drawn);
    }
}

TEST(RenderGrey, AnOutlierDoesNotDarkenTheRest) {
    const ScratchFolder folder;
    std::vector<double> values = Ramp(0, 100);
    values.back() = 60000;
    const auto raster =
        WriteAndOpen(folder, {101, {values}, GDT_UInt16}, Stretched("percent 2 98"));
    EXPECT_EQ(Pixel(raster->Render(101, 1), 50, 0), Grey(128));
}

TEST(RenderGrey, WhereNearlyAllIsOneValueTheRestIsStillSeen) {
    const ScratchFolder folder;
    std::vector<double> values(101, 5.0);
    values[0] = 3;
    values[100] = 13;
    const auto raster = WriteAndOpen(folder, {101, {values}}, Stretched("percent 2 98"));
    const host::PixelImage image = raster->Render(101, 1);
    EXPECT_EQ(Pixel(image, 0, 0), Grey(0));
    EXPECT_EQ(Pixel(image, 50, 0), Grey(51));  // 2 / 10 of 255
    EXPECT_EQ(Pixel(image, 100, 0), Grey(255));
}

TEST(RenderGrey, OfTwoBandsTheFirst) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {3, {{100, 130, 200}, {0, 0, 9}}});
    EXPECT_EQ(Pixels(raster->Render(3, 1)), (Colours{Grey(0), Grey(77), Grey(255)}));
}

TEST(RenderAlpha, IsTheAlphaBands) {
    const ScratchFolder folder;
    Raster grey{4, {{0, 100, 130, 200}, {0, 255, 128, 1}}};
    grey.options = {"ALPHA=YES"};
    EXPECT_EQ(Pixels(WriteAndOpen(folder, grey)->Render(4, 1)),
              (Colours{0, 0xff000000, 0x804d4d4d, 0x01ffffff}));  // 77 is 0x4d

    Raster colour{3, {{0, 10, 3}, {0, 10, 3}, {3, 0, 10}, {255, 128, 0}}};
    colour.options = {"PHOTOMETRIC=RGB", "ALPHA=YES"};
    EXPECT_EQ(Pixels(WriteAndOpen(folder, colour)->Render(3, 1)),
              (Colours{0xff000003, 0x800a0a00, 0}));
}

/// Gives a raster of four pixels a mask: in the file, where it is on or off, or beside
/// it.
void SetMask(GDALDataset& dataset, bool inFile, std::vector<unsigned char> mask) {
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", inFile ? "YES" : "NO");
    ASSERT_EQ(dataset.CreateMaskBand(GMF_PER_DATASET), CE_None);
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", nullptr);
    ASSERT_EQ(dataset.GetRasterBand(1)->GetMaskBand()->RasterIO(
                  GF_Write, 0, 0, 4, 1, mask.data(), 4, 1, GDT_Byte, 0, 0, nullptr),
              CE_None);
}

TEST(RenderAlpha, OfAMaskIsTheMasks) {
    const ScratchFolder folder;
    Raster raster{4, {{0, 100, 130, 200}}};
    raster.describe = [](GDALDataset& dataset) {
        SetMask(dataset, true, {0, 255, 255, 255});
    };
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(4, 1)),
              (Colours{0, Grey(0), Grey(77), Grey(255)}));
    raster.describe = [](GDALDataset& dataset) {
        SetMask(dataset, false, {0, 255, 100, 255});
    };
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(4, 1)),
              (Colours{0, Grey(0), 0x644d4d4d, Grey(255)}));
}

TEST(RenderAlpha, OfClassesIsTheMasksToo) {
    const ScratchFolder folder;
    Raster raster{4, {{1, 1, 1, 1}}};
    raster.describe = [](GDALDataset& dataset) {
        GDALColorTable palette;
        const GDALColorEntry entry{16, 32, 48, 255};
        palette.SetColorEntry(1, &entry);
        dataset.GetRasterBand(1)->SetColorTable(&palette);
        SetMask(dataset, false, {0, 255, 100, 255});
    };
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(4, 1)),
              (Colours{0, 0xff102030, 0x64102030, 0xff102030}));
}

TEST(RenderColour, StretchesEachBandByItself) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(
        folder, {3, {{0, 3, 10}, {200, 130, 100}, {50, 50, 50}}, GDT_UInt16});
    EXPECT_EQ(Pixels(raster->Render(3, 1)),
              (Colours{0xff00ff80, 0xff4d4d80, 0xffff0080}));
}

TEST(RenderColour, TakesTheBandsByTheirColours) {
    const ScratchFolder folder;
    Raster raster{3, {{0, 0, 9}, {0, 9, 0}, {9, 0, 0}, {1, 2, 3}}, GDT_UInt16};
    raster.options = {"PHOTOMETRIC=MINISBLACK", "ALPHA=NO"};
    raster.describe = [](GDALDataset& dataset) {
        dataset.GetRasterBand(1)->SetColorInterpretation(GCI_BlueBand);
        dataset.GetRasterBand(2)->SetColorInterpretation(GCI_GreenBand);
        dataset.GetRasterBand(3)->SetColorInterpretation(GCI_RedBand);
    };
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(3, 1)),
              (Colours{0xffff0000, 0xff00ff00, 0xff0000ff}));
}

TEST(RenderColour, IsTransparentWhereABandHasNoValue) {
    const ScratchFolder folder;
    Raster raster{4, {{7, 0, 3, 10}, {0, 0, 3, 10}, {0, 7, 3, 10}}, GDT_UInt16};
    raster.noData = 7;
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(4, 1)),
              (Colours{0, 0, 0xff000000, 0xffffffff}));
}

TEST(RenderSize, SmallerIsTheMeanOfEachCell) {
    const ScratchFolder folder;
    // Two by two pixels a cell: means 0, 30 and 100, of a raster that goes up to 200.
    const std::vector<double> values = {0, 0, 10, 50, 100, 100,  //
                                        0, 0, 20, 40, 0,   200};
    for (const GDALDataType type : {GDT_Byte, GDT_UInt16, GDT_Float32, GDT_Float64}) {
        const auto raster = WriteAndOpen(folder, {6, {values}, type});
        EXPECT_EQ(Pixels(raster->Render(3, 1)), (Colours{Grey(0), Grey(38), Grey(128)}));
    }
}

TEST(RenderSize, EveryPixelOfTheFileCountsInOneCell) {
    const ScratchFolder folder;
    // Ten pixels in four cells begin at 0, 2, 5, 7: means 0, 30, 50 and 100.
    const auto raster =
        WriteAndOpen(folder, {10, {{0, 0, 0, 0, 90, 40, 60, 100, 0, 200}}});
    EXPECT_EQ(Pixels(raster->Render(4, 1)),
              (Colours{Grey(0), Grey(38), Grey(64), Grey(128)}));
}

TEST(RenderSize, MeansOfBytesAreRounded) {
    const ScratchFolder folder;
    // 29.5 is 30 as a byte, 76.5 + 0.5 of 255; as a float 75.225.
    const std::vector<double> values = {0, 0, 29, 30, 100, 100};
    const auto bytes = WriteAndOpen(folder, {6, {values}});
    EXPECT_EQ(Pixel(bytes->Render(3, 1), 1, 0), Grey(77));
    const auto floats = WriteAndOpen(folder, {6, {values}, GDT_Float32});
    EXPECT_EQ(Pixel(floats->Render(3, 1), 1, 0), Grey(75));
}

TEST(RenderSize, NoDataIsLeftOutOfTheMeanAndThinsTheCell) {
    const ScratchFolder folder;
    // Three of the second cell's four pixels have a value: their mean is 30, and 3 / 4 of
    // 255 is 191.25. Two of the third's: 100, and 127.5. White is 150.
    for (const double none : {255.0, kNan}) {
        Raster raster{6,
                      {{0, 0, none, 50, 50, none,  //
                        0, 0, 20, 20, none, 150}},
                      std::isnan(none) ? GDT_Float32 : GDT_Byte};
        if (!std::isnan(none)) {
            raster.noData = none;
        }
        EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(3, 1)),
                  (Colours{Grey(0), 0xbf333333, 0x80aaaaaa}));
    }
}

TEST(RenderSize, LargerRepeatsThePixels) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {2, {{0, 3, 10, 10}}});
    const unsigned int a = Grey(0), b = Grey(77), c = Grey(255);
    // The centres of five columns over two pixels lie at 0.2, 0.6, 1.0, 1.4 and 1.8.
    EXPECT_EQ(Pixels(raster->Render(5, 4)), (Colours{a, a, b, b, b,  //
                                                     a, a, b, b, b,  //
                                                     c, c, c, c, c,  //
                                                     c, c, c, c, c}));
}

TEST(RenderSize, MayBeLargerOneWayAndSmallerTheOther) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {3, {{0, 3, 10, 0, 3, 10}}});
    EXPECT_EQ(Pixels(raster->Render(6, 1)),
              (Colours{Grey(0), Grey(0), Grey(77), Grey(77), Grey(255), Grey(255)}));
}

TEST(RenderSize, ThatIsNoneOrNoPictureIsRefused) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {1, {{7}}});
    constexpr int kMost = std::numeric_limits<int>::max();
    for (const auto& [width, height] : {std::pair{0, 5},
                                        {5, 0},
                                        {-1, 5},
                                        {5, -kMost - 1},
                                        {kMost, kMost},
                                        {kMost, 1000}}) {
        EXPECT_THROW(raster->Render(width, height), std::runtime_error) << width;
    }
}

TEST(RenderOverviews, TheSmallestThatIsLargeEnoughIsRead) {
    const ScratchFolder folder;
    const std::string path = folder.Path("overviews.tif");
    {
        const Dataset dataset = raster_test::Create(path, 64, 64, 3, GDT_Byte);
        int factors[] = {2, 4};
        ASSERT_EQ(
            dataset->BuildOverviews("NEAREST", 2, factors, 0, nullptr, nullptr, nullptr),
            CE_None);
        // Each level has a spot of its own, so that the picture tells which was read.
        for (int band = 1; band <= 3; ++band) {
            for (int level = -1; level < 2; ++level) {
                GDALRasterBand* at = dataset->GetRasterBand(band);
                at = level < 0 ? at : at->GetOverview(level);
                const int half = at->GetXSize() / 2;
                std::vector<unsigned char> spot(static_cast<std::size_t>(half * half),
                                                200);
                ASSERT_EQ(at->RasterIO(GF_Write, level == 0 ? half : 0,
                                       level == 1 ? half : 0, half, half, spot.data(),
                                       half, half, GDT_Byte, 0, 0, nullptr),
                          CE_None);
            }
        }
    }
    const auto raster = Open(path);
    const unsigned int spot = 0xffc8c8c8, ground = 0xff000000;
    // The raster's spot is top left, the large overview's top right, the small one's
    // bottom left.
    EXPECT_EQ(Pixels(raster->Render(2, 2)), (Colours{ground, ground, spot, ground}));
    EXPECT_EQ(Pixel(raster->Render(16, 16), 0, 15), spot);
    EXPECT_EQ(Pixel(raster->Render(17, 16), 0, 15), ground);
    EXPECT_EQ(Pixel(raster->Render(17, 16), 16, 0), spot);
    EXPECT_EQ(Pixel(raster->Render(32, 32), 31, 0), spot);
    EXPECT_EQ(Pixel(raster->Render(32, 33), 0, 0), spot);
    EXPECT_EQ(Pixel(raster->Render(100, 100), 0, 0), spot);
}

TEST(RenderProgress, GrowsToOne) {
    const ScratchFolder folder;
    std::vector<double> values(2000 * 2000);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = static_cast<double>(i % 100);
    }
    const auto raster = WriteAndOpen(folder, {2000, {values}});
    std::vector<double> told;
    raster->Render(200, 100, [&](double done) {
        told.push_back(done);
        return true;
    });
    ASSERT_GT(told.size(), 1U);
    EXPECT_GT(told.front(), 0.0);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 1.0);
}

TEST(RenderProgress, StopsWhenToldTo) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {3, {{0, 3, 10}}});
    try {
        raster->Render(3, 1, [](double) { return false; });
        FAIL() << "not stopped";
    } catch (const std::runtime_error& e) {
        EXPECT_STREQ(e.what(), "stopped");
    }
    EXPECT_EQ(Pixels(raster->Render(3, 1)), (Colours{Grey(0), Grey(77), Grey(255)}));
}

}  // namespace
