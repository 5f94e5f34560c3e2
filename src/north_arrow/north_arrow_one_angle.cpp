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
    if (graphics == nullptr) {
        return;
    }
    const Length x = centre.x;
    const Length y = centre.y;
    const Length n = map_surround::PixelSize(GetSize() * scale);
    const Length m = 2 * n;
    const auto pixels = static_cast<float>(n);
    // Not from the whole pixels n, so that a small arrow's shaft thins evenly with size.
    const float shaftWidth =
        static_cast<float>(GetSize()) * static_cast<float>(scale) / 100.0f;

    // Always black: only the letter takes the front colour.
    Gdiplus::Pen shaft(Gdiplus::Color(0xFF000000), shaftWidth);
    const int filled = 1;
    const Gdiplus::AdjustableArrowCap head(pixels / 10.0f, pixels / 20.0f, filled);
    // GDI+ crashes when a cap is set on a pen that could not be created.
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
