#include <array>
#include <cstddef>

#include "map_surround/north_arrow.h"
#include "north_arrow/arrow_parts.h"

using map_surround::Length;
using map_surround::LetterEdge;
using map_surround::Vertex;

CNorthArrowFourAngle::CNorthArrowFourAngle() {
    SetNorthArrowType(NorthArrowFour);
    SetAspectRatio(0.8f);
}

void CNorthArrowFourAngle::Draw(Gdiplus::Graphics* graphics, CPoint centre,
                                double scale) {
    if (graphics == nullptr) {
        return;
    }
    const Length x = centre.x;
    const Length y = centre.y;
    const Length n = map_surround::PixelSize(GetSize() * scale * 0.85);
    const Length arm = 2 * n / 5;
    const Length waist = arm / 5;

    // The star sits a waist below the pivot, which leaves room for the letter.
    const Gdiplus::Point middle = Vertex(x, y + waist);
    // Clockwise from west, the tips and the waists between them.
    const std::array<Gdiplus::Point, 8> rim{
        Vertex(x - arm, y + waist),        // W
        Vertex(x - waist, y),              // NW
        Vertex(x, y + waist - arm),        // N
        Vertex(x + waist, y),              // NE
        Vertex(x + arm, y + waist),        // E
        Vertex(x + waist, y + 2 * waist),  // SE
        Vertex(x, y + waist + arm),        // S
        Vertex(x - waist, y + 2 * waist),  // SW
    };

    map_surround::TurnArrow(graphics, centre, GetAngle());
    const map_surround::LetterFont font(static_cast<float>(n) / 5.0f);
    map_surround::WriteLetter(graphics, L"N", font, LetterEdge(x - n / 10),
                              LetterEdge(y - n / 2), GetFrontColor());
    for (std::size_t i = 0; i < rim.size(); ++i) {
        std::array<Gdiplus::Point, 4> sector{middle, rim[i], rim[(i + 1) % rim.size()],
                                             middle};
        const bool fromTip = i % 2 == 0;
        if (fromTip) {
            FillSolidPath(graphics, sector.data());
        } else {
            DrawPath(graphics, sector.data());
        }
    }
    graphics->ResetTransform();
}

void CNorthArrowFourAngle::FillSolidPath(Gdiplus::Graphics* graphics,
                                         Gdiplus::Point* points) const {
    const Gdiplus::SolidBrush brush(GetFrontColor());
    graphics->FillPolygon(&brush, points, 4, Gdiplus::FillModeAlternate);
}

void CNorthArrowFourAngle::DrawPath(Gdiplus::Graphics* graphics,
                                    Gdiplus::Point* points) const {
    Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
    path.AddLines(points, 4);
    const Gdiplus::Pen pen(GetFrontColor(), 1.0f);
    graphics->DrawPath(&pen, &path);
}
