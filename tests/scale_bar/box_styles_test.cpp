#include <gtest/gtest.h>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Worked by hand. A bar of size 40 at scale 1 about (200, 150) has the rectangle
// (84, 130) 232 x 40: boxes from 156, 13 high, the first boundary at 84 + 5 = 89.

namespace {

using namespace recording;
using namespace scale_bar_test;

std::string Line(int x1, int y1, int x2, int y2) {
    return DrawLine(BlackPen(), x1, y1, x2, y2);
}

std::string Box(int x, int width) { return DrawRectangle(BlackPen(), x, 156, width, 13); }

std::string Fill(int x, int width) {
    return FillRectangleI(BlackBrush(), x, 156, width, 13);
}

std::string Label(const char* text, int x) {
    return BlackLabel(text, static_cast<float>(x - 5), 130);
}

BarRow Row(Style style, int mainCount, int subCount, int unitPosition = 0) {
    BarRow row;
    row.style = style;
    row.mainCount = mainCount;
    row.subCount = subCount;
    row.unitPosition = unitPosition;
    return row;
}

TEST(AlternatingBar, CountsSmallBoxesAndDivisionsInOneRow) {
    EXPECT_TRUE(Equal(
        {
            {"strip top", Line(89, 156, 214, 156)},
            {"strip bottom", Line(89, 169, 214, 169)},
            {"label 0", Label("0.0", 89)},
            {"small box 1", Box(89, 5)},
            {"small box 1 filled", Fill(89, 5)},
            {"small box 2", Box(94, 5)},
            {"small box 3", Box(99, 5)},
            {"small box 3 filled", Fill(99, 5)},
            {"small box 4", Box(104, 5)},
            {"closing line", Line(114, 156, 114, 169)},
            {"label 1", Label("1.0", 114)},
            {"division 2", Box(114, 25)},
            {"label 2", Label("2.0", 139)},
            {"division 3", Box(139, 25)},
            {"division 3 filled", Fill(139, 25)},
            {"label 3", Label("3.0", 164)},
            {"division 4", Box(164, 25)},
            {"label 4", Label("4.0", 189)},
            {"division 5", Box(189, 25)},
            {"division 5 filled", Fill(189, 25)},
            {"label 5", Label("5.0", 214)},
            {"unit name", DefaultUnitName(218, 157)},
        },
        DrawingOf(Row(Style::Alternate, 5, 4))));
}

// Divisions of 2500 x 0.8: 80 pixels, in parts of 26.67 whose boxes are 26 wide.
TEST(AlternatingBar, ClosesTheFirstDivisionAtItsUnroundedEnd) {
    BarRow row = Row(Style::Alternate, 2, 2);
    row.paperToData = 2500.0;
    row.paperToScreen = 100.0;
    EXPECT_TRUE(Equal(
        {
            {"strip top", Line(89, 156, 249, 156)},
            {"strip bottom", Line(89, 169, 249, 169)},
            {"label 0", Label("0", 89)},
            {"small box 1", Box(89, 26)},
            {"small box 1 filled", Fill(89, 26)},
            {"small box 2", Box(115, 26)},
            {"closing line", Line(169, 156, 169, 169)},
            {"label 1", Label("2000", 169)},
            {"division 2", Box(169, 80)},
            {"label 2", Label("4000", 249)},
            {"unit name", DefaultUnitName(253, 157)},
        },
        DrawingOf(row)));
}

struct ClosingRow {
    int subCount;
    int closingX;
};

// A count of -1 leaves no part, and 0 times an infinite one is no number: 0. With -2 the
// one part is -25 long, taken -1 times.
TEST(AlternatingBar, ClosesTheFirstDivisionWhateverTheSubCount) {
    for (const ClosingRow& row : {ClosingRow{-1, 0}, ClosingRow{-2, 114},
                                  ClosingRow{-26, 114}, ClosingRow{-2147483647, 114}}) {
        EXPECT_TRUE(Equal(
            {
                {"strip top", Line(89, 156, 114, 156)},
                {"strip bottom", Line(89, 169, 114, 169)},
                {"label 0", Label("0.0", 89)},
                {"closing line", Line(row.closingX, 156, row.closingX, 169)},
                {"label 1", Label("1.0", 114)},
                {"unit name", DefaultUnitName(118, 157)},
            },
            DrawingOf(Row(Style::Alternate, 1, row.subCount))))
            << row.subCount;
    }
}

TEST(EqualAlternatingBar, FillsTheFirstAndEveryOtherBox) {
    EXPECT_TRUE(Equal(
        {
            {"label 0", Label("0", 89)},
            {"box 1", Box(89, 25)},
            {"label 0 again", Label("0", 89)},
            {"box 1 filled", Fill(89, 25)},
            {"label 1", Label("1", 114)},
            {"box 2", Box(114, 25)},
            {"label 2", Label("2", 139)},
            {"box 3", Box(139, 25)},
            {"label 2 again", Label("2", 139)},
            {"box 3 filled", Fill(139, 25)},
            {"label 3", Label("3", 164)},
            {"box 4", Box(164, 25)},
            {"label 4", Label("4", 189)},
            {"box 5", Box(189, 25)},
            {"label 4 again", Label("4", 189)},
            {"box 5 filled", Fill(189, 25)},
            {"label 5", Label("5", 214)},
            {"unit name", DefaultUnitName(218, 157)},
        },
        DrawingOf(Row(Style::EquAlternate, 5, 4))));
}

// Steps of 25 x 0.8 under boxes of 25.
TEST(EqualAlternatingBar, BoxesOverlapWhereTheValueWasRoundedDown) {
    BarRow row = Row(Style::EquAlternate, 2, 4, 1);
    row.paperToData = 2500.0;
    EXPECT_TRUE(Equal(
        {
            {"label 0", Label("0", 121)},
            {"box 1", Box(121, 25)},
            {"label 0 again", Label("0", 121)},
            {"box 1 filled", Fill(121, 25)},
            {"label 1", Label("2000", 141)},
            {"box 2, 5 within the first", Box(141, 25)},
            {"label 2", Label("4000", 161)},
            {"unit name", DefaultUnitName(84, 157)},
        },
        DrawingOf(row)));
}

// Size 83 at scale 0.5 is 41 pixels, truncated. The alternating bar is 40 high; the equal
// one rounds the halves, 21 and 119, so its rectangle is (81, 129) 238 x 42.
TEST(EqualAlternatingBar, RoundsTheHalves) {
    BarRow row = Row(Style::EquAlternate, 1, 0);
    row.size = 83;
    row.scale = 0.5;
    const std::string pen = BlackPen(0.5f);
    const float unitEm = 83.0f * 0.5f / 3.0f;
    EXPECT_TRUE(Equal(
        {
            {"label 0", BlackLabel("0", 80.75f, 129)},
            {"box 1", DrawRectangle(pen, 86, 157, 25, 14)},
            {"label 0 again", BlackLabel("0", 80.75f, 129)},
            {"box 1 filled", FillRectangleI(BlackBrush(), 86, 157, 25, 14)},
            {"label 1", BlackLabel("1", 105.75f, 129)},
            {"unit name", DefaultUnitName(115, 157, unitEm)},
        },
        DrawingOf(row)));
    row.style = Style::Alternate;
    EXPECT_TRUE(Equal(
        {
            {"strip top", DrawLine(pen, 87, 156, 112, 156)},
            {"strip bottom", DrawLine(pen, 87, 169, 112, 169)},
            {"label 0", BlackLabel("0.0", 82, 130)},
            {"closing line", DrawLine(pen, 112, 156, 112, 169)},
            {"label 1", BlackLabel("1.0", 107, 130)},
            {"unit name", DefaultUnitName(116, 157, unitEm)},
        },
        DrawingOf(row)));
}

}  // namespace
