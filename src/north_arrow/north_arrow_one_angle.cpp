#include "map_surround/north_arrow.h"
#include "north_arrow/arrow_parts.h"

using map_surround::Length;
using map_surround::LetterEdge;
using map_surround::Vertex;

CNorthArrowOneAngle::CNorthArrowOneAngle() {
    SetNorthArrowType(NorthArrowOne);
    SetAspectRatio(1.0f);
}

void CNorthArrowOneAngle::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    const Length x = centre.x;
    const Length y = centre.y;
    const Length n = map_surround::PixelSize(GetSize() * scale);
    const Length m = 2 * n;
    const auto pixels = static_cast<float>(n);
    // Not of the whole pixels n: a small arrow's shaft thins evenly with its size.
    const float shaftWidth =
        static_cast<float>(GetSize()) * static_cast<float>(scale) / 100.0f;

    // Black on every map; the front colour is the letter's alone.
    Gdiplus::Pen shaft(Gdiplus::Color(0xFF000000), shaftWidth);
    const int filled = 1;
    const Gdiplus::AdjustableArrowCap head(pixels / 10.0f, pixels / 20.0f, filled);
    // A pen that could not be made takes no cap: GDI+ does not survive the attempt.
    if (shaft.GetLastStatus() == Gdiplus::Ok) {
        shaft.SetCustomEndCap(&head);
    }

    map_surround::TurnArrow(graphics, centre, GetAngle());
    const map_surround::LetterFont font(pixels * 4.0f / 15.0f);
    map_surround::WriteLetter(graphics, L"N", font, LetterEdge(x - m / 15), LetterEdge(y),
                              GetFrontColor());
    graphics->DrawLine(&shaft, Vertex(x, y - m / 25), Vertex(x, y - m / 5));
    graphics->ResetTransform();
}
