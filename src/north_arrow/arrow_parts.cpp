#include "north_arrow/arrow_parts.h"

#include "element/rotation.h"
#include "element/text_outline.h"

map_surround::Length map_surround::PixelSize(double height) {
    return Truncate(height + 0.5);
}

Gdiplus::Point map_surround::Vertex(Length x, Length y) {
    return Gdiplus::Point(ToDevice(x), ToDevice(y));
}

Gdiplus::REAL map_surround::LetterEdge(Length coordinate) {
    return static_cast<Gdiplus::REAL>(ToDevice(coordinate));
}

Gdiplus::REAL map_surround::LetterEdge(double coordinate) {
    return static_cast<Gdiplus::REAL>(coordinate);
}

void map_surround::TurnArrow(Gdiplus::Graphics* graphics, CPoint centre,
                             Gdiplus::REAL angle) {
    TurnAbout(*graphics, static_cast<Gdiplus::REAL>(centre.x),
              static_cast<Gdiplus::REAL>(centre.y), angle);
}

map_surround::LetterFont::LetterFont(Gdiplus::REAL emSize)
    : family(L"Arial"),
      font(&family, emSize, Gdiplus::FontStyleRegular, Gdiplus::UnitPixel) {}

void map_surround::WriteLetter(Gdiplus::Graphics* graphics, const wchar_t* letter,
                               const LetterFont& font, Gdiplus::REAL left,
                               Gdiplus::REAL top, Gdiplus::Color color) {
    const Gdiplus::SolidBrush brush(color);
    WriteText(graphics, letter, font.font, Gdiplus::PointF(left, top), brush);
}

void map_surround::OutlineTriangle(Gdiplus::Graphics* graphics, const Triangle& triangle,
                                   Gdiplus::Color color) {
    const Gdiplus::Pen pen(color, 1.0f);
    graphics->DrawPolygon(&pen, triangle.data(), 3);
}

void map_surround::FillTriangle(Gdiplus::Graphics* graphics, const Triangle& triangle,
                                const Gdiplus::Brush& brush) {
    graphics->FillPolygon(&brush, triangle.data(), 3, Gdiplus::FillModeAlternate);
}
