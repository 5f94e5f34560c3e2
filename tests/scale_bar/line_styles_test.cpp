#include <gtest/gtest.h>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Worked by hand. A bar of size 40 at scale 1 about (200, 150) has the rectangle
// (84, 130) 232 x 40: tick tops at 156, feet at 170, the first tick at 84 + 5 = 89.

namespace {

using namespace recording;
using namespace scale_bar_test;

std::string Tick(int x) { return DrawLine(BlackPen(), x, 156, x, 170); }

std::string Line(int x1, int y1, int x2, int y2) {
    return DrawLine(BlackPen(), x1, y1, x2, y2);
}

BarRow Row(Style style, int mainCount, int subCount, int unitPosition = 0) {
    BarRow row;
    row.style = style;
    row.mainCount = mainCount;
    row.subCount = subCount;
    row.unitPosition = unitPosition;
    return row;
}

struct ShapeRow {
    Style style;
    int baseLine;
    int subTop;
    int subFoot;
    int unitTop;
};

constexpr ShapeRow kShapes[] = {
    {Style::Line, 170, 162, 170, 157},
    {Style::Stepped, 170, 162, 170, 157},
    {Style::Line2, 164, 161, 167, 158},
    {Style::Line3, 156, 156, 162, 156},
};

// Two divisions of 25 pixels in halves of 12.5.
TEST(LineStyles, ShareTicksAndLabels) {
    for (const ShapeRow& shape : kShapes) {
        const auto sub = [&](int x) { return Line(x, shape.subTop, x, shape.subFoot); };
        EXPECT_TRUE(Equal(
            {
                {"tick 0", Tick(89)},
                {"label 0", BlackLabel("0", 84, 130)},
                {"sub tick 0.0, on the main tick", sub(89)},
                {"sub tick 0.1, 12.5 further", sub(101)},
                {"tick 1", Tick(114)},
                {"label 1", BlackLabel("1", 109, 130)},
                {"sub tick 1.0", sub(114)},
                {"sub tick 1.1", sub(126)},
                {"tick 2", Tick(139)},
                {"label 2", BlackLabel("2", 134, 130)},
                {"base line", Line(89, shape.baseLine, 139, shape.baseLine)},
                {"unit name", DefaultUnitName(143, static_cast<float>(shape.unitTop))},
            },
            DrawingOf(Row(shape.style, 2, 1))))
            << NameOf(shape.style);
    }
}

struct NegativeRow {
    Style style;
    int baseLine;
    int unitTop;  ///< up from 0 instead of from the end of the base line
};

TEST(LineStyles, WithANegativeCountRunToTheOrigin) {
    const NegativeRow rows[] = {
        {Style::Line, 170, -13},
        {Style::Stepped, 170, -13},
        {Style::Line2, 164, -6},
        {Style::Line3, 156, 0},
    };
    for (const NegativeRow& row : rows) {
        const auto unitTop = static_cast<float>(row.unitTop);
        for (const int count : {-1, -2, -2147483647 - 1}) {
            EXPECT_TRUE(Equal({{"base line", Line(89, row.baseLine, 0, 0)},
                               {"unit name", DefaultUnitName(4, unitTop)}},
                              DrawingOf(Row(row.style, count, 4, 0))))
                << NameOf(row.style);
            EXPECT_TRUE(Equal({{"base line", Line(121, row.baseLine, 0, 0)},
                               {"unit name", DefaultUnitName(84, unitTop)}},
                              DrawingOf(Row(row.style, count, 4, 1))))
                << NameOf(row.style);
            EXPECT_TRUE(Equal({{"base line", Line(89, row.baseLine, 0, 0)},
                               {"unit name", DefaultUnitName(0, 0)}},
                              DrawingOf(Row(row.style, count, 4, 2))))
                << NameOf(row.style);
        }
    }
}

TEST(LineStyles, WithANegativeSubCountHaveNoSubTicks) {
    for (const ShapeRow& shape : kShapes) {
        for (const int subCount : {-1, -2, -2147483647 - 1}) {
            EXPECT_TRUE(Equal(
                {
                    {"tick 0", Tick(89)},
                    {"label 0", BlackLabel("0", 84, 130)},
                    {"tick 1", Tick(114)},
                    {"label 1", BlackLabel("1", 109, 130)},
                    {"base line", Line(89, shape.baseLine, 114, shape.baseLine)},
                    {"unit name",
                     DefaultUnitName(118, static_cast<float>(shape.unitTop))},
                },
                DrawingOf(Row(shape.style, 1, subCount))))
                << NameOf(shape.style) << ", " << subCount;
        }
    }
}

// 100 x 0.03 / 0.037 is 81.08: the main ticks go by 81, the sub ticks by 27.03 from them.
TEST(LineStyles, PlaceSubTicksFromTheUnroundedLength) {
    BarRow row = Row(Style::Line, 2, 2);
    row.paperToData = 0.037;
    row.paperToScreen = 100.0;
    const auto sub = [](int x) { return Line(x, 162, x, 170); };
    EXPECT_TRUE(Equal(
        {
            {"tick 0", Tick(89)},
            {"label 0", BlackLabel("0.00", 84, 130)},
            {"sub tick 0.0", sub(89)},
            {"sub tick 0.1", sub(116)},
            {"sub tick 0.2", sub(143)},
            {"tick 1", Tick(170)},
            {"label 1", BlackLabel("0.03", 165, 130)},
            {"sub tick 1.0", sub(170)},
            {"sub tick 1.1", sub(197)},
            {"sub tick 1.2", sub(224)},
            {"tick 2", Tick(251)},
            {"label 2", BlackLabel("0.06", 246, 130)},
            {"base line", Line(89, 170, 251, 170)},
            {"unit name", DefaultUnitName(255, 157)},
        },
        DrawingOf(row)));
}

// Size 83 at scale 0.5 is 41.5 pixels: the line style rounds them to 42, the others down
// to 41 and so to 40, for the rectangle is even.
TEST(LineStyles, RoundTheirHeightsDifferently) {
    BarRow row = Row(Style::Line, 1, 0);
    row.size = 83;
    row.scale = 0.5;
    const std::string pen = BlackPen(0.5f);
    const float unitEm = 83.0f * 0.5f / 3.0f;
    EXPECT_TRUE(Equal(
        {
            {"tick 0", DrawLine(pen, 84, 157, 84, 171)},
            {"label 0", BlackLabel("0", 78.75f, 129)},
            {"sub tick", DrawLine(pen, 84, 164, 84, 171)},
            {"tick 1", DrawLine(pen, 109, 157, 109, 171)},
            {"label 1", BlackLabel("1", 103.75f, 129)},
            {"base line", DrawLine(pen, 84, 171, 109, 171)},
            {"unit name", DefaultUnitName(113, 157, unitEm)},
        },
        DrawingOf(row)));
    row.style = Style::Line2;
    EXPECT_TRUE(Equal(
        {
            {"tick 0", DrawLine(pen, 87, 156, 87, 170)},
            {"label 0", BlackLabel("0", 82, 130)},
            {"sub tick", DrawLine(pen, 87, 161, 87, 167)},
            {"tick 1", DrawLine(pen, 112, 156, 112, 170)},
            {"label 1", BlackLabel("1", 107, 130)},
            {"base line", DrawLine(pen, 87, 164, 112, 164)},
            {"unit name", DefaultUnitName(116, 158, unitEm)},
        },
        DrawingOf(row)));
    row.style = Style::Line3;
    EXPECT_TRUE(Equal(
        {
            {"tick 0", DrawLine(pen, 87, 156, 87, 170)},
            {"label 0", BlackLabel("0", 82, 130)},
            {"sub tick", DrawLine(pen, 87, 156, 87, 162)},
            {"tick 1", DrawLine(pen, 112, 156, 112, 170)},
            {"label 1", BlackLabel("1", 107, 130)},
            {"base line", DrawLine(pen, 87, 156, 112, 156)},
            {"unit name", DefaultUnitName(116, 156, unitEm)},
        },
        DrawingOf(row)));
}

// 44 / 6 is 7, and half of it 3: sub ticks from 165 - 3 to 165 + 3.
TEST(LineStyles, Line2HalvesAnOddSixthDownwards) {
    BarRow row = Row(Style::Line2, 1, 0);
    row.size = 44;
    EXPECT_TRUE(Equal(
        {
            {"tick 0", Line(78, 157, 78, 172)},
            {"label 0", BlackLabel("0", 72.5f, 128, 11)},
            {"sub tick", Line(78, 162, 78, 168)},
            {"tick 1", Line(103, 157, 103, 172)},
            {"label 1", BlackLabel("1", 97.5f, 128, 11)},
            {"base line", Line(78, 165, 103, 165)},
            {"unit name", DefaultUnitName(107, 158, 44.0f / 3.0f)},
        },
        DrawingOf(row)));
}

// -40 + 0.5 is -39, half of it -19, so the rectangle is (313, 169) with a height of -38;
// every part of it goes toward zero. No font is that small.
TEST(LineStyles, DrawANegativeSizeUpsideDown) {
    BarRow row = Row(Style::Line, 0, 4, 1);
    row.size = -40;
    EXPECT_TRUE(Equal(
        {
            {"tick 0: 313 - 4 - 30, from 169 - 25", Line(279, 144, 279, 131)},
            {"label 0", DrawString("0", "null", 283.75f, 169, BlackBrush())},
            {"base line", Line(279, 131, 279, 131)},
            {"unit name: 131 + 12", DrawString("单位", "null", 313, 143, BlackBrush())},
        },
        DrawingOf(row)));
}

}  // namespace
