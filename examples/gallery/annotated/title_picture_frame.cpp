#include <cmath>

#include "../drawing.h"
#include "../sample_image.h"
#include "annotated.h"

namespace gallery::annotated {
namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;

/// The corners of a box around a centre, turned about it.
std::vector<Gdiplus::Point> Turned(CPoint centre, int width, int height, float angle) {
    const double turn = static_cast<double>(angle) * kDegree;
    std::vector<Gdiplus::Point> corners;
    for (const auto& [right, down] :
         {std::make_pair(-0.5, -0.5), std::make_pair(0.5, -0.5), std::make_pair(0.5, 0.5),
          std::make_pair(-0.5, 0.5)}) {
        const double x = right * width;
        const double y = down * height;
        corners.emplace_back(
            centre.x + static_cast<int>(x * std::cos(turn) - y * std::sin(turn)),
            centre.y + static_cast<int>(x * std::sin(turn) + y * std::cos(turn)));
    }
    return corners;
}

int WidthOf(const CMapSurround& element, int height) {
    return static_cast<int>(static_cast<float>(height) * element.GetAspectRatio());
}

/// The box that a frame would have, with its two sides named.
void NameBox(Drawing& drawing, CPoint centre, int width, int height,
             const wchar_t* across, const wchar_t* down) {
    const int left = centre.x - width / 2;
    const int top = centre.y - height / 2;
    drawing.Outline(Turned(centre, width, height, 0.0f));
    drawing.Guide(left, top + height, left, top + height + 40);
    drawing.Guide(left + width, top + height, left + width, top + height + 40);
    drawing.Across(left, left + width, top + height + 36, across);
    drawing.Guide(left + width, top, left + width + 30, top);
    drawing.Guide(left + width, top + height, left + width + 30, top + height);
    drawing.Down(top, top + height, left + width + 24, down);
}

Drawing DrawTitle() {
    Drawing drawing(620, 330);
    const CPoint centre{250, 140};
    constexpr float kAngle = 15.0f;
    CMapTitle title;
    title.SetFontValue(L"Vegetation");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(72.0);
    title.SetFrontColor(Gdiplus::Color(0xFF9AA6B2));
    title.ResetAspectRatio();
    const int textHeight = title.GetSize();
    const int textWidth = WidthOf(title, textHeight);
    title.SetAngle(kAngle);
    title.ResetAspectRatio();
    title.Draw(drawing.Surface(), centre, 1.0);

    NameBox(drawing, centre, WidthOf(title, title.GetSize()), title.GetSize(),
            L"size \xD7 aspect ratio", L"size");
    const auto corners = Turned(centre, textWidth, textHeight, kAngle);
    drawing.Outline(corners);
    drawing.Note(corners[1].X - 120, corners[1].Y - 50, L"box of the outline");
    const auto end = Turned(centre, 460, 0, kAngle)[0];
    drawing.Guide(centre.x, centre.y, centre.x - 230, centre.y);
    drawing.Guide(centre.x, centre.y, end.X, end.Y);
    drawing.Note(centre.x - 228, centre.y - 32, L"angle");
    drawing.Mark(centre.x, centre.y, L"centre", -20, 8);
    return drawing;
}

Drawing DrawPicture() {
    Drawing drawing(820, 340);
    const SampleImage image;
    CDrawPicture picture;
    picture.Open(image.File());
    picture.SetSize(150);
    picture.ResetAspectRatio();
    const CPoint upright{150, 140};
    picture.Draw(drawing.Surface(), upright, 1.0);
    NameBox(drawing, upright, WidthOf(picture, picture.GetSize()), picture.GetSize(),
            L"size \xD7 aspect ratio", L"size");
    drawing.Mark(upright.x, upright.y, L"centre");

    constexpr float kAngle = 20.0f;
    const CPoint centre{530, 140};
    picture.SetAngle(kAngle);
    picture.ResetAspectRatio();
    picture.Draw(drawing.Surface(), centre, 1.0);
    NameBox(drawing, centre, WidthOf(picture, picture.GetNewHeight()),
            picture.GetNewHeight(), L"new height \xD7 aspect ratio", L"new height");
    drawing.Outline(Turned(centre, 2 * (WidthOf(picture, picture.GetSize()) / 2),
                           picture.GetSize(), kAngle));
    drawing.Mark(centre.x, centre.y, L"centre");
    return drawing;
}

Drawing DrawFrame() {
    Drawing drawing(840, 450);
    const CRect rect{140, 90, 540, 290};
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    CSurroundFrame frame;
    frame.DrawBorder = true;
    frame.BorderWidth = 6.0f;
    frame.BorderColor = Gdiplus::Color(0xFF5B6B7A);
    frame.BorderGapX = 40;
    frame.BorderGapY = 40;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);
    frame.FillGapX = 20;
    frame.FillGapY = 20;
    frame.DrawShadow = true;
    frame.ShadowColor = Gdiplus::Color(0x80B4BBC2);
    frame.ShadowRatioX = 0.1f;
    frame.ShadowRatioY = 0.15f;
    frame.DrawFrame(drawing.Surface(), rect);

    drawing.Outline({{rect.left, rect.top},
                     {rect.right, rect.top},
                     {rect.right, rect.bottom},
                     {rect.left, rect.bottom}});
    drawing.Note(rect.left + 130, rect.top + 60, L"the device rectangle");
    const int middle = rect.top + height / 2;
    drawing.Across(rect.left - frame.BorderGapX, rect.left, middle - 30, L"BorderGapX");
    drawing.Across(rect.left - frame.FillGapX, rect.left, middle + 40, L"FillGapX");
    drawing.Down(rect.top - frame.BorderGapY, rect.top, rect.left + 60, L"BorderGapY");
    drawing.Down(rect.top - frame.FillGapY, rect.top, rect.left + 240, L"FillGapY");

    const int outside = rect.right + 6 + frame.BorderGapX;
    const int shadow = width / 10 + 6 + frame.BorderGapX;
    const int below = rect.bottom + 142;
    for (const int x : {outside, outside + shadow}) {
        drawing.Guide(x, rect.bottom + 60, x, below);
    }
    drawing.Across(outside, outside + shadow, below,
                   L"W \xD7 ShadowRatioX + gap + width");
    drawing.Guide(rect.right, rect.top, rect.right + 120, rect.top);
    drawing.Guide(outside, rect.top + 30 + 46, rect.right + 120, rect.top + 30 + 46);
    drawing.Down(rect.top, rect.top + 30 + 46, rect.right + 110, L"H \xD7 ShadowRatioY");
    drawing.Note(rect.right + 116, rect.top + 48, L"+ gap + width");

    struct Handle {
        int x;
        int y;
    };
    const Handle kHandles[] = {
        {rect.left, rect.top},     {(rect.left + rect.right) / 2, rect.top},
        {rect.right, rect.top},    {rect.right, (rect.top + rect.bottom) / 2},
        {rect.right, rect.bottom}, {(rect.left + rect.right) / 2, rect.bottom},
        {rect.left, rect.bottom},  {rect.left, (rect.top + rect.bottom) / 2}};
    int number = 0;
    for (const Handle& handle : kHandles) {
        drawing.Mark(handle.x, handle.y, std::to_wstring(number++), 5, 3);
    }
    return drawing;
}

}  // namespace

std::vector<Picture> TitlePictureAndFrame() {
    return {
        {L"title", DrawTitle},
        {L"picture", DrawPicture},
        {L"frame", DrawFrame},
    };
}

}  // namespace gallery::annotated
