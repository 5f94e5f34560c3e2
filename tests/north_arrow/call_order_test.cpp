#include <gtest/gtest.h>

#include <iterator>

#include "north_arrow/arrow_models.h"
#include "recording/lines.h"

namespace {

using namespace recording;
using namespace north_arrow_test;

// Every flat call of a drawing: what is made when, and released when.

constexpr Gdiplus::ARGB kRed = 0xFFFF0000;
const Setting kSetting{100, 1.0, 30.0f, kRed, {0, 0}};

using Calls = std::vector<Named>;

void Append(Calls& calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
}

const Calls kTurn{{"to the centre", "GdipTranslateWorldTransform 0 0"},
                  {"turn", "GdipRotateWorldTransform 30"},
                  {"from the centre", "GdipTranslateWorldTransform 0 0"}};
const Calls kReset{{"reset", "GdipResetWorldTransform"}};
const Calls kMakeBrush{{"brush", "GdipCreateSolidFill #FFFF0000"}};
const Calls kReleaseBrush{{"brush, released", "GdipDeleteBrush brush[#FFFF0000]"}};

Calls WriteLetter(const char* letter, float emSize, float left, float top) {
    const std::string font = FontLook("Arial", emSize, 0);
    return {{"family", "GdipCreateFontFamilyFromName \"Arial\""},
            {"font", "GdipCreateFont " + font},
            {"letter's brush", "GdipCreateSolidFill #FFFF0000"},
            {letter, DrawString(letter, font, left, top, BrushLook(kRed))},
            {"letter's brush, released", "GdipDeleteBrush brush[#FFFF0000]"}};
}

Calls ReleaseFont(float emSize) {
    return {{"font, released", "GdipDeleteFont " + FontLook("Arial", emSize, 0)},
            {"family, released", "GdipDeleteFontFamily family[\"Arial\"]"}};
}

Calls Outline(const std::vector<Gdiplus::Point>& triangle) {
    return {{"pen", "GdipCreatePen1 #FFFF0000 1 unit 0"},
            {"outline", DrawPolygon(PenLook(kRed, 1.0f), triangle)},
            {"pen, released", "GdipDeletePen pen[#FFFF0000 width 1]"}};
}

Calls Fill(const std::vector<Gdiplus::Point>& polygon) {
    return {{"fill", FillPolygon(BrushLook(kRed), polygon)}};
}

template <typename Arrow>
::testing::AssertionResult Makes(const std::vector<Calls>& parts) {
    Calls expected;
    for (const Calls& part : parts) {
        Append(expected, part);
    }
    Surface surface;
    Arrow arrow;
    Recording recording;
    Draw(arrow, kSetting, surface.Graphics());
    return Equal(expected, recording.Lines());
}

TEST(OneAngleArrow, MakesAndReleasesInOrder) {
    const std::string cap = ArrowCapLook(10.0f, 5.0f, true);
    const std::string pen = PenLook(0xFF000000, 1.0f, 0, cap);
    EXPECT_TRUE(Makes<CNorthArrowOneAngle>({
        {{"shaft pen", "GdipCreatePen1 #FF000000 1 unit 0"},
         {"cap", "GdipCreateAdjustableArrowCap " + cap},
         {"pen's cap", "GdipSetPenCustomEndCap " + cap}},
        kTurn,
        WriteLetter("N", 26.6666667f, -13, 0),
        {{"shaft", DrawLine(pen, 0, -8, 0, -40)}},
        kReset,
        ReleaseFont(26.6666667f),
        {{"cap, released", "GdipDeleteCustomLineCap " + cap},
         {"shaft pen, released", "GdipDeletePen " + pen}},
    }));
}

TEST(TwoAngleArrow, MakesAndReleasesInOrder) {
    EXPECT_TRUE(Makes<CNorthArrowTwoAngle>({
        kMakeBrush,
        kTurn,
        WriteLetter("N", 13.3333333f, -6, -50),
        Outline({{20, 40}, {0, 20}, {0, -34}}),
        Fill({{20, 40}, {0, 20}, {0, -34}}),
        Outline({{-20, 40}, {0, -34}, {0, 20}}),
        kReset,
        ReleaseFont(13.3333333f),
        kReleaseBrush,
    }));
}

Calls FillFigure(const std::vector<Gdiplus::Point>& figure) {
    Calls calls = kMakeBrush;
    Append(calls, Fill(figure));
    Append(calls, kReleaseBrush);
    return calls;
}

Calls OutlineFigure(const std::vector<Gdiplus::Point>& figure) {
    const std::string path = LinesPath(figure);
    return {{"path", "GdipCreatePath 0"},
            {"lines", "GdipAddPathLine2I " + path},
            {"pen", "GdipCreatePen1 #FFFF0000 1 unit 0"},
            {"outline", DrawPath(PenLook(kRed, 1.0f), path)},
            {"pen, released", "GdipDeletePen pen[#FFFF0000 width 1]"},
            {"path, released", "GdipDeletePath " + path}};
}

TEST(FourAngleArrow, MakesAndReleasesInOrder) {
    const auto fill = [](Gdiplus::Point from, Gdiplus::Point to) {
        return FillFigure({{0, 6}, from, to, {0, 6}});
    };
    const auto outline = [](Gdiplus::Point from, Gdiplus::Point to) {
        return OutlineFigure({{0, 6}, from, to, {0, 6}});
    };
    EXPECT_TRUE(Makes<CNorthArrowFourAngle>({
        kTurn,
        WriteLetter("N", 17.0f, -8, -42),
        fill({-34, 6}, {-6, 0}),
        outline({-6, 0}, {0, -28}),
        fill({0, -28}, {6, 0}),
        outline({6, 0}, {34, 6}),
        fill({34, 6}, {6, 12}),
        outline({6, 12}, {0, 40}),
        fill({0, 40}, {-6, 12}),
        outline({-6, 12}, {-34, 6}),
        kReset,
        ReleaseFont(17.0f),
    }));
}

// The figures of the star, used by themselves: four points, no transform, not closed.
TEST(FourAngleArrow, FillsAndOutlinesFigures) {
    Surface surface;
    surface.Graphics()->TranslateTransform(7.0f, -3.0f);
    CNorthArrowFourAngle arrow;
    arrow.SetFrontColor(Gdiplus::Color(kRed));
    arrow.SetAngle(45.0f);
    Gdiplus::Point points[] = {{10, 20}, {30, 25}, {28, 60}, {-4, 55}};
    const std::vector<Gdiplus::Point> figure(std::begin(points), std::end(points));
    Calls expected = FillFigure(figure);
    Append(expected, OutlineFigure(figure));
    Recording recording;
    arrow.FillSolidPath(surface.Graphics(), points);
    arrow.DrawPath(surface.Graphics(), points);
    EXPECT_TRUE(Equal(expected, recording.Lines()));
    EXPECT_EQ(surface.WorldTransform(), (std::vector<float>{1, 0, 0, 1, 7, -3}));
}

TEST(EightAngleArrow, MakesAndReleasesInOrder) {
    std::vector<Calls> parts{kMakeBrush,
                             kTurn,
                             WriteLetter("N", 10.0f, -5, -50),
                             WriteLetter("W", 10.0f, -52, -5),
                             WriteLetter("S", 10.0f, -5, 40),
                             WriteLetter("E", 10.0f, 40, -6)};
    const std::vector<std::vector<Gdiplus::Point>> sectors{
        {{-40, 0}, {-14, -8}, {0, 0}},   {{-24, -24}, {0, 0}, {-14, -8}},
        {{-24, -24}, {-8, -14}, {0, 0}}, {{-8, -14}, {0, -40}, {0, 0}},
        {{0, -40}, {8, -14}, {0, 0}},    {{8, -14}, {24, -24}, {0, 0}},
        {{24, -24}, {0, 0}, {13, -8}},   {{40, 0}, {0, 0}, {13, -8}},
        {{0, 0}, {13, 8}, {40, 0}},      {{24, 24}, {13, 8}, {0, 0}},
        {{24, 24}, {8, 13}, {0, 0}},     {{0, 40}, {8, 13}, {0, 0}},
        {{-8, 13}, {0, 40}, {0, 0}},     {{-24, 24}, {-8, 13}, {0, 0}},
        {{-14, 8}, {-24, 24}, {0, 0}},   {{-40, 0}, {-14, 8}, {0, 0}}};
    for (std::size_t i = 0; i < sectors.size(); ++i) {
        parts.push_back(Outline(sectors[i]));
        if (i % 2 == 0) {
            parts.push_back(Fill(sectors[i]));
        }
    }
    parts.push_back(kReset);
    for (int letters = 0; letters < 4; ++letters) {
        parts.push_back(ReleaseFont(10.0f));
    }
    parts.push_back(kReleaseBrush);
    EXPECT_TRUE(Makes<CNorthArrowEightAngle>(parts));
}

}  // namespace
