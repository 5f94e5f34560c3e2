#include <gtest/gtest.h>

#include <iterator>
#include <limits>

#include "north_arrow/arrow_models.h"
#include "recording/lines.h"

namespace {

using namespace recording;
using namespace north_arrow_test;

// Drawings written out in numbers. The centre is (0, 0) but where a row needs another,
// so that the coordinates are the offsets from it.

constexpr int kMost = std::numeric_limits<int>::max();
constexpr Gdiplus::ARGB kRed = 0xFFFF0000;

Named Letter(const char* letter, float emSize, float left, float top,
             Gdiplus::ARGB color = kRed) {
    return {std::string("letter ") + letter,
            DrawString(letter, LetterFontLook(emSize), left, top, BrushLook(color))};
}

template <typename Arrow>
::testing::AssertionResult Draws(const Setting& setting,
                                 const std::vector<Named>& shapes) {
    Surface surface;
    Arrow arrow;
    Recording recording(Mode::RecordOnly);
    Draw(arrow, setting, surface.Graphics());
    return Equal(Turned(setting, shapes), recording.Drawing());
}

Setting Red(int size, double scale = 1.0, CPoint centre = {}) {
    return {size, scale, 0.0f, kRed, centre};
}

struct OneAngleRow {
    Setting setting;
    float penWidth, capHeight, capWidth;
    Named letter;
    int x, shaftStart, shaftEnd;
};

// The shaft is black and the letter red.
TEST(OneAngleArrow, DrawsTheseNumbers) {
    const OneAngleRow rows[] = {
        {Red(100), 1.0f, 10.0f, 5.0f, Letter("N", 26.6666667f, -13, 0), 0, -8, -40},
        {Red(7), 0.07f, 0.7f, 0.35f, Letter("N", 1.86666667f, 0, 0), 0, 0, -2},
        {Red(8), 0.08f, 0.8f, 0.4f, Letter("N", 2.13333333f, -1, 0), 0, 0, -3},
        // 2.5 pixels are 3, and the pen keeps to 2.5.
        {Red(5, 0.5), 0.025f, 0.3f, 0.15f, Letter("N", 0.8f, 0, 0), 0, 0, -1},
        {Red(100, 3.125), 3.125f, 31.3f, 15.65f, Letter("N", 83.4666667f, -41, 0), 0, -25,
         -125},
        // -2.7 and a half, cut off, are -2.
        {Red(27, -0.1), -0.027f, -0.2f, -0.1f, Letter("N", -0.5f, 0, 0), 0, 0, 0},
        {Red(-100), -1.0f, -9.9f, -4.95f, Letter("N", -26.4f, 13, 0), 0, 7, 39},
        {Red(0), 0.0f, 0.0f, 0.0f, Letter("N", 0.0f, 0, 0), 0, 0, 0},
        {Red(100, 1.0, {300, -200}), 1.0f, 10.0f, 5.0f,
         Letter("N", 26.6666667f, 287, -200), 300, -208, -240},
        {Red(kMost), 21474836.48f, 214748364.7f, 107374182.4f,
         Letter("N", 572662305.9f, -286331152.0f, 0), 0, -171798691, -858993458},
    };
    for (const OneAngleRow& row : rows) {
        const std::string cap = ArrowCapLook(row.capHeight, row.capWidth, true);
        EXPECT_TRUE(Draws<CNorthArrowOneAngle>(
            row.setting,
            {row.letter,
             {"shaft", DrawLine(PenLook(0xFF000000, row.penWidth, 0, cap), row.x,
                                row.shaftStart, row.x, row.shaftEnd)}}))
            << row.setting;
    }
}

struct TwoAngleRow {
    Setting setting;
    Named letter;
    std::vector<Gdiplus::Point> rightHalf;
    std::vector<Gdiplus::Point> leftHalf;
};

TEST(TwoAngleArrow, DrawsTheseNumbers) {
    const TwoAngleRow rows[] = {
        {Red(100),
         Letter("N", 13.3333333f, -6, -50),
         {{20, 40}, {0, 20}, {0, -34}},
         {{-20, 40}, {0, -34}, {0, 20}}},
        // The left corner is further out than the right one.
        {Red(8),
         Letter("N", 1.06666667f, 0, -3.4f),
         {{1, 3}, {0, 1}, {0, -2}},
         {{-2, 3}, {0, -2}, {0, 1}}},
        {Red(8, 1.0, {50, 60}),
         Letter("N", 1.06666667f, 50, 56.6f),
         {{51, 63}, {50, 61}, {50, 58}},
         {{48, 63}, {50, 58}, {50, 61}}},
        {Red(101),
         Letter("N", 13.46666667f, -6, -50.3f),
         {{20, 40}, {0, 20}, {0, -34}},
         {{-20, 40}, {0, -34}, {0, 20}}},
        {Red(0),
         Letter("N", 0.0f, 0, 0),
         {{0, 0}, {0, 0}, {0, 0}},
         {{0, 0}, {0, 0}, {0, 0}}},
        {Red(kMost),
         Letter("N", 286331152.9f, -143165576.0f, -1073741823.1f),
         {{429496729, 858993458}, {0, 429496729}, {0, -730144439}},
         {{-429496729, 858993458}, {0, -730144439}, {0, 429496729}}},
        // 500000001 - 300000000.6 - 200000000, the 0.6 as precise as a double is there.
        {Red(1000000002, 1.0, {0, 500000001}),
         Letter("N", 133333333.6f, -66666666.0f, 0.39999998f),
         {{200000000, 900000001}, {0, 700000001}, {0, 160000001}},
         {{-200000000, 900000001}, {0, 160000001}, {0, 700000001}}},
        // Beyond the device, at its edge.
        {Red(kMost, 1.0, {kMost, kMost}),
         Letter("N", 286331152.9f, 2004318071.0f, 1073741823.9f),
         {{kMost, kMost}, {kMost, kMost}, {kMost, 1417339208}},
         {{1717986918, kMost}, {kMost, 1417339208}, {kMost, kMost}}},
    };
    for (const TwoAngleRow& row : rows) {
        const std::string pen = PenLook(kRed, 1.0f);
        EXPECT_TRUE(Draws<CNorthArrowTwoAngle>(
            row.setting,
            {row.letter,
             {"right half, outline", DrawPolygon(pen, row.rightHalf)},
             {"right half, fill", FillPolygon(BrushLook(kRed), row.rightHalf)},
             {"left half, outline", DrawPolygon(pen, row.leftHalf)}}))
            << row.setting;
    }
}

using Points = std::vector<Gdiplus::Point>;

/// x and y in turns
Points At(const std::vector<int>& coordinates) {
    Points points;
    for (std::size_t i = 0; i + 1 < coordinates.size(); i += 2) {
        points.emplace_back(coordinates[i], coordinates[i + 1]);
    }
    return points;
}

enum FourAngleCorner { C, N, E, S, W, NW, NE, SE, SW };

struct FourAngleRow {
    Setting setting;
    Named letter;
    Points corners;  ///< in the order of FourAngleCorner
};

TEST(FourAngleArrow, DrawsTheseNumbers) {
    const FourAngleRow rows[] = {
        {Red(100), Letter("N", 17.0f, -8, -42),
         At({0, 6, 0, -28, 34, 6, 0, 40, -34, 6, -6, 0, 6, 0, 6, 12, -6, 12})},
        {Red(40), Letter("N", 6.8f, -3, -17),
         At({0, 2, 0, -11, 13, 2, 0, 15, -13, 2, -2, 0, 2, 0, 2, 4, -2, 4})},
        // A plus sign.
        {Red(7), Letter("N", 1.2f, 0, -3),
         At({0, 0, 0, -2, 2, 0, 0, 2, -2, 0, 0, 0, 0, 0, 0, 0, 0, 0})},
        {Red(100, 1.0, {200, 100}), Letter("N", 17.0f, 192, 58),
         At({200, 106, 200, 72, 234, 106, 200, 140, 166, 106, 194, 100, 206, 100, 206,
             112, 194, 112})},
        // 10 pixels at 85 percent are 8.5, and that is 9.
        {Red(20, 0.5), Letter("N", 1.8f, 0, -4),
         At({0, 0, 0, -3, 3, 0, 0, 3, -3, 0, 0, 0, 0, 0, 0, 0, 0, 0})},
        // 150 pixels at 85 percent are 127.5; 85 percent of 1.5 fall short of it.
        {Red(100, 1.5), Letter("N", 25.6f, -12, -64),
         At({0, 10, 0, -41, 51, 10, 0, 61, -51, 10, -10, 0, 10, 0, 10, 20, -10, 20})},
        {Red(-100), Letter("N", -16.8f, 8, 42),
         At({0, -6, 0, 27, -33, -6, 0, -39, 33, -6, 6, 0, -6, 0, -6, -12, 6, -12})},
        {Red(kMost), Letter("N", 365072220.0f, -182536110.0f, -912680550.0f),
         At({0, 146028888, 0, -584115552, 730144440, 146028888, 0, 876173328, -730144440,
             146028888, -146028888, 0, 146028888, 0, 146028888, 292057776, -146028888,
             292057776})},
        {Red(kMost, 1.0, {kMost, 0}),
         Letter("N", 365072220.0f, 1964947537.0f, -912680550.0f),
         At({kMost, 146028888, kMost, -584115552, kMost, 146028888, kMost, 876173328,
             1417339207, 146028888, 2001454759, 0, kMost, 0, kMost, 292057776, 2001454759,
             292057776})},
    };
    for (const FourAngleRow& r : rows) {
        const auto figure = [&](FourAngleCorner first, FourAngleCorner second) {
            return Points{r.corners[C], r.corners[first], r.corners[second],
                          r.corners[C]};
        };
        const std::string pen = PenLook(kRed, 1.0f);
        const std::string brush = BrushLook(kRed);
        EXPECT_TRUE(Draws<CNorthArrowFourAngle>(
            r.setting, {r.letter,
                        {"W-NW", FillPolygon(brush, figure(W, NW))},
                        {"NW-N", DrawPath(pen, LinesPath(figure(NW, N)))},
                        {"N-NE", FillPolygon(brush, figure(N, NE))},
                        {"NE-E", DrawPath(pen, LinesPath(figure(NE, E)))},
                        {"E-SE", FillPolygon(brush, figure(E, SE))},
                        {"SE-S", DrawPath(pen, LinesPath(figure(SE, S)))},
                        {"S-SW", FillPolygon(brush, figure(S, SW))},
                        {"SW-W", DrawPath(pen, LinesPath(figure(SW, W)))}}))
            << r.setting;
    }
}

struct EightAngleRow {
    Setting setting;
    std::vector<Named> letters;
    Points corners;  ///< of the rose from the west clockwise, then of the inner ring
};

TEST(EightAngleArrow, DrawsTheseNumbers) {
    const EightAngleRow rows[] = {
        {Red(100),
         {Letter("N", 10, -5, -50), Letter("W", 10, -52, -5), Letter("S", 10, -5, 40),
          Letter("E", 10, 40, -6)},
         At({-40, 0,  -24, -24, 0, -40, 24, -24, 40, 0, 24, 24, 0,  40, -24, 24,
             -14, -8, -8,  -14, 8, -14, 13, -8,  13, 8, 8,  13, -8, 13, -14, 8})},
        // The grid lines are 5, 9, 11, 14, 16, 18 and 22 from the left and the top.
        {Red(37),
         {Letter("N", 3.7f, -2, -17.7f), Letter("W", 3.7f, -19.24f, -2),
          Letter("S", 3.7f, -2, 14), Letter("E", 3.7f, 14, -2)},
         At({-14, 0,  -9, -9, 0, -14, 8, -9, 14, 0, 8, 8, 0,  14, -9, 8,
             -5,  -3, -3, -5, 2, -5,  4, -3, 4,  2, 2, 4, -3, 4,  -5, 2})},
        // The letters come out next to 0, at 100000000 - 100000000.1 and at
        // 520000001 - 520000000.52: multiplied first and then divided.
        {Red(1000000001, 1.0, {520000001, 500000000}),
         {Letter("N", 100000000.1f, 464444446.0f, -0.099999994f),
          Letter("W", 100000000.1f, 0.48000002f, 441176471.0f),
          Letter("S", 100000000.1f, 464444446.0f, 900000000.0f),
          Letter("E", 100000000.1f, 920000001.0f, 437500000.0f)},
         At({120000001, 500000000, 280000001, 260000000, 520000001, 100000000, 760000001,
             260000000, 920000001, 500000000, 760000001, 740000000, 520000001, 900000000,
             280000001, 740000000, 386666667, 420000000, 440000001, 366666666, 600000001,
             366666666, 653333334, 420000000, 653333334, 580000000, 600000001, 633333333,
             440000001, 633333333, 386666667, 580000000})},
        // Too small to have a radius: everything falls on the centre.
        {Red(2, 1.0, {30, 40}),
         {Letter("N", 0.2f, 30, 39.8f), Letter("W", 0.2f, 28.96f, 40),
          Letter("S", 0.2f, 30, 40), Letter("E", 0.2f, 30, 40)},
         At({30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40,
             30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40, 30, 40})},
        {Red(kMost),
         {Letter("N", 214748364.7f, -119304647.0f, -1073741822.7f),
          Letter("W", 214748364.7f, -1116691496.44f, -126322567.0f),
          Letter("S", 214748364.7f, -119304647.0f, 858993458.0f),
          Letter("E", 214748364.7f, 858993458.0f, -134217727.0f)},
         At({-858993458, 0,          -515396075, -515396075, 0,          -858993458,
             515396074,  -515396075, 858993458,  0,          515396074,  515396074,
             0,          858993458,  -515396075, 515396074,  -286331153, -171798692,
             -171798692, -286331153, 171798691,  -286331153, 286331152,  -171798692,
             286331152,  171798691,  171798691,  286331152,  -171798692, 286331152,
             -286331153, 171798691})},
    };
    for (const EightAngleRow& r : rows) {
        const Gdiplus::Point c{r.setting.centre.x, r.setting.centre.y};
        Points corners = r.corners;
        corners.push_back(c);
        const int sectors[][3] = {{0, 8, 16},  {1, 16, 8},  {1, 9, 16},  {9, 2, 16},
                                  {2, 10, 16}, {10, 3, 16}, {3, 16, 11}, {4, 16, 11},
                                  {16, 12, 4}, {5, 12, 16}, {5, 13, 16}, {6, 13, 16},
                                  {14, 6, 16}, {7, 14, 16}, {15, 7, 16}, {0, 15, 16}};
        std::vector<Named> shapes = r.letters;
        for (std::size_t i = 0; i < std::size(sectors); ++i) {
            Points sector;
            for (const int corner : sectors[i]) {
                sector.push_back(corners[static_cast<std::size_t>(corner)]);
            }
            const std::string name = "sector " + std::to_string(i + 1);
            shapes.push_back({name, DrawPolygon(PenLook(kRed, 1.0f), sector)});
            if (i % 2 == 0) {
                shapes.push_back({name, FillPolygon(BrushLook(kRed), sector)});
            }
        }
        EXPECT_TRUE(Draws<CNorthArrowEightAngle>(r.setting, shapes)) << r.setting;
    }
}

}  // namespace
