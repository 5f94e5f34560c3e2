#include "../drawing.h"
#include "annotated.h"

namespace gallery::annotated {
namespace {

// A bar of size 40 at scale 5.
constexpr int kBarSize = 40;
constexpr int kBarScale = 5;
constexpr int kBarHeight = kBarSize * kBarScale;
const CPoint kCentre{430, 170};

/// The divisions of a bar: how long on the ground, how long drawn, in how many parts.
struct Divisions {
    double onTheGround;
    int drawn;
    int subDivisions;
};

/// The lengths that every style has.
struct Layout {
    int left;      // of the bar's rectangle
    int top;       // of the rectangle and of the labels
    int stripTop;  // of ticks and boxes
    int bottom;
    int first;  // the first boundary of divisions
    int last;
    int step;   // from boundary to boundary
    int sub;    // from sub-division to sub-division
    int right;  // where the heights of texts are named
};

/// Draws a bar of two divisions with its rectangle and the lengths of every style.
template <typename Bar>
Layout Draw(Drawing& drawing, Divisions divisions, double rounding) {
    Bar bar;
    bar.SetSize(kBarSize);
    bar.SetFrontColor(Gdiplus::Color(0xFF9AA6B2));
    bar.SetUnitsName(L"m");
    bar.SetMainDivCount(2);
    bar.SetSubDivCount(divisions.subDivisions);
    bar.SetPaper2DataScale(divisions.onTheGround);
    bar.SetPaper2ScreenScale(divisions.drawn);
    bar.SetScreen2PaperByOneScale(divisions.drawn / static_cast<double>(kBarScale));
    bar.ResetAspectRatio();
    bar.Draw(drawing.Surface(), kCentre, kBarScale);

    const int halfWidth =
        static_cast<int>(static_cast<float>(kBarHeight) * bar.GetAspectRatio() * 0.5f);
    Layout at{};
    at.left = kCentre.x - halfWidth;
    at.top = kCentre.y - kBarHeight / 2;
    at.stripTop = at.top + 2 * kBarHeight / 3;
    at.bottom = at.top + kBarHeight;
    at.step = static_cast<int>(divisions.drawn * rounding);
    at.sub = at.step / (divisions.subDivisions + 1);
    at.first = at.left + kBarHeight / 8;
    at.last = at.first + 2 * at.step;

    drawing.Outline({{at.left, at.top},
                     {at.left + 2 * halfWidth, at.top},
                     {at.left + 2 * halfWidth, at.bottom},
                     {at.left, at.bottom}});
    drawing.Mark(kCentre.x, kCentre.y, L"centre", 8, -8);

    drawing.Guide(20, at.top, at.left, at.top);
    drawing.Guide(70, at.stripTop, at.first, at.stripTop);
    drawing.Guide(20, at.bottom, at.first, at.bottom);
    drawing.Down(at.top, at.bottom, 30, L"H");
    drawing.Down(at.top, at.stripTop, 80, L"2H / 3");

    at.right = at.left + 2 * halfWidth + 30;
    drawing.Guide(at.last + 60, at.top, at.right + 10, at.top);
    drawing.Guide(at.last + 60, at.top + kBarHeight / 4, at.right + 10,
                  at.top + kBarHeight / 4);
    drawing.Down(at.top, at.top + kBarHeight / 4, at.right, L"H / 4, labels");
    const int below = at.bottom + 50;
    drawing.Guide(at.left, at.bottom, at.left, below);
    drawing.Guide(at.first, at.bottom, at.first, below);
    drawing.Guide(at.first + at.step, at.bottom, at.first + at.step, below);
    drawing.Guide(at.last, at.bottom, at.last, below);
    drawing.Guide(at.last + kBarHeight / 10, at.bottom, at.last + kBarHeight / 10, below);
    drawing.Across(at.left, at.first, below, L"H / 8");
    drawing.Across(at.first, at.first + at.step, below, L"step");
    drawing.Across(at.last, at.last + kBarHeight / 10, below, L"H / 10");
    return at;
}

/// The unit name, whose em size follows size times scale, from its top on.
void NameUnit(Drawing& drawing, const Layout& at, int top) {
    for (const int y : {top, top + kBarHeight / 3}) {
        drawing.Guide(at.last + kBarHeight / 10, y, at.right + 10, y);
    }
    drawing.Down(top, top + kBarHeight / 3, at.right, L"H / 3, unit name");
}

constexpr Divisions kTicks = {50.0, 180, 1};

void NameSub(Drawing& drawing, const Layout& at) {
    const int from = at.first + at.step;
    drawing.Across(from, from + at.sub, at.bottom + 50, L"sub");
    drawing.Guide(from + at.sub, at.bottom, from + at.sub, at.bottom + 50);
}

Drawing DrawScaleLine() {
    Drawing drawing(880, 350);
    const Layout at = Draw<CScaleLine>(drawing, kTicks, 1.0);
    NameSub(drawing, at);
    NameUnit(drawing, at, at.bottom - kBarHeight / 3);
    const int x = at.first + at.step + at.sub / 2;
    drawing.Guide(at.first + at.step, at.stripTop, x + 10, at.stripTop);
    drawing.Guide(x - 10, at.stripTop + kBarHeight / 6, at.first + at.step + at.sub,
                  at.stripTop + kBarHeight / 6);
    drawing.Down(at.stripTop, at.stripTop + kBarHeight / 6, x, L"H / 6");
    return drawing;
}

Drawing DrawScaleLine2() {
    Drawing drawing(880, 350);
    const Layout at = Draw<CScaleLine2>(drawing, kTicks, 1.0);
    const int middle = at.bottom - kBarHeight / 6;
    const int tick = kBarHeight / 6;
    NameSub(drawing, at);
    NameUnit(drawing, at, middle - kBarHeight / 6);
    const int x = at.first + at.sub / 2 - 20;
    drawing.Down(middle, at.bottom, x, L"H / 6");
    drawing.Guide(x - 10, at.bottom, x + 10, at.bottom);
    const int subTick = at.first + at.step + at.sub;
    drawing.Guide(subTick, middle - tick / 2, subTick + 30, middle - tick / 2);
    drawing.Guide(subTick, middle + tick / 2, subTick + 30, middle + tick / 2);
    drawing.Down(middle - tick / 2, middle + tick / 2, subTick + 22, L"");
    drawing.Note(subTick + 30, middle - tick / 2 - 10, L"H / 6");
    return drawing;
}

Drawing DrawScaleLine3() {
    Drawing drawing(880, 350);
    const Layout at = Draw<CScaleLine3>(drawing, kTicks, 1.0);
    NameSub(drawing, at);
    NameUnit(drawing, at, at.stripTop);
    const int subTick = at.first + at.step + at.sub;
    drawing.Guide(subTick, at.stripTop + kBarHeight / 6, subTick + 30,
                  at.stripTop + kBarHeight / 6);
    drawing.Down(at.stripTop, at.stripTop + kBarHeight / 6, subTick + 22, L"H / 6");
    return drawing;
}

Drawing DrawScaleAlternate() {
    Drawing drawing(880, 350);
    const Layout at = Draw<CScaleAlternate>(drawing, {50.0, 180, 4}, 1.0);
    NameUnit(drawing, at, at.bottom - kBarHeight / 3);
    drawing.Across(at.first, at.first + at.sub, at.bottom + 24, L"sub");
    drawing.Guide(at.first + at.sub, at.bottom, at.first + at.sub, at.bottom + 24);
    drawing.Down(at.stripTop, at.stripTop + kBarHeight / 3, at.first + at.step + 60,
                 L"H / 3");
    return drawing;
}

Drawing DrawScaleEquAltenate() {
    Drawing drawing(880, 350);
    // 2500 is rounded down to 2000, so the step is 0.8 of the box.
    constexpr Divisions kRoundedDown = {2500.0, 200, 0};
    const Layout at = Draw<CScaleEquAltenate>(drawing, kRoundedDown, 0.8);
    NameUnit(drawing, at, at.bottom - kBarHeight / 3);
    drawing.Across(at.first, at.first + kRoundedDown.drawn, at.bottom + 24, L"box");
    drawing.Guide(at.first + kRoundedDown.drawn, at.bottom, at.first + kRoundedDown.drawn,
                  at.bottom + 24);
    drawing.Down(at.stripTop, at.stripTop + kBarHeight / 3, at.first + at.step + 70,
                 L"H / 3");
    return drawing;
}

}  // namespace

std::vector<Picture> ScaleBars() {
    return {
        {L"scale_bar_line", DrawScaleLine},
        {L"scale_bar_line2", DrawScaleLine2},
        {L"scale_bar_line3", DrawScaleLine3},
        {L"scale_bar_alternating", DrawScaleAlternate},
        {L"scale_bar_equal_alternating", DrawScaleEquAltenate},
    };
}

}  // namespace gallery::annotated
