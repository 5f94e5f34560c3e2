#include <array>

#include "map_surround/north_arrow.h"
#include "north_arrow/arrow_parts.h"

using map_surround::Length;
using map_surround::LetterEdge;
using map_surround::LetterFont;
using map_surround::Triangle;
using map_surround::Vertex;
using map_surround::WriteLetter;

namespace {

/// The grid lines of the rose's square, from left to right and from top to bottom.
enum GridLine {
    Edge,
    Fifth,
    Third,
    TwoFifths,
    Half,
    ThreeFifths,
    TwoThirds,
    FourFifths,
    FarEdge
};

/// Where two grid lines cross.
struct GridPoint {
    GridLine x, y;
};

constexpr GridPoint kCentre{Half, Half};

constexpr GridPoint kW{Edge, Half};
constexpr GridPoint kNW{Fifth, Fifth};
constexpr GridPoint kN{Half, Edge};
constexpr GridPoint kNE{FourFifths, Fifth};
constexpr GridPoint kE{FarEdge, Half};
constexpr GridPoint kSE{FourFifths, FourFifths};
constexpr GridPoint kS{Half, FarEdge};
constexpr GridPoint kSW{Fifth, FourFifths};

// The inner points, between each point of the compass and the next one clockwise.
constexpr GridPoint kWtoNW{Third, TwoFifths};
constexpr GridPoint kNWtoN{TwoFifths, Third};
constexpr GridPoint kNtoNE{ThreeFifths, Third};
constexpr GridPoint kNEtoE{TwoThirds, TwoFifths};
constexpr GridPoint kEtoSE{TwoThirds, ThreeFifths};
constexpr GridPoint kSEtoS{ThreeFifths, TwoThirds};
constexpr GridPoint kStoSW{TwoFifths, TwoThirds};
constexpr GridPoint kSWtoW{Third, ThreeFifths};

/// Half of one of the rose's points: its vertices in drawing order.
struct Sector {
    GridPoint first, second, third;
    bool filled;
};

constexpr std::array<Sector, 16> kSectors{{
    {kW, kWtoNW, kCentre, true},
    {kNW, kCentre, kWtoNW, false},
    {kNW, kNWtoN, kCentre, true},
    {kNWtoN, kN, kCentre, false},
    {kN, kNtoNE, kCentre, true},
    {kNtoNE, kNE, kCentre, false},
    {kNE, kCentre, kNEtoE, true},
    {kE, kCentre, kNEtoE, false},
    {kCentre, kEtoSE, kE, true},
    {kSE, kEtoSE, kCentre, false},
    {kSE, kSEtoS, kCentre, true},
    {kS, kSEtoS, kCentre, false},
    {kStoSW, kS, kCentre, true},
    {kSW, kStoSW, kCentre, false},
    {kSWtoW, kSW, kCentre, true},
    {kW, kSWtoW, kCentre, false},
}};

}  // namespace

CNorthArrowEightAngle::CNorthArrowEightAngle() {
    SetNorthArrowType(NorthArrowEight);
    SetAspectRatio(1.0f);
}

void CNorthArrowEightAngle::Draw(Gdiplus::Graphics* graphics, CPoint centre,
                                 double scale) {
    if (graphics == nullptr) {
        return;
    }
    const Gdiplus::SolidBrush fill(GetFrontColor());
    const Length x = centre.x;
    const Length y = centre.y;
    const Length n = map_surround::PixelSize(GetSize() * scale);
    const auto pixels = static_cast<double>(n);
    const Length radius = 2 * n / 5;
    const Length left = x - radius;
    const Length top = y - radius;
    const Length width = 2 * radius;

    map_surround::TurnArrow(graphics, centre, GetAngle());

    const float emSize = static_cast<float>(n) / 10.0f;
    const LetterFont northFont(emSize);
    WriteLetter(graphics, L"N", northFont, LetterEdge(x - n / 18),
                LetterEdge(static_cast<double>(y - radius) - pixels * 1.5 / 15.0),
                GetFrontColor());
    const LetterFont westFont(emSize);
    WriteLetter(graphics, L"W", westFont,
                LetterEdge(static_cast<double>(x) - pixels * 2.6 / 5.0),
                LetterEdge(y - n / 17), GetFrontColor());
    const LetterFont southFont(emSize);
    WriteLetter(graphics, L"S", southFont, LetterEdge(x - n / 18), LetterEdge(y + radius),
                GetFrontColor());
    const LetterFont eastFont(emSize);
    WriteLetter(graphics, L"E", eastFont, LetterEdge(x + radius), LetterEdge(y - n / 16),
                GetFrontColor());

    // In the order of GridLine. Each is truncated on its own, so the rose is not quite
    // symmetric; this is intended.
    const std::array<Length, 9> grid{
        0,         width / 5,     width / 3,     2 * width / 5,
        width / 2, 3 * width / 5, 2 * width / 3, 4 * width / 5,
        width};
    const auto at = [&](GridPoint point) {
        return Vertex(left + grid[point.x], top + grid[point.y]);
    };
    for (const Sector& sector : kSectors) {
        const Triangle triangle{at(sector.first), at(sector.second), at(sector.third)};
        map_surround::OutlineTriangle(graphics, triangle, GetFrontColor());
        if (sector.filled) {
            map_surround::FillTriangle(graphics, triangle, fill);
        }
    }
    graphics->ResetTransform();
}
