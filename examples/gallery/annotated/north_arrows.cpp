#include "annotated.h"

namespace gallery::annotated {
namespace {

// Arrows of size 100 at scale 4.
constexpr int kArrowSize = 100;
constexpr double kArrowScale = 4.0;
constexpr int kPixels = 400;

template <typename Arrow>
void Draw(Drawing& drawing, CPoint centre, int nameX = -60, int nameY = -9) {
    Arrow arrow;
    arrow.SetSize(kArrowSize);
    arrow.SetFrontColor(Gdiplus::Color(0xFF9AA6B2));
    arrow.Draw(drawing.Surface(), centre, kArrowScale);
    drawing.Mark(centre.x, centre.y, L"centre", nameX, nameY);
}

Drawing DrawOneAngle() {
    Drawing drawing(460, 360);
    const CPoint c{220, 200};
    constexpr int n = kPixels;
    const int tip = c.y - 2 * n / 5;
    const int foot = c.y - 2 * n / 25;
    Draw<CNorthArrowOneAngle>(drawing, c, -120);
    drawing.Guide(c.x, tip, c.x + 170, tip);
    drawing.Guide(c.x, foot, c.x + 100, foot);
    drawing.Guide(c.x, c.y, c.x + 170, c.y);
    drawing.Down(tip, c.y, c.x + 160, L"2n / 5");
    drawing.Down(foot, c.y, c.x + 90, L"2n / 25");
    const int letter = c.x - 2 * n / 15;
    const int below = c.y + 4 * n / 15;
    drawing.Guide(letter, c.y, letter, below + 34);
    drawing.Guide(c.x, c.y, c.x, below + 34);
    drawing.Across(letter, c.x, below + 30, L"2n / 15");
    drawing.Guide(c.x, below, c.x + 100, below);
    drawing.Down(c.y, below, c.x + 90, L"4n / 15, the letter");
    return drawing;
}

Drawing DrawTwoAngle() {
    Drawing drawing(520, 470);
    const CPoint c{240, 230};
    constexpr int n = kPixels;
    constexpr int notch = n / 5;
    constexpr int corner = 2 * n / 5;
    constexpr int tip = 17 * n / 50;
    Draw<CNorthArrowTwoAngle>(drawing, c);
    for (const int y : {c.y - tip, c.y, c.y + corner}) {
        drawing.Guide(c.x, y, c.x + 190, y);
    }
    drawing.Guide(c.x, c.y + notch, c.x + 130, c.y + notch);
    drawing.Down(c.y - tip, c.y, c.x + 180, L"t = 17n / 50");
    drawing.Down(c.y, c.y + corner, c.x + 180, L"c = 2n / 5");
    drawing.Down(c.y, c.y + notch, c.x + 110, L"b = n / 5");
    const int below = c.y + corner + 44;
    for (const int x : {c.x + notch - corner, c.x, c.x + notch}) {
        drawing.Guide(x, c.y + corner - 10, x, below);
    }
    drawing.Across(c.x + notch - corner, c.x, below, L"c \x2212 b");
    drawing.Across(c.x, c.x + notch, below, L"b");
    const int letter = c.y - 3 * n / 10 - notch;
    drawing.Guide(c.x - 30, letter, c.x + 70, letter);
    drawing.Down(letter, letter + 2 * n / 15, c.x + 60, L"2n / 15, the letter");
    return drawing;
}

Drawing DrawFourAngle() {
    Drawing drawing(540, 420);
    const CPoint c{240, 200};
    constexpr int n = kPixels * 85 / 100;
    constexpr int arm = 2 * n / 5;
    constexpr int waist = arm / 5;
    Draw<CNorthArrowFourAngle>(drawing, c, -80, -40);
    drawing.Mark(c.x, c.y + waist, L"the star's centre", 36, 44);
    for (const int y : {c.y + waist - arm, c.y + waist, c.y + waist + arm}) {
        drawing.Guide(c.x, y, c.x + 180, y);
    }
    drawing.Down(c.y + waist - arm, c.y + waist, c.x + 170, L"a = 2n / 5");
    drawing.Down(c.y + waist, c.y + waist + arm, c.x + 170, L"a");
    drawing.Guide(c.x - 225, c.y, c.x, c.y);
    drawing.Guide(c.x - 225, c.y + waist, c.x, c.y + waist);
    drawing.Down(c.y, c.y + waist, c.x - 215, L"b = a / 5");
    const int below = c.y + waist + arm + 40;
    drawing.Guide(c.x - waist, c.y + 2 * waist, c.x - waist, below);
    drawing.Guide(c.x, c.y + waist + arm, c.x, below);
    drawing.Across(c.x - waist, c.x, below, L"b");
    drawing.Guide(c.x - n / 10, c.y - n / 2, c.x + 70, c.y - n / 2);
    drawing.Down(c.y - n / 2, c.y - n / 2 + n / 5, c.x + 60, L"n / 5, the letter");
    return drawing;
}

Drawing DrawEightAngle() {
    Drawing drawing(560, 640);
    const CPoint c{270, 230};
    constexpr int n = kPixels;
    constexpr int radius = 2 * n / 5;
    constexpr int width = 2 * radius;
    const int left = c.x - radius;
    const int top = c.y - radius;
    Draw<CNorthArrowEightAngle>(drawing, c, -120, 10);
    drawing.Outline({{left, top},
                     {left + width, top},
                     {left + width, top + width},
                     {left, top + width}});
    struct Column {
        int offset;
        const wchar_t* name;
    };
    constexpr Column kColumns[] = {
        {width / 5, L"w / 5"},         {width / 3, L"w / 3"},
        {2 * width / 5, L"2w / 5"},    {3 * width / 5, L"3w / 5"},
        {2 * width / 3, L"2w / 3"},    {4 * width / 5, L"4w / 5"},
        {width, L"w = 2a, a = 2n / 5"}};
    int below = top + width + 62;
    for (const Column& column : kColumns) {
        drawing.Guide(left + column.offset, top, left + column.offset, below);
        drawing.Guide(left, top + width, left, below);
        drawing.Across(left, left + column.offset, below, column.name);
        below += 24;
    }
    return drawing;
}

}  // namespace

std::vector<Picture> NorthArrows() {
    return {
        {L"north_arrow_one", DrawOneAngle},
        {L"north_arrow_two", DrawTwoAngle},
        {L"north_arrow_four", DrawFourAngle},
        {L"north_arrow_eight", DrawEightAngle},
    };
}

}  // namespace gallery::annotated
