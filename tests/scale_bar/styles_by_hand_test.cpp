#include <gtest/gtest.h>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Worked by hand. A bar of size 40 at scale 1 about (200, 150) has the rectangle
// (84, 130) 232 x 40: ticks and boxes from 156, feet of ticks at 170, boxes 13 high, the
// first boundary at 84 + 5 = 89, and divisions of 25.

namespace {

using namespace recording;
using namespace scale_bar_test;

Named Line(const char* name, int x1, int y1, int x2, int y2) {
    return {name, DrawLine(BlackPen(), x1, y1, x2, y2)};
}

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

struct LineShape {
    Style style;
    int baseLine;
    int subTop;
    int subFoot;
    float unitTop;
};

// Two divisions of 25 pixels in halves of 12.5.
TEST(StylesByHand, LinesShareTicksAndLabels) {
    for (const LineShape& shape : {LineShape{Style::Line, 170, 162, 170, 157},
                                   LineShape{Style::Stepped, 170, 162, 170, 157},
                                   LineShape{Style::Line2, 164, 161, 167, 158},
                                   LineShape{Style::Line3, 156, 156, 162, 156}}) {
        const auto sub = [&](const char* name, int x) {
            return Line(name, x, shape.subTop, x, shape.subFoot);
        };
        EXPECT_TRUE(Equal(
            {
                Line("tick 0", 89, 156, 89, 170),
                Label("0", 89),
                sub("sub tick 0.0, on the main tick", 89),
                sub("sub tick 0.1, 12.5 further", 101),
                Line("tick 1", 114, 156, 114, 170),
                Label("1", 114),
                sub("sub tick 1.0", 114),
                sub("sub tick 1.1", 126),
                Line("tick 2", 139, 156, 139, 170),
                Label("2", 139),
                Line("base line", 89, shape.baseLine, 139, shape.baseLine),
                {"unit name", DefaultUnitName(143, shape.unitTop)},
            },
            DrawingOf(Row(shape.style, 2, 1))))
            << NameOf(shape.style);
    }
}

TEST(StylesByHand, AlternatingCountsSmallBoxesAndDivisionsInOneRow) {
    EXPECT_TRUE(Equal(
        {
            Line("strip top", 89, 156, 164, 156),
            Line("strip bottom", 89, 169, 164, 169),
            Label("0.0", 89),
            Box("small box 1", 89, 6),
            Fill(89, 6),
            Box("small box 2", 95, 6),
            Box("small box 3", 101, 6),
            Fill(101, 6),
            Line("closing line", 114, 156, 114, 169),
            Label("1.0", 114),
            Box("division 2", 114, 25),
            Fill(114, 25),
            Label("2.0", 139),
            Box("division 3", 139, 25),
            Label("3.0", 164),
            {"unit name", DefaultUnitName(168, 157)},
        },
        DrawingOf(Row(Style::Alternate, 3, 3))));
}

// Steps of 25 x 0.8 under boxes of 25.
TEST(StylesByHand, EqualBoxesOverlapWhereTheValueWasRoundedDown) {
    BarRow row = Row(Style::EquAlternate, 3, 4);
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
