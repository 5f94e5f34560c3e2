#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "raster_data/make_raster.h"

namespace {

using host::GdalRaster;
using host::RasterStyle;
using raster_test::Dataset;
using raster_test::Open;
using raster_test::Pixel;
using raster_test::Pixels;
using raster_test::Placed;
using raster_test::Ramp;
using raster_test::RangeOf;
using raster_test::Raster;
using raster_test::Stretched;
using raster_test::WriteAndOpen;

using raster_test::Colours;

struct StretchRow {
    const char* stretch;
    double black;
    double white;
};

// Of 0 to 100, each once: the mean is 50, the variance (101 * 101 - 1) / 12 = 850.
const StretchRow kStretches[] = {
    {"auto", 0.0, 100.0},
    {"none", 0.0, 255.0},
    {"minmax", 0.0, 100.0},
    {"percent 2 98", 2.0, 98.0},
    {"percent 10 70", 10.0, 70.0},
    {"percent 0 100", 0.0, 100.0},
    {"stddev 1", 50.0 - std::sqrt(850.0), 50.0 + std::sqrt(850.0)},
    {"stddev 0.5", 50.0 - std::sqrt(850.0) / 2.0, 50.0 + std::sqrt(850.0) / 2.0},
    {"stddev 9", 0.0, 100.0},
};

unsigned int ShadeOf(double value, const StretchRow& row) {
    const double part = (value - row.black) / (row.white - row.black);
    return static_cast<unsigned int>(std::lround(255.0 * std::clamp(part, 0.0, 1.0)));
}

TEST(RasterStretch, IsWhatTheLegendSaysAndOneForEveryPart) {
    for (const GDALDataType type :
         {GDT_Byte, GDT_UInt16, GDT_Int16, GDT_UInt32, GDT_Int32, GDT_UInt64, GDT_Int64,
          GDT_Float32, GDT_Float64, GDT_CInt16, GDT_CInt32, GDT_CFloat32, GDT_CFloat64}) {
        for (const StretchRow& row : kStretches) {
            SCOPED_TRACE(std::string(GDALGetDataTypeName(type)) + " " + row.stretch);
            const auto raster =
                WriteAndOpen({101, {Ramp(0, 100)}, type}, Stretched(row.stretch));
            const auto part = raster->Part({20, 0, 30, 1});
            for (GdalRaster* told : {raster.get(), part.get()}) {
                const auto range = RangeOf(*told);
                EXPECT_NEAR(range->first, row.black, 1e-12);
                EXPECT_NEAR(range->second, row.white, 1e-12);
            }
            const host::PixelImage whole = raster->Render(101, 1);
            const host::PixelImage drawnPart = part->Render(60, 2);
            for (int value = 0; value <= 100; ++value) {
                EXPECT_EQ(Pixel(whole, value, 0) & 0xFFU, ShadeOf(value, row)) << value;
            }
            for (int x = 0; x < 60; ++x) {
                EXPECT_EQ(Pixel(drawnPart, x, 1) & 0xFFU, ShadeOf(20 + x / 2, row)) << x;
            }
        }
    }
}

TEST(RasterStretch, OfEachBandIsTheSameForEveryPart) {
    const auto raster =
        WriteAndOpen({101, {Ramp(0, 100), Ramp(100, 200), Ramp(50, 150)}, GDT_UInt16});
    const host::PixelImage whole = raster->Render(101, 1);
    // All three are 48 / 96 of the way from 2 % to 98 %.
    EXPECT_EQ(Pixel(whole, 50, 0), 0xff808080);
    EXPECT_EQ(Pixel(raster->Part({50, 0, 1, 1})->Render(1, 1), 0, 0), 0xff808080);
    EXPECT_EQ(Pixels(raster->Part({98, 0, 3, 1})->Render(3, 1)), Colours(3, 0xffffffff));
}

TEST(RasterStretch, DrawsFinishedColoursAsTheyAre) {
    Raster raster{3, {{200, 210, 220}, {100, 101, 102}, {7, 7, 9}}};
    EXPECT_EQ(Pixels(WriteAndOpen(raster)->Render(3, 1)),
              (Colours{0xffc86407, 0xffd26507, 0xffdc6609}));
    EXPECT_EQ(Pixels(WriteAndOpen(raster, Stretched("minmax"))->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
    raster.type = GDT_UInt16;
    raster.options = {"PHOTOMETRIC=RGB"};
    EXPECT_EQ(Pixels(WriteAndOpen(raster)->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
    raster.type = GDT_Byte;
    raster.options = {"PHOTOMETRIC=MINISBLACK"};
    EXPECT_EQ(Pixels(WriteAndOpen(raster)->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
}

TEST(RasterStretch, OfALargeRasterIsSampledTheSameAtEverySize) {
    const ScratchFolder folder;
    const std::string path = folder.Path("large.tif");
    {
        const Dataset dataset = raster_test::Create(path, 9000, 3000, 1, GDT_UInt16);
        for (int y = 0; y < 3000; ++y) {
            raster_test::Set(*dataset->GetRasterBand(1), 0, y, 9000, 1, Ramp(0, 8999));
        }
    }
    for (const auto& [stretch, black, white] :
         {std::tuple{"minmax", 0.0, 8999.0},
          {"percent 10 90", 900.0, 8100.0},
          {"stddev 1", 4500.0 - 9000.0 / std::sqrt(12.0),
           4500.0 + 9000.0 / std::sqrt(12.0)}}) {
        SCOPED_TRACE(stretch);
        const auto small = Open(path, Stretched(stretch));
        small->Render(9, 1);
        const auto range = RangeOf(*small);
        EXPECT_NEAR(range->first, black, 5.0);
        EXPECT_NEAR(range->second, white, 5.0);
        const auto large = Open(path, Stretched(stretch));
        large->Render(500, 1);
        EXPECT_EQ(RangeOf(*large), range);
    }
}

TEST(RasterStretch, ReachesEverywhereWhereSquaresLeaveTheDoubles) {
    const auto raster =
        WriteAndOpen({3, {{-1.7e308, 0, 1.7e308}}, GDT_Float64}, Stretched("stddev 1"));
    EXPECT_EQ(Pixels(raster->Render(3, 1)),
              (Colours{0xff000000, 0xff808080, 0xffffffff}));
}

TEST(RasterBands, AreThoseChosen) {
    const Raster raster{
        2, {{0, 9}, {10, 0}, {0, 30}, {7, 40}}, GDT_UInt16, {}, {"ALPHA=NO"}};
    RasterStyle style;
    style.bands = {3, 2, 2};
    const auto colours = WriteAndOpen(raster, style);
    EXPECT_EQ(colours->GetDisplayType(), DisplayRGB);
    EXPECT_EQ(colours->GetRedBandNum(), 2);
    EXPECT_EQ(colours->GetGreenBandNum(), 1);
    EXPECT_EQ(colours->GetBlueBandNum(), 1);
    EXPECT_EQ(Pixels(colours->Render(2, 1)), (Colours{0xff00ffff, 0xffff0000}));

    style.bands = {4};
    const auto grey = WriteAndOpen(raster, style);
    EXPECT_EQ(grey->GetDisplayType(), DisplayGray);
    EXPECT_EQ(Pixels(grey->Render(2, 1)), (Colours{0xff000000, 0xffffffff}));
    // The band that a legend asks for is the one that is shown.
    EXPECT_EQ(RangeOf(*grey), std::pair(7.0, 40.0));
}

TEST(RasterBands, AreNotChosenWhereThereIsOne) {
    RasterStyle style;
    style.bands = {1, 2, 3};
    EXPECT_EQ(WriteAndOpen({1, {{1}}}, style)->GetDisplayType(), DisplayGray);
}

// The file says that 9 is no data.
const struct {
    const char* noData;
    Colours drawn;
} kNoData[] = {
    {"", {0xff000000, 0xff222222, 0, 0xffffffff}},   // 5 / 38 of 255 is 33.6
    {"0", {0, 0xff000000, 0xff1f1f1f, 0xffffffff}},  // 4 / 33 of 255 is 30.9
    {"none", {0xff000000, 0xff222222, 0xff3c3c3c, 0xffffffff}},
};

TEST(RasterNoData, IsTheUsersElseTheFiles) {
    for (const auto& row : kNoData) {
        for (const GDALDataType type : {GDT_Byte, GDT_Float32}) {
            Raster raster{4, {{0, 5, 9, 38}}, type};
            raster.noData = 9;
            RasterStyle style;
            ASSERT_TRUE(style.ParseNoData(row.noData));
            EXPECT_EQ(Pixels(WriteAndOpen(raster, style)->Render(4, 1)), row.drawn)
                << row.noData;
        }
    }
}

TEST(RasterNoData, IsTheUsersInOverviewsAndOfClasses) {
    const ScratchFolder folder;
    RasterStyle style;
    style.noData = 5;
    const std::string path = folder.Path("overviews.tif");
    {
        std::vector<double> values(64 * 64, 5.0);
        values.resize(64 * 128, 7.0);
        raster_test::Write(path, {64, {values}});
        raster_test::AddOverviews(
            *raster_test::Owned(GDALDataset::Open(path.c_str(), GDAL_OF_UPDATE)), {4});
    }
    EXPECT_EQ(Pixels(Open(path, style)->Render(1, 2)), (Colours{0, 0xff808080}));

    Raster classes{3, {{4, 5, 6}}};
    classes.describe = raster_test::Coloured(
        {{4, {4, 4, 4, 255}}, {5, {5, 5, 5, 255}}, {6, {6, 6, 6, 255}}});
    const auto classified = WriteAndOpen(classes, style);
    EXPECT_EQ(Pixels(classified->Render(3, 1)), (Colours{0xff040404, 0, 0xff060606}));
    EXPECT_EQ(classified->GetClassifyDisplayTable()->GetClassesCount(), 2);
}

TEST(RasterNorthUp, ShowsThePixelsWhereTheyAre) {
    // Rows run from north to south here, and columns from west to east: a quarter turn.
    const Raster raster = raster_test::With(
        {2, {{10, 20, 30, 40, 50, 60}}}, Placed({100.0, 0.0, 10.0, 500.0, -10.0, 0.0}));
    const auto turned = WriteAndOpen(raster, Stretched("none"))->NorthUp();
    EXPECT_EQ(turned->Width(), 3);
    EXPECT_EQ(turned->Height(), 2);
    EXPECT_EQ(turned->GeoTransform(), (std::array<double, 6>{100, 10, 0, 500, 0, -10}));
    EXPECT_EQ(Pixels(turned->Render(3, 2)),
              (Colours{0xff0a0a0a, 0xff1e1e1e, 0xff323232, 0xff141414, 0xff282828,
                       0xff3c3c3c}));
}

TEST(RasterNorthUp, IsTransparentBesideTheRasterAndKeepsItsShades) {
    for (const auto& [type, noData] : {std::pair(GDT_Byte, std::optional<double>()),
                                       {GDT_Byte, 255.0},
                                       {GDT_UInt16, {}},
                                       {GDT_Int16, {}},
                                       {GDT_Int16, -9999.0},
                                       {GDT_Float32, {}},
                                       {GDT_Float32, -9999.0}}) {
        SCOPED_TRACE(GDALGetDataTypeName(type));
        Raster raster{10, {std::vector<double>(100, 50.0)}, type};
        raster.noData = noData;
        raster.bands[0][0] = noData.value_or(0.0);
        raster.bands[0][1] = 0.0;
        raster.bands[0][99] = 100.0;
        raster.describe = Placed({0.0, 5.0, 5.0, 0.0, 5.0, -5.0});  // on its corner
        const auto turned = WriteAndOpen(raster)->NorthUp();
        EXPECT_EQ(turned->GetDisplayType(), DisplayGray);
        const host::PixelImage image = turned->Render(turned->Width(), turned->Height());
        const int right = image.width - 1;
        const int bottom = image.height - 1;
        EXPECT_EQ(Pixel(image, 0, 0), 0U);
        EXPECT_EQ(Pixel(image, right, bottom), 0U);
        EXPECT_EQ(Pixel(image, right / 2, bottom / 2), 0xff808080);
    }
}

}  // namespace
