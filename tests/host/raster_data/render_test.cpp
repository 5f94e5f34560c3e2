#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "element/no_numbers.h"
#include "raster_data/make_raster.h"

namespace {

using raster_test::Dataset;
using raster_test::Open;
using raster_test::Pixel;
using raster_test::Pixels;
using raster_test::Ramp;
using raster_test::Raster;
using raster_test::Stretched;
using raster_test::With;
using raster_test::WriteAndOpen;

using raster_test::Colours;

unsigned int Grey(unsigned int shade) {
    return 0xff000000U | shade << 16U | shade << 8U | shade;
}

TEST(RenderGrey, AnOutlierDoesNotDarkenTheRest) {
    std::vector<double> values = Ramp(0, 100);
    values.back() = 60000;
    const auto raster =
        WriteAndOpen({101, {values}, GDT_UInt16}, Stretched("percent 2 98"));
    EXPECT_EQ(Pixel(raster->Render(101, 1), 50, 0), Grey(128));
}

TEST(RenderGrey, WhereNearlyAllIsOneValueTheRestIsStillSeen) {
    std::vector<double> values(101, 5.0);
    values[0] = 3;
    values[100] = 13;
    const auto raster = WriteAndOpen({101, {values}}, Stretched("percent 2 98"));
    const host::PixelImage image = raster->Render(101, 1);
    EXPECT_EQ(Pixel(image, 0, 0), Grey(0));
    EXPECT_EQ(Pixel(image, 50, 0), Grey(51));  // 2 / 10 of 255
    EXPECT_EQ(Pixel(image, 100, 0), Grey(255));
}

/// Gives a raster of four pixels a mask: in the file, where it is on or off, or beside
/// it.
void SetMask(GDALRasterBand& band, bool inFile, std::vector<double> mask) {
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", inFile ? "YES" : "NO");
    ASSERT_EQ(band.GetDataset()->CreateMaskBand(GMF_PER_DATASET), CE_None);
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", nullptr);
    raster_test::Set(*band.GetMaskBand(), 0, 0, 4, 1, std::move(mask));
}

// 30 % of the way from the least to the greatest value is 76.5 of 255.
const Colours kThree = {Grey(0), Grey(77), Grey(255)};
const Colours kNoneAndThree = {0, Grey(0), Grey(77), Grey(255)};
constexpr double kLeast = std::numeric_limits<double>::lowest();

const struct {
    const char* name;
    Raster raster;
    Colours drawn;
    int rows = 1;
} kDrawings[] = {
    {"one pixel has no contrast", {1, {{7}}}, {Grey(128)}},
    {"nor has a constant band", {3, {{0, 0, 0}}, GDT_Float32}, Colours(3, Grey(128))},
    {"two values", {2, {{9, 10}}}, {Grey(0), Grey(255)}},
    {"30 % of the way", {3, {{100, 130, 200}}}, kThree},
    {"downwards", {3, {{200, 130, -100}}, GDT_Int16}, {Grey(255), Grey(196), Grey(0)}},
    {"no-data", {4, {{0, 100, 130, 200}}, GDT_Byte, 0}, kNoneAndThree},
    {"all no-data", {2, {{4, 4}}, GDT_Byte, 4}, {0, 0}},
    {"NaN", {4, {{kNan, 100, 130, 200}}, GDT_Float32}, kNoneAndThree},
    {"NaN as no-data", {4, {{kNan, 100, 130, 200}}, GDT_Float64, kNan}, kNoneAndThree},
    {"all NaN", {2, {{kNan, kNan}}, GDT_Float32}, {0, 0}},
    {"infinite",
     {5, {{kInfinity, 0, 3, 10, -kInfinity}}, GDT_Float32},
     {0, Grey(0), Grey(77), Grey(255), 0}},
    {"no-data that no float holds",
     {4, {{kLeast, 0, 3, 10}}, GDT_Float64, kLeast},
     kNoneAndThree},
    {"as far apart as doubles are",
     {3, {{-1.7e308, 0, 1.7e308}}, GDT_Float64},
     {Grey(0), Grey(128), Grey(255)}},
    {"as near as doubles are",
     {3, {{1e9, 1e9 + 0.375, 1e9 + 1.25}}, GDT_Float64},
     kThree},
    {"of two bands the first", {3, {{100, 130, 200}, {0, 0, 9}}}, kThree},
    {"a grey band's alpha is the alpha band's",  // 77 is 0x4d
     With({4, {{0, 100, 130, 200}, {0, 255, 128, 1}}}, {"ALPHA=YES"}),
     {0, 0xff000000, 0x804d4d4d, 0x01ffffff}},
    {"colours' alpha is the alpha band's",
     With({3, {{0, 10, 3}, {0, 10, 3}, {3, 0, 10}, {255, 128, 0}}},
          {"PHOTOMETRIC=RGB", "ALPHA=YES"}),
     {0xff000003, 0x800a0a00, 0}},
    {"alpha of a mask in the file",
     With({4, {{0, 100, 130, 200}}},
          [](GDALRasterBand& band) {
              SetMask(band, true, {0, 255, 255, 255});
          }),
     kNoneAndThree},
    {"alpha of a mask beside the file",
     With({4, {{0, 100, 130, 200}}},
          [](GDALRasterBand& band) {
              SetMask(band, false, {0, 255, 100, 255});
          }),
     {0, Grey(0), 0x644d4d4d, Grey(255)}},
    {"classes' alpha is the mask's too",
     With({4, {{1, 1, 1, 1}}},
          [](GDALRasterBand& band) {
              raster_test::Coloured({{1, {16, 32, 48, 255}}})(band);
              SetMask(band, false, {0, 255, 100, 255});
          }),
     {0, 0xff102030, 0x64102030, 0xff102030}},
    {"each band is stretched by itself",
     {3, {{0, 3, 10}, {200, 130, 100}, {50, 50, 50}}, GDT_UInt16},
     {0xff00ff80, 0xff4d4d80, 0xffff0080}},
    {"bands are known by their colours",
     With({3, {{0, 0, 9}, {0, 9, 0}, {9, 0, 0}, {1, 2, 3}}, GDT_UInt16},
          [](GDALRasterBand& band) {
              GDALDataset& dataset = *band.GetDataset();
              band.SetColorInterpretation(GCI_BlueBand);
              dataset.GetRasterBand(2)->SetColorInterpretation(GCI_GreenBand);
              dataset.GetRasterBand(3)->SetColorInterpretation(GCI_RedBand);
              dataset.GetRasterBand(4)->SetColorInterpretation(GCI_Undefined);
          }),
     {0xffff0000, 0xff00ff00, 0xff0000ff}},
    {"colours are transparent where a band has no value",
     {4, {{7, 0, 3, 10}, {0, 0, 3, 10}, {0, 7, 3, 10}}, GDT_UInt16, 7},
     {0, 0, 0xff000000, 0xffffffff}},
    // Seven columns in three: the centres lie at 1.17, 3.5 and 5.83.
    {"classes are drawn from the nearest pixel and never mixed",
     With({7, {{1, 2, 1, 3, 1, 2, 1}}},
          raster_test::Coloured(
              {{1, {1, 1, 1, 255}}, {2, {2, 2, 2, 255}}, {3, {3, 3, 3, 255}}})),
     {Grey(2), Grey(3), Grey(2)}},
    {"every pixel counts in one cell",  // cells begin at 0, 2, 5, 7: means 0, 30, 50, 100
     {10, {{0, 0, 0, 0, 90, 40, 60, 100, 0, 200}}},
     {Grey(0), Grey(38), Grey(64), Grey(128)}},
    // 29.5 is 30 as a byte, 76.5 + 0.5 of 255; as a float 75.225.
    {"means of bytes are rounded", {6, {{0, 0, 29, 30, 100, 100}}}, kThree},
    {"those of numbers are not",
     {6, {{0, 0, 29, 30, 100, 100}}, GDT_Float32},
     {Grey(0), Grey(75), Grey(255)}},
    // Three of the second cell's four pixels have a value: their mean is 30, and 3 / 4 of
    // 255 is 191.25. Two of the third's: 100, and 127.5. White is 150.
    {"no-data is left out of the mean and thins the cell",
     {6, {{0, 0, 255, 50, 50, 255, 0, 0, 20, 20, 255, 150}}, GDT_Byte, 255},
     {Grey(0), 0xbf333333, 0x80aaaaaa}},
    {"so does NaN",
     {6, {{0, 0, kNan, 50, 50, kNan, 0, 0, 20, 20, kNan, 150}}, GDT_Float32},
     {Grey(0), 0xbf333333, 0x80aaaaaa}},
    // The centres of five columns over two pixels lie at 0.2, 0.6, 1.0, 1.4 and 1.8.
    {"larger repeats the pixels",
     {2, {{0, 3, 10, 10}}},
     {Grey(0),   Grey(0),   Grey(77),  Grey(77),  Grey(77),   //
      Grey(0),   Grey(0),   Grey(77),  Grey(77),  Grey(77),   //
      Grey(255), Grey(255), Grey(255), Grey(255), Grey(255),  //
      Grey(255), Grey(255), Grey(255), Grey(255), Grey(255)},
     4},
    {"larger one way and smaller the other",
     {3, {{0, 3, 10, 0, 3, 10}}},
     {Grey(0), Grey(0), Grey(77), Grey(77), Grey(255), Grey(255)}},
};

TEST(Render, DrawsEachPixelInItsPlaceColourAndAlpha) {
    for (const auto& row : kDrawings) {
        const int columns = static_cast<int>(row.drawn.size()) / row.rows;
        EXPECT_EQ(Pixels(WriteAndOpen(row.raster)->Render(columns, row.rows)), row.drawn)
            << row.name;
    }
}

TEST(RenderSize, SmallerIsTheMeanOfEachCell) {
    // Two by two pixels a cell: means 0, 30 and 100, of a raster that goes up to 200.
    const std::vector<double> values = {0, 0, 10, 50, 100, 100,  //
                                        0, 0, 20, 40, 0,   200};
    for (const GDALDataType type : {GDT_Byte, GDT_UInt16, GDT_Float32, GDT_Float64}) {
        const auto raster = WriteAndOpen({6, {values}, type});
        EXPECT_EQ(Pixels(raster->Render(3, 1)), (Colours{Grey(0), Grey(38), Grey(128)}));
    }
}

TEST(RenderSize, ThatIsNoneOrNoPictureIsRefused) {
    const auto raster = WriteAndOpen({1, {{7}}});
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
        raster_test::AddOverviews(*dataset, {2, 4});
        // Each level has a spot of its own, so that the picture tells which was read.
        for (int number = 1; number <= 3; ++number) {
            GDALRasterBand* const band = dataset->GetRasterBand(number);
            raster_test::Set(*band, 0, 0, 32, 32, std::vector<double>(32 * 32, 200));
            raster_test::Set(*band->GetOverview(0), 16, 0, 16, 16,
                             std::vector<double>(16 * 16, 200));
            raster_test::Set(*band->GetOverview(1), 0, 8, 8, 8,
                             std::vector<double>(8 * 8, 200));
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
    const std::vector<double> values(2000 * 2000, 7.0);
    const auto raster = WriteAndOpen({2000, {values}});
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
    const auto raster = WriteAndOpen({3, {{0, 3, 10}}});
    EXPECT_THAT([&] { raster->Render(3, 1, [](double) { return false; }); },
                testing::ThrowsMessage<std::runtime_error>("stopped"));
    EXPECT_EQ(Pixels(raster->Render(3, 1)), (Colours{Grey(0), Grey(77), Grey(255)}));
}

}  // namespace
