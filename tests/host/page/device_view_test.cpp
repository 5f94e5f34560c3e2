#include "page/device_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

#include "page/page.h"
#include "page/paper.h"

namespace {

using host::DeviceView;

TEST(DeviceView, TurnsExtentsUpsideDown) {
    const struct {
        double dpi;
        CBoundingBox extent;  // of a page 200 units high
        CRect rect;
    } rows[] = {
        {96.0, {0.0, 0.0, 300.0, 200.0}, {0, 0, 300, 200}},
        {96.0, {10.0, 20.0, 50.0, 100.0}, {10, 100, 50, 180}},
        // 1.5625 pixels a unit: 15.625, 78.125; 100 x 1.5625 = 156.25, 180 x = 281.25
        {150.0, {10.0, 20.0, 50.0, 100.0}, {16, 156, 78, 281}},
        // 3.125 pixels a unit: 31.25, 156.25; 312.5 goes up, 562.5 too
        {300.0, {10.0, 20.0, 50.0, 100.0}, {31, 313, 156, 563}},
        {48.0, {1.0, 199.0, 3.0, 200.0}, {1, 0, 2, 1}},
        // Beyond the sheet on every side: -0.5 goes up to 0, -1.5 to -1.
        {96.0, {-0.5, -10.0, 310.0, 201.5}, {0, -1, 310, 210}},
    };
    for (const auto& row : rows) {
        const CRect rect = DeviceView(200.0, row.dpi).ToDevice(row.extent);
        EXPECT_EQ(std::tie(rect.left, rect.top, rect.right, rect.bottom),
                  std::tie(row.rect.left, row.rect.top, row.rect.right, row.rect.bottom))
            << row.dpi;
    }
}

TEST(DeviceView, TakesAnyNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    const DeviceView view(100.0, 96.0);
    EXPECT_EQ(view.ToDevice(std::nan("")), 0);
    EXPECT_EQ(view.ToDevice(infinity), 1000000000);
    EXPECT_EQ(view.ToDevice(-infinity), -1000000000);
    EXPECT_EQ(view.ToDevice(1.0e300), 1000000000);
}

TEST(DeviceView, FindsTheMiddleOfARectangle) {
    for (const CRect& rect : {CRect(10, 20, 30, 60), CRect(10, 20, 31, 61)}) {
        EXPECT_EQ(host::Centre(rect).x, 20);
        EXPECT_EQ(host::Centre(rect).y, 40);
    }
}

TEST(Paper, IsReadByNameOrByItsSides) {
    const struct {
        const char* text;
        double widthMillimetres;
        double heightMillimetres;
    } rows[] = {
        {"A4", 297.0, 210.0},      {"a3", 420.0, 297.0},
        {"A0", 1189.0, 841.0},     {"b5", 250.0, 176.0},
        {"Letter", 279.4, 215.9},  {"LEGAL", 355.6, 215.9},
        {"tabloid", 431.8, 279.4}, {"100x50", 100.0, 50.0},
        {"20x5000", 20.0, 5000.0}, {"100.5X50.25", 100.5, 50.25},
    };
    for (const auto& row : rows) {
        host::PaperSize paper;
        ASSERT_TRUE(host::ParsePaperSize(row.text, paper)) << row.text;
        EXPECT_DOUBLE_EQ(paper.width, row.widthMillimetres * 96.0 / 25.4) << row.text;
        EXPECT_DOUBLE_EQ(paper.height, row.heightMillimetres * 96.0 / 25.4) << row.text;
    }
}

TEST(Paper, HasItsSeriesNamedByTheirEnds) {
    EXPECT_EQ(host::PaperNames(), "A0 to A6, B0 to B5, Letter, Legal, Tabloid");
}

TEST(Paper, RefusesWhatIsNone) {
    for (const char* text :
         {"", "A7", "A", "x", "100x", "x50", "100", "100x50x20", "100 x 50", "19.9x50",
          "100x5001", "-100x50", "1e999x50", "nanx50", "infx50", "100,5x50", "0x0"}) {
        host::PaperSize paper{1.0, 2.0};
        EXPECT_FALSE(host::ParsePaperSize(text, paper)) << text;
        EXPECT_EQ(paper.width, 1.0) << text;
        EXPECT_EQ(paper.height, 2.0) << text;
    }
}

TEST(Paper, HasWholePixels) {
    const struct {
        const char* paper;
        double dpi;
        int width;
        int height;
    } rows[] = {
        {"A4", 96.0, 1123, 794},    // 1122.5 x 793.7
        {"A4", 150.0, 1754, 1240},  // 1753.9 x 1240.2
        {"A4", 300.0, 3508, 2480},  // 3507.9 x 2480.3
        {"Letter", 100.0, 1100, 850}, {"100x50", 254.0, 1000, 500},
        {"20x20", 1.0, 1, 1},  // 0.79
        {"20x20", 0.1, 1, 1},  // never none
    };
    for (const auto& row : rows) {
        host::PaperSize paper;
        ASSERT_TRUE(host::ParsePaperSize(row.paper, paper));
        const Gdiplus::Size size =
            host::PixelSize(host::Page(paper.width, paper.height), row.dpi);
        EXPECT_EQ(size.Width, row.width) << row.paper << " " << row.dpi;
        EXPECT_EQ(size.Height, row.height) << row.paper << " " << row.dpi;
    }
}

}  // namespace
