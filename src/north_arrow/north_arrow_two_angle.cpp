#include "map_surround/north_arrow.h"
#include "north_arrow/arrow_parts.h"

using map_surround::Length;
using map_surround::LetterEdge;
using map_surround::Vertex;

CNorthArrowTwoAngle::CNorthArrowTwoAngle() {
    SetNorthArrowType(NorthArrowTwo);
    SetAspectRatio(1.0f);
}

void CNorthArrowTwoAngle::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (graphics == nullptr) {
        return;
    }
    const Length x = centre.x;
    const Length y = centre.y;
    const Length n = map_surround::PixelSize(GetSize() * scale);
    const Length notch = n / 5;
    const Length corner = 2 * n / 5;
    const Length tip = 17 * n / 50;

    // The left corner is as far out as the corners are below the notch, for two sizes in
    // five a pixel further than the right one; this is intended.
    const map_surround::Triangle rightHalf{Vertex(x + notch, y + corner),
                                           Vertex(x, y + notch), Vertex(x, y - tip)};
    const map_surround::Triangle leftHalf{Vertex(x + (notch - corner), y + corner),
                                          Vertex(x, y - tip), Vertex(x, y + notch)};
    const double letterTop = static_cast<double>(y) - static_cast<double>(n) * 1.5 / 5.0 -
                             static_cast<double>(notch);

    const Gdiplus::SolidBrush brush(GetFrontColor());
    map_surround::TurnArrow(graphics, centre, GetAngle());
    const map_surround::LetterFont font(static_cast<float>(n) * 2.0f / 15.0f);
    map_surround::WriteLetter(graphics, L"N", font, LetterEdge(x - n / 6 * 2 / 5),
                              LetterEdge(letterTop), GetFrontColor());
    map_surround::OutlineTriangle(graphics, rightHalf, GetFrontColor());
    map_surround::FillTriangle(graphics, rightHalf, brush);
    map_surround::OutlineTriangle(graphics, leftHalf, GetFrontColor());
    graphics->ResetTransform();
}
