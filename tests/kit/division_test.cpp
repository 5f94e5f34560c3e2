#include "map_surround/kit/division.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "element/no_numbers.h"

namespace {

using map_surround::kit::Division;
using map_surround::kit::LargestDivision;
using map_surround::kit::RoundDivision;

TEST(RoundDivision, TakesTheLargestOfOneTwoAndFive) {
    struct Row {
        double value;
        double rounded;
    };
    const Row rows[] = {
        {1.0, 1.0},     {1.9, 1.0},        {2.0, 2.0},       {4.99, 2.0},  {5.0, 5.0},
        {9.99, 5.0},    {10.0, 10.0},      {37.0, 20.0},     {0.3, 0.2},   {0.1, 0.1},
        {0.007, 0.005}, {999.0, 500.0},    {1000.0, 1000.0}, {0.05, 0.05}, {1e-5, 1e-5},
        {3e7, 2e7},     {0.0999999, 0.05},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(RoundDivision(row.value), row.rounded) << row.value;
    }
}

// A bar's aspect ratio follows from its division after rounding: what it leaves alone is
// as long as it was told.
TEST(RoundDivision, GivesWhatScaleBarsLeaveAlone) {
    for (int power = -6; power <= 9; ++power) {
        for (const double digit : {1.0, 2.0, 5.0}) {
            const double value = RoundDivision(digit * std::pow(10.0, power) * 1.01);
            CScaleLine bar;
            bar.SetSize(40);
            bar.SetMainDivCount(1);
            bar.SetScreen2PaperByOneScale(1000.0);
            bar.SetPaper2DataScale(1.0);
            bar.ResetAspectRatio();
            const float expected = bar.GetAspectRatio();
            bar.SetPaper2DataScale(value);
            bar.ResetAspectRatio();
            EXPECT_NEAR(bar.GetAspectRatio(), expected, 1e-3) << value;
        }
    }
}

TEST(LargestDivision, IsRoundAndAsLongAsItsValue) {
    const auto division = LargestDivision(2.5, 3, 700.0);  // 1 : 25 000, tenths of a mm
    ASSERT_TRUE(division.has_value());
    EXPECT_EQ(division->value, 500.0);
    EXPECT_EQ(division->length, 200.0);
}

TEST(LargestDivision, IsNoneWhereNoneCanBe) {
    for (const double number : {0.0, -1.0, kInfinity, kNan}) {
        EXPECT_FALSE(LargestDivision(number, 3, 700.0).has_value()) << number;
        EXPECT_FALSE(LargestDivision(2.5, 3, number).has_value()) << number;
    }
    EXPECT_FALSE(LargestDivision(-1.0, 3, -700.0).has_value());
    EXPECT_FALSE(LargestDivision(2.5, 0, 700.0).has_value());
    EXPECT_FALSE(LargestDivision(2.5, -3, -700.0).has_value());
}

struct Drawn {
    int width;         ///< from the first tick to the last, pixels
    Gdiplus::REAL dx;  ///< of the surface's transform afterwards
};

Drawn DrawnBar(double length, double scale, int divisions) {
    Gdiplus::Bitmap bitmap(1200, 40, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(&bitmap);
    graphics.TranslateTransform(3.0f, 0.0f);
    CScaleLine3 bar;
    bar.SetSize(static_cast<int>(std::lround(40.0 / scale)));
    bar.SetUnitsName(L"");
    bar.SetMainDivCount(divisions);
    const Division division{500.0, length};
    map_surround::kit::SetDivision(bar, division);
    bar.ResetAspectRatio();
    map_surround::kit::DrawBar(graphics, bar, division, {550, 20}, scale);

    int first = 1200;
    int last = -1;
    for (int x = 0; x < 1200; ++x) {
        Gdiplus::Color color;
        bitmap.GetPixel(x, 36, &color);  // where there is nothing but the main ticks
        if (color.GetA() > 127) {
            first = std::min(first, x);
            last = std::max(last, x);
        }
    }
    Gdiplus::Matrix left;
    graphics.GetTransform(&left);
    Gdiplus::REAL elements[6] = {};
    left.GetElements(elements);
    // A tick is a page unit wide, and at least a pixel.
    const int tick = std::max(1, static_cast<int>(std::lround(scale)));
    return {last - first + 1 - tick, elements[4]};
}

// A bar by itself cuts each division: of 8 times 99.9 pixels it draws 8 times 99.
TEST(DrawBar, IsTrueToAPixel) {
    struct Row {
        double length;
        double scale;
        int divisions;
    };
    const Row rows[] = {
        {100.0, 1.0, 4},  {99.9, 1.0, 8},   {33.4, 3.0, 9},
        {200.0, 0.37, 5}, {10.49, 1.0, 50},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.length);
        const Drawn drawn = DrawnBar(row.length, row.scale, row.divisions);
        EXPECT_NEAR(drawn.width, row.length * row.scale * row.divisions, 1.01);
        EXPECT_EQ(drawn.dx, 3.0f);
    }
}

TEST(DrawBar, OfNoLengthIsDrawnAsItIs) {
    EXPECT_LE(DrawnBar(0.0, 1.0, 4).width, 1);
    EXPECT_LE(DrawnBar(std::numeric_limits<double>::quiet_NaN(), 1.0, 4).width, 1);
}

}  // namespace
