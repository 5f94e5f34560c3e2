#include "raster_data/gdal_raster.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "element/no_numbers.h"
#include "raster_data/make_raster.h"

namespace {

using raster_test::Dataset;
using raster_test::Open;
using raster_test::Placed;
using raster_test::Ramp;
using raster_test::RangeOf;
using raster_test::Raster;
using raster_test::With;
using raster_test::WriteAndOpen;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

/// Why a path does not open; fails the test when it does.
std::string WhyNot(const std::string& path) {
    std::string why;
    EXPECT_EQ(host::GdalRaster::Open(path, why), nullptr) << path;
    return why;
}

TEST(GdalRasterOpen, SaysInAFewWordsWhyItCannot) {
    const ScratchFolder folder;
    testing::internal::CaptureStderr();
    EXPECT_EQ(WhyNot(folder.Path("missing.tif")), "no such file");
    EXPECT_EQ(WhyNot(""), "no such file");
    EXPECT_EQ(WhyNot(folder.Path()), "is a folder");
    EXPECT_EQ(WhyNot(folder.Write("empty.tif", "")), "is empty");
    EXPECT_EQ(WhyNot(folder.Write("notes.txt", "Not a raster.\n")), "not a raster");
    EXPECT_EQ(WhyNot(folder.Write("名.txt", std::string(100000, 'x'))), "not a raster");
    const std::string shapes =
        R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},)"
        R"("geometry":{"type":"Point","coordinates":[1,2]}}]})";
    EXPECT_NE(WhyNot(folder.Write("shapes.geojson", shapes)), "");
    // Reasons of GDAL's own. A TIFF header that points to a directory beyond the end.
    const std::string headerOnly(std::string("II*\0\xff\x00\x00\x00", 8));
    EXPECT_THAT(WhyNot(folder.Write("header_only.tif", headerOnly)),
                AllOf(SizeIs(AllOf(testing::Gt(0U), testing::Le(123U))),
                      Not(HasSubstr("header_only")), Not(HasSubstr("\n"))));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(GdalRasterName, IsTheFilesWithoutItsFolder) {
    const ScratchFolder folder;
    for (const auto& [name, wide] :
         {std::pair<std::string, std::wstring>{"a b.tif", L"a b.tif"},
          {"Île_影像.tif", L"Île_影像.tif"},
          {"𝄞.tif", L"𝄞.tif"}}) {
        raster_test::Write(folder.Path(name), {1, {{7}}});
        const auto raster = Open(folder.Path(name));
        ASSERT_NE(raster, nullptr);
        EXPECT_EQ(raster->GetFileName(), wide);
        EXPECT_EQ(raster->Path(), folder.Path(name));
        EXPECT_EQ(raster->GetDataSourceType(), DataSourceRaster);
    }
}

TEST(GdalRasterAvailable, UntilItsFileIsGone) {
    const ScratchFolder folder;
    const std::string path = folder.Path("raster.tif");
    raster_test::Write(path, {1, {{7}}});
    const auto raster = Open(path);
    EXPECT_TRUE(raster->IsAvailable());
    EXPECT_TRUE(raster->IsAvailable());

    std::filesystem::rename(path, folder.Path("renamed.tif"));
    EXPECT_FALSE(raster->IsAvailable());
    std::filesystem::rename(folder.Path("renamed.tif"), path);
    EXPECT_TRUE(raster->IsAvailable());
    std::filesystem::resize_file(path, 0);
    EXPECT_FALSE(raster->IsAvailable());
    std::filesystem::remove(path);
    EXPECT_FALSE(raster->IsAvailable());
    std::filesystem::create_directory(path);
    EXPECT_FALSE(raster->IsAvailable());
}

constexpr GDALColorInterp kNone = GCI_Undefined;
constexpr GDALColorInterp kRed = GCI_RedBand;
constexpr GDALColorInterp kGreen = GCI_GreenBand;
constexpr GDALColorInterp kBlue = GCI_BlueBand;
constexpr GDALColorInterp kGrey = GCI_GrayIndex;
constexpr GDALColorInterp kAlpha = GCI_AlphaBand;

const struct {
    const char* name;
    int bands;
    std::vector<GDALColorInterp> colours;  ///< as far as they are set
    DataDisplayType type;
    int red, green, blue;
} kDisplays[] = {
    {"one band", 1, {}, DisplayGray, 0, 0, 0},
    {"two bands", 2, {}, DisplayGray, 0, 0, 0},
    {"grey and alpha", 2, {kGrey, kAlpha}, DisplayGray, 0, 0, 0},
    {"three bands", 3, {}, DisplayRGB, 0, 1, 2},
    {"six bands", 6, {}, DisplayRGB, 0, 1, 2},
    {"red, green, blue", 3, {kRed, kGreen, kBlue}, DisplayRGB, 0, 1, 2},
    {"blue, green, red", 3, {kBlue, kGreen, kRed}, DisplayRGB, 2, 1, 0},
    {"near infrared first", 4, {kNone, kRed, kGreen, kBlue}, DisplayRGB, 1, 2, 3},
    {"alpha first", 4, {kAlpha, kNone, kNone, kNone}, DisplayRGB, 1, 2, 3},
    {"red alone is not enough", 4, {kNone, kRed}, DisplayRGB, 0, 1, 2},
    {"fewer than three colours", 3, {kGrey, kNone, kAlpha}, DisplayGray, 0, 0, 0},
};

TEST(GdalRasterDisplay, FollowsFromTheBands) {
    for (const auto& row : kDisplays) {
        SCOPED_TRACE(row.name);
        Raster raster{1, {}, GDT_Byte, {}, {"PHOTOMETRIC=MINISBLACK", "ALPHA=NO"}};
        raster.bands.assign(static_cast<std::size_t>(row.bands), {7});
        raster.describe = [&](GDALRasterBand& band) {
            for (std::size_t i = 0; i < row.colours.size(); ++i) {
                band.GetDataset()
                    ->GetRasterBand(static_cast<int>(i) + 1)
                    ->SetColorInterpretation(row.colours[i]);
            }
        };
        const auto opened = WriteAndOpen(raster);
        EXPECT_EQ(opened->GetDisplayType(), row.type);
        EXPECT_EQ(opened->GetRedBandNum(), row.red);
        EXPECT_EQ(opened->GetGreenBandNum(), row.green);
        EXPECT_EQ(opened->GetBlueBandNum(), row.blue);
        EXPECT_NE(opened->GetRasterBand(0), nullptr);
        EXPECT_NE(opened->GetRasterBand(row.bands - 1), nullptr);
        EXPECT_EQ(opened->GetRasterBand(row.bands), nullptr);
        EXPECT_EQ(opened->GetRasterBand(-1), nullptr);
        ASSERT_NE(opened->GetClassifyDisplayTable(), nullptr);
        EXPECT_EQ(opened->GetClassifyDisplayTable()->GetClassesCount(), 0);
    }
}

TEST(GdalRasterPlace, IsTheFilesOrNone) {
    const auto unplaced = WriteAndOpen({3, {Ramp(1, 6)}});
    EXPECT_FALSE(unplaced->HasGeoTransform());
    EXPECT_EQ(unplaced->GeoTransform(), (std::array<double, 6>{0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(unplaced->Projection(), "");
    EXPECT_EQ(unplaced->Width(), 3);
    EXPECT_EQ(unplaced->Height(), 2);

    const std::array<double, 6> place{500000, 30, 0, 4000000, 0, -30};
    const auto placed =
        WriteAndOpen(With({3, {Ramp(1, 6)}}, Placed(place, "EPSG:32633")));
    EXPECT_TRUE(placed->HasGeoTransform());
    EXPECT_EQ(placed->GeoTransform(), place);
    EXPECT_THAT(placed->Projection(), HasSubstr("UTM zone 33N"));
}

const struct {
    const char* name;
    GDALDataType type;
    std::vector<double> values;
    std::optional<double> noData;
    std::optional<std::pair<double, double>> range;
} kRanges[] = {
    {"bytes", GDT_Byte, {3, 200, 17}, {}, {{3, 200}}},
    {"one value", GDT_Byte, {42}, {}, {{42, 42}}},
    {"no-data is no value", GDT_Byte, {0, 3, 200, 255}, 255, {{0, 200}}},
    {"nothing but no-data", GDT_Byte, {9, 9, 9}, 9, {}},
    {"UInt16", GDT_UInt16, {65535, 1}, {}, {{1, 65535}}},
    {"Int16", GDT_Int16, {-32768, 12, 32767}, {}, {{-32768, 32767}}},
    {"Int16 with no-data", GDT_Int16, {-32768, -12, 5}, -32768, {{-12, 5}}},
    {"UInt32", GDT_UInt32, {4294967295.0, 7}, {}, {{7, 4294967295.0}}},
    {"Int32", GDT_Int32, {-2147483648.0, 7}, {}, {{-2147483648.0, 7}}},
    {"Float32", GDT_Float32, {-1.5, 2.25}, {}, {{-1.5, 2.25}}},
    {"Float32, NaN is no value", GDT_Float32, {kNan, -1.5, 2.25}, {}, {{-1.5, 2.25}}},
    {"Float32, NaN as no-data", GDT_Float32, {kNan, -1.5, 2.25}, kNan, {{-1.5, 2.25}}},
    {"Float32, only NaN", GDT_Float32, {kNan, kNan}, {}, {}},
    {"Float32, the usual no-data", GDT_Float32, {-9999, 1, 2}, -9999, {{1, 2}}},
    {"Float64", GDT_Float64, {-1e300, 1e-300}, {}, {{-1e300, 1e-300}}},
    {"Float64, infinite is no value", GDT_Float64, {-kInfinity, 1, 2}, {}, {{1, 2}}},
    {"complex, by its real part", GDT_CFloat32, {3, -4}, {}, {{-4, 3}}},
};

TEST(GdalRasterRange, IsOfTheValuesWithoutNoData) {
    for (const auto& row : kRanges) {
        for (const bool approximate : {true, false}) {
            SCOPED_TRACE(row.name);
            Raster raster{static_cast<int>(row.values.size()), {row.values}, row.type};
            raster.noData = row.noData;
            const auto opened = WriteAndOpen(raster);
            EXPECT_EQ(RangeOf(*opened, 0, approximate), row.range);
            EXPECT_EQ(RangeOf(*opened, 0, approximate), row.range) << "from memory";
        }
    }
}

TEST(GdalRasterRange, IsOfEachBandByItself) {
    const auto raster = WriteAndOpen({2, {{1, 2}, {30, 40}, {5, 6}}, GDT_Int16});
    EXPECT_EQ(RangeOf(*raster, 1), std::pair(30.0, 40.0));
}

/// A raster of zeros, and an overview of half its size that holds 50.
void WriteWithOverview(const std::string& path, int width, int height) {
    const Dataset dataset =
        raster_test::Create(path, width, height, 1, GDT_Byte, {"SPARSE_OK=TRUE"});
    GDALRasterBand* const band = dataset->GetRasterBand(1);
    raster_test::AddOverviews(*dataset, {2});
    ASSERT_EQ(band->GetOverview(0)->Fill(50), CE_None);
}

TEST(GdalRasterRange, IsSampledOfALargeRasterOnly) {
    const ScratchFolder folder;
    // 16 777 216 pixels are the most of which each is read.
    for (const auto& [width, height, value] :
         {std::tuple{4096, 4096, 0.0}, {8192, 2048, 0.0}, {8192, 8192, 50.0}}) {
        SCOPED_TRACE(height);
        const std::string path = folder.Path("overview.tif");
        WriteWithOverview(path, width, height);
        const auto raster = Open(path);
        for (const bool approximate : {true, false}) {
            EXPECT_EQ(RangeOf(*raster, 0, approximate), std::pair(value, value));
        }
    }
}

TEST(GdalRasterRange, OfALargeRasterIsFoundWhereAnEstimateMeetsNoValue) {
    const ScratchFolder folder;
    const std::string path = folder.Path("large.tif");
    {
        const Dataset dataset =
            raster_test::Create(path, 4200, 4200, 1, GDT_Byte, {"SPARSE_OK=TRUE"});
        dataset->GetRasterBand(1)->SetNoDataValue(0);
        raster_test::Set(*dataset->GetRasterBand(1), 4199, 4197, 1, 1, {200});
    }
    EXPECT_EQ(RangeOf(*Open(path)), std::pair(200.0, 200.0));
}

TEST(GdalRasterDamaged, IsReportedAndNothingIsWrittenToTheTerminal) {
    const ScratchFolder folder;
    const std::string path = folder.Path("cut.tif");
    const std::vector<double> values = Ramp(1, 300 * 200);
    raster_test::Write(path, {300, {values, values, values}, GDT_UInt16});
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);

    testing::internal::CaptureStderr();
    const auto raster = Open(path);
    ASSERT_NE(raster, nullptr);
    double min = -7.0;
    double max = -8.0;
    EXPECT_FALSE(raster->GetRasterBand(2)->ComputeMinMax(&min, &max, true));
    EXPECT_EQ(min, -7.0);
    EXPECT_EQ(max, -8.0);
    EXPECT_THAT([&] { raster->Render(100, 100); },
                testing::ThrowsMessage<std::runtime_error>(AllOf(
                    testing::StartsWith("reading failed: "), Not(HasSubstr("cut.tif")))));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(GdalRasterFolder, IsLeftAsItWas) {
    const ScratchFolder folder;
    const std::string path = folder.Path("raster.tif");
    raster_test::Write(path,
                       With({2, {{1, 2}, {3, 4}, {5, 6}}}, Placed({0, 1, 1, 0, 1, -1})));
    for (const char* stretch : {"auto", "minmax", "percent 2 98", "stddev 2"}) {
        host::RasterStyle style = raster_test::Stretched(stretch);
        style.noData = 3;
        const auto raster = Open(path, style);
        RangeOf(*raster, 0, false);
        raster->GetClassifyDisplayTable();
        raster->Render(4, 4);
        raster->Part({0, 0, 1, 1})->NorthUp()->Render(4, 4);
    }
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"raster.tif"});
}

}  // namespace
