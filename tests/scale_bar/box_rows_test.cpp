#include <gtest/gtest.h>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Rows of boxes worked by hand. A bar of size 40 at scale 1 about (200, 150) has the
// rectangle (84, 130) 232 x 40: boxes from 156, 13 high, the first boundary at
// 84 + 5 = 89, and divisions of 25.

namespace {

using namespace recording;
using namespace scale_bar_test;

Named Box(const char* name, int x, int width) {
    return {name, DrawRectangle(BlackPen(), x, 156, width, 13)};
}

Named Fill(int x, int width) {
    return {"filled", FillRectangleI(BlackBrush(), x, 156, width, 13)};
}

Named Label(const char* text, int x) {
    return {std::string("label ") + text,
            BlackLabel(text, static_cast<float>(x - 5), 130)};
}

BarRow Row(Style style, int mainCount, int subCount) {
    BarRow row;
    row.style = style;
    row.mainCount = mainCount;
    row.subCount = subCount;
    return row;
}

TEST(BoxRows, AlternatingCountsSmallBoxesAndDivisionsInOneRow) {
    EXPECT_TRUE(Equal(
        {
            BlackLine("strip top", 89, 156, 164, 156),
            BlackLine("strip bottom", 89, 169, 164, 169),
            Label("0.0", 89),
            Box("small box 1", 89, 6),
            Fill(89, 6),
            Box("small box 2", 95, 6),
            Box("small box 3", 101, 6),
            Fill(101, 6),
            BlackLine("closing line", 114, 156, 114, 169),
            Label("1.0", 114),
            Box("division 2", 114, 25),
            Fill(114, 25),
            Label("2.0", 139),
            Box("division 3", 139, 25),
            Label("3.0", 164),
            {"unit name", DefaultUnitName(168, 157)},
        },
        DrawingOf(Row(host::StyleOf<CScaleAlternate>(), 3, 3))));
}

// Steps of 25 x 0.8 under boxes of 25.
TEST(BoxRows, EqualBoxesOverlapWhereTheValueWasRoundedDown) {
    BarRow row = Row(host::StyleOf<CScaleEquAltenate>(), 3, 4);
    row.paperToData = 2500.0;
    EXPECT_TRUE(Equal(
        {
            Label("0", 89),
            Box("box 1", 89, 25),
            Label("0", 89),
            Fill(89, 25),
            Label("2000", 109),
            Box("box 2, 5 within the first", 109, 25),
            Label("4000", 129),
            Box("box 3", 129, 25),
            Label("4000", 129),
            Fill(129, 25),
            Label("6000", 149),
            {"unit name", DefaultUnitName(153, 157)},
        },
        DrawingOf(row)));
}

}  // namespace
