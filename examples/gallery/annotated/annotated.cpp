#include "annotated.h"

#include <cmath>

#include "../drawing.h"

namespace gallery::annotated {
namespace {

const Gdiplus::Color kDimension{0xFFC02A1D};
const Gdiplus::Color kGuide{0xFFE3A49E};
const Gdiplus::Color kBehindText{0xE6FFFFFF};
constexpr float kTextSize = 15.0f;
constexpr int kArrowLength = 8;
constexpr int kArrowHalfWidth = 3;

/// Between shorter ends the arrows point inwards from outside.
constexpr int kRoomForArrows = 24;

}  // namespace

Drawing::Drawing(int width, int height)
    : m_bitmap(new Gdiplus::Bitmap(width, height)),
      m_graphics(new Gdiplus::Graphics(m_bitmap.get())) {
    m_graphics->Clear(Gdiplus::Color(0xFFFFFFFF));
    Smooth(m_graphics.get());
}

Gdiplus::RectF Drawing::Measure(const std::wstring& text) {
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::Font font(&family, kTextSize, Gdiplus::FontStyleRegular,
                             Gdiplus::UnitPixel);
    Gdiplus::RectF box;
    m_graphics->MeasureString(text.c_str(), static_cast<int>(text.size()), &font,
                              Gdiplus::PointF(0.0f, 0.0f), &box);
    return box;
}

void Drawing::Note(int x, int y, const std::wstring& text) {
    const Gdiplus::RectF box = Measure(text);
    const Gdiplus::SolidBrush behind(kBehindText);
    m_graphics->FillRectangle(&behind, x, y, static_cast<int>(box.Width),
                              static_cast<int>(box.Height));
    Write(m_graphics.get(), text, kTextSize, Gdiplus::FontStyleRegular, kDimension, x, y);
}

void Drawing::Arrowed(Gdiplus::Point from, Gdiplus::Point to) {
    const int length = std::abs(to.X - from.X) + std::abs(to.Y - from.Y);
    const int along = length < kRoomForArrows ? -kArrowLength : kArrowLength;
    const bool across = from.Y == to.Y;
    const Gdiplus::Pen pen(kDimension, 1.2f);
    const Gdiplus::SolidBrush brush(kDimension);
    m_graphics->DrawLine(&pen, from, to);
    for (const auto& [tip, inwards] :
         {std::make_pair(from, along), std::make_pair(to, -along)}) {
        Gdiplus::Point head[] = {tip, tip, tip};
        for (int side = 1; side <= 2; ++side) {
            const int out = side == 1 ? -kArrowHalfWidth : kArrowHalfWidth;
            head[side].X += across ? inwards : out;
            head[side].Y += across ? out : inwards;
        }
        m_graphics->FillPolygon(&brush, head, 3);
    }
}

void Drawing::Across(int x1, int x2, int y, const std::wstring& name) {
    Arrowed({x1, y}, {x2, y});
    const int width = static_cast<int>(Measure(name).Width);
    Note((x1 + x2 - width) / 2, y - 20, name);
}

void Drawing::Down(int y1, int y2, int x, const std::wstring& name) {
    Arrowed({x, y1}, {x, y2});
    Note(x + 6, (y1 + y2) / 2 - 9, name);
}

void Drawing::Guide(int x1, int y1, int x2, int y2) {
    Gdiplus::Pen pen(kGuide, 1.0f);
    m_graphics->DrawLine(&pen, x1, y1, x2, y2);
}

void Drawing::Outline(const std::vector<Gdiplus::Point>& corners) {
    Gdiplus::Pen pen(kDimension, 1.0f);
    pen.SetDashStyle(Gdiplus::DashStyleDash);
    m_graphics->DrawPolygon(&pen, corners.data(), static_cast<int>(corners.size()));
}

void Drawing::Mark(int x, int y, const std::wstring& name, int dx, int dy) {
    const Gdiplus::SolidBrush brush(kDimension);
    m_graphics->FillRectangle(&brush, x - 3, y - 3, 6, 6);
    Note(x + dx, y + dy, name);
}

bool Drawing::Save(const std::wstring& file) {
    m_graphics.reset();
    return SavePng(*m_bitmap, file);
}

}  // namespace gallery::annotated
