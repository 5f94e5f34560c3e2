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
using raster_test::Ramp;
using raster_test::Raster;
using raster_test::Stretched;
using raster_test::WriteAndOpen;

using Colours = std::vector<unsigned int>;

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
    const ScratchFolder folder;
    for (const GDALDataType type : {GDT_Byte, GDT_Float32, GDT_Float64}) {
        for (const StretchRow& row : kStretches) {
            SCOPED_TRACE(row.stretch);
            const auto raster =
                WriteAndOpen(folder, {101, {Ramp(0, 100)}, type}, Stretched(row.stretch));
            const auto part = raster->Part({20, 0, 30, 1});
            for (GdalRaster* told : {raster.get(), part.get()}) {
                double black = -1.0;
                double white = -1.0;
                EXPECT_TRUE(told->GetRasterBand(0)->ComputeMinMax(&black, &white, true));
                EXPECT_NEAR(black, row.black, 1e-12);
                EXPECT_NEAR(white, row.white, 1e-12);
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
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(
        folder, {101, {Ramp(0, 100), Ramp(100, 200), Ramp(50, 150)}, GDT_UInt16});
    const host::PixelImage whole = raster->Render(101, 1);
    // All three are 48 / 96 of the way from 2 % to 98 %.
    EXPECT_EQ(Pixel(whole, 50, 0), 0xff808080);
    EXPECT_EQ(Pixel(raster->Part({50, 0, 1, 1})->Render(1, 1), 0, 0), 0xff808080);
    EXPECT_EQ(Pixels(raster->Part({98, 0, 3, 1})->Render(3, 1)), Colours(3, 0xffffffff));
}

TEST(RasterStretch, DrawsFinishedColoursAsTheyAre) {
    const ScratchFolder folder;
    Raster raster{3, {{200, 210, 220}, {100, 101, 102}, {7, 7, 9}}};
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(3, 1)),
              (Colours{0xffc86407, 0xffd26507, 0xffdc6609}));
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster, Stretched("minmax"))->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
    raster.type = GDT_UInt16;
    raster.options = {"PHOTOMETRIC=RGB"};
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
    raster.type = GDT_Byte;
    raster.options = {"PHOTOMETRIC=MINISBLACK"};
    EXPECT_EQ(Pixels(WriteAndOpen(folder, raster)->Render(3, 1)),
              (Colours{0xff000000, 0xff808000, 0xffffffff}));
}

TEST(RasterStretch, OfALargeRasterIsSampledTheSameAtEverySize) {
    const ScratchFolder folder;
    const std::string path = folder.Path("large.tif");
    {
        const Dataset dataset = raster_test::Create(path, 9000, 3000, 1, GDT_UInt16);
        std::vector<std::uint16_t> line(9000);
        for (std::size_t x = 0; x < line.size(); ++x) {
            line[x] = static_cast<std::uint16_t>(x);
        }
        for (int y = 0; y < 3000; ++y) {
            ASSERT_EQ(
                dataset->GetRasterBand(1)->RasterIO(GF_Write, 0, y, 9000, 1, line.data(),
                                                    9000, 1, GDT_UInt16, 0, 0, nullptr),
                CE_None);
        }
    }
    for (const auto& [stretch, black, white] :
         {std::tuple{"minmax", 0.0, 8999.0},
          {"percent 10 90", 900.0, 8100.0},
          {"stddev 1", 4500.0 - 9000.0 / std::sqrt(12.0),
           4500.0 + 9000.0 / std::sqrt(12.0)}}) {
        SCOPED_TRACE(stretch);
        double told[2][2] = {};
        for (int i = 0; i < 2; ++i) {
            const auto raster = Open(path, Stretched(stretch));
            raster->Render(i == 0 ? 9 : 500, 1);
            EXPECT_TRUE(
                raster->GetRasterBand(0)->ComputeMinMax(&told[i][0], &told[i][1], true));
            EXPECT_NEAR(told[i][0], black, 5.0);
            EXPECT_NEAR(told[i][1], white, 5.0);
        }
        EXPECT_EQ(told[0][0], told[1][0]);
        EXPECT_EQ(told[0][1], told[1][1]);
    }
}

TEST(RasterStretch, ReachesEverywhereWhereSquaresLeaveTheDoubles) {
    const ScratchFolder folder;
    const auto raster = WriteAndOpen(folder, {3, {{-1.7e308, 0, 1.7e308}}, GDT_Float64},
                                     Stretched("stddev 1"));
    EXPECT_EQ(Pixels(raster->Render(3, 1)),
              (Colours{0xff000000, 0xff808080, 0xffffffff}));
}

TEST(RasterBands, AreThoseChosen) {
    const ScratchFolder folder;
    const Raster raster{
        2, {{0, 9}, {10, 0}, {0, 30}, {7, 40}}, GDT_UInt16, {}, {"ALPHA=NO"}};
    RasterStyle style;
    style.bands = {3, 2, 2};
    const auto colours = WriteAndOpen(folder, raster, style);
    EXPECT_EQ(colours->GetDisplayType(), DisplayRGB);
    EXPECT_EQ(colours->GetRedBandNum(), 2);
    EXPECT_EQ(colours->GetGreenBandNum(), 1);
    EXPECT_EQ(colours->GetBlueBandNum(), 1);
    EXPECT_EQ(Pixels(colours->Render(2, 1)), (Colours{0xff00ffff, 0xffff0000}));

    style.bands = {4};
    const auto grey = WriteAndOpen(folder, raster, style);
    EXPECT_EQ(grey->GetDisplayType(), DisplayGray);
    EXPECT_EQ(Pixels(grey->Render(2, 1)), (Colours{0xff000000, 0xffffffff}));
    double black = 0.0;
    double white = 0.0;
    // The band that a legend asks for is the one that is shown.
    EXPECT_TRUE(grey->GetRasterBand(0)->ComputeMinMax(&black, &white, true));
    EXPECT_EQ(black, 7.0);
    EXPECT_EQ(white, 40.0);
}

TEST(RasterBands, ThatThereAreNotAreRefusedButOfOneBandNoneIsChosen) {
    const ScratchFolder folder;
    const std::string path = folder.Path("two.tif");
    raster_test::Write(path, {1, {{1}, {2}}});
    RasterStyle style;
    style.bands = {1, 2, 3};
    std::string why;
    EXPECT_EQ(GdalRaster::Open(path, why, style), nullptr);
    EXPECT_EQ(why, "has no band 3 (it has 2)");
    EXPECT_EQ(WriteAndOpen(folder, {1, {{1}}}, style)->GetDisplayType(), DisplayGray);
}

struct NoDataRow {
    const char* noData;
    Colours drawn;
};

// The file says that 9 is no data.
const NoDataRow kNoData[] = {
    {"", {0xff000000, 0xff222222, 0, 0xffffffff}},   // 5 / 38 of 255 is 33.6
    {"0", {0, 0xff000000, 0xff1f1f1f, 0xffffffff}},  // 4 / 33 of 255 is 30.9
    {"none", {0xff000000, 0xff222222, 0xff3c3c3c, 0xffffffff}},
};

TEST(RasterNoData, IsTheUsersElseTheFiles) {
    const ScratchFolder folder;
    for (const NoDataRow& row : kNoData) {
        for (const GDALDataType type : {GDT_Byte, GDT_Float32}) {
            Raster raster{4, {{0, 5, 9, 38}}, type};
            raster.noData = 9;
            RasterStyle style;
            ASSERT_TRUE(style.ParseNoData(row.noData));
            EXPECT_EQ(Pixels(WriteAndOpen(folder, raster, style)->Render(4, 1)),
                      row.drawn)
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
        const Dataset dataset(GDALDataset::Open(path.c_str(), GDAL_OF_UPDATE),
                              [](GDALDataset* opened) { GDALClose(opened); });
        int factor = 4;
        ASSERT_EQ(
            dataset->BuildOverviews("NEAREST", 1, &factor, 0, nullptr, nullptr, nullptr),
            CE_None);
    }
    EXPECT_EQ(Pixels(Open(path, style)->Render(1, 2)), (Colours{0, 0xff808080}));

    Raster classes{3, {{4, 5, 6}}};
    classes.describe = [](GDALDataset& dataset) {
        GDALColorTable palette;
        for (const short value : std::array<short, 3>{4, 5, 6}) {
            const GDALColorEntry entry{value, value, value, 255};
            palette.SetColorEntry(value, &entry);
        }
        dataset.GetRasterBand(1)->SetColorTable(&palette);
    };
    const auto classified = WriteAndOpen(folder, classes, style);
    EXPECT_EQ(Pixels(classified->Render(3, 1)), (Colours{0xff040404, 0, 0xff060606}));
    EXPECT_EQ(classified->GetClassifyDisplayTable()->GetClassesCount(), 2);
}

TEST(RasterNorthUp, ShowsThePixelsWhereTheyAre) {
    const ScratchFolder folder;
    // Rows run from north to south here, and columns from west to east: a quarter turn.
    Raster raster{2, {{10, 20, 30, 40, 50, 60}}};
    raster.describe = [](GDALDataset& dataset) {
        std::array<double, 6> place{100.0, 0.0, 10.0, 500.0, -10.0, 0.0};
        dataset.SetGeoTransform(place.data());
    };
    const auto turned = WriteAndOpen(folder, raster, Stretched("none"))->NorthUp();
    EXPECT_EQ(turned->Width(), 3);
    EXPECT_EQ(turned->Height(), 2);
    EXPECT_EQ(turned->GeoTransform(), (std::array<double, 6>{100, 10, 0, 500, 0, -10}));
    EXPECT_EQ(Pixels(turned->Render(3, 2)),
              (Colours{0xff0a0a0a, 0xff1e1e1e, 0xff323232, 0xff141414, 0xff282828,
                       0xff3c3c3c}));
}

TEST(RasterNorthUp, IsTransparentBesideTheRasterAndKeepsItsShades) {
    const ScratchFolder folder;
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
        raster.describe = [](GDALDataset& dataset) {
            std::array<double, 6> place{0.0, 5.0, 5.0, 0.0, 5.0, -5.0};  // on its corner
            dataset.SetGeoTransform(place.data());
        };
        const auto turned = WriteAndOpen(folder, raster)->NorthUp();
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
