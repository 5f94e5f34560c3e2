#pragma once

/// @file
/// North arrows and their styles.

#include <gdiplus.h>

#include <cstdint>

#include "host/device_geometry.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

/// The style of a north arrow; each class's constructor sets its own.
enum NorthArrowType : std::int32_t {
    NorthArrowOne = 1,
    NorthArrowTwo = 2,
    NorthArrowFour = 3,
    NorthArrowEight = 4,
};

/// An arrow that points to the map's north. A host chooses a style by constructing its
/// class.
///
/// Conventions of every style:
/// - At angle 0 the arrow points up. The host sets the angle to the direction of north on
///   its map, in degrees clockwise; the letters rotate with the arrow.
/// - The pixel size n is size times scale, rounded half up: size 5 at scale 0.5 is 2.5,
///   so 3 pixels. CNorthArrowFourAngle alone takes 85 % of the size first.
/// - Every other length is a fraction of n, truncated to whole pixels on its own and in a
///   fixed order, so that a size gives the same vertices everywhere. Left may differ from
///   right by a pixel, and top from bottom.
/// - Fills, outlines and letters are in the front colour. Outlines are one pixel wide at
///   any scale. Letters are in Arial.
/// - Nothing is checked. An arrow of no pixels draws its shapes as points, and its
///   letters fail, since GDI+ has no font of height 0.
/// - Each style has fixed proportions: Draw does not read the aspect ratio, which only
///   says how much room the style needs, and ResetAspectRatio() leaves it alone.
/// @see [North arrows](docs/elements/north_arrows.md)
class MAP_SURROUND_API CNorthArrowBase : public CMapSurround {
public:
    CNorthArrowBase();

    /// Which style the arrow is. Changing it does not change what is drawn.
    NorthArrowType GetNorthArrowType() const { return m_northArrowType; }
    void SetNorthArrowType(NorthArrowType type) { m_northArrowType = type; }

private:
    NorthArrowType m_northArrowType{};
};

/// A shaft with a filled arrowhead, and the letter N below the pivot.
///
/// The shaft and its head are black, whatever the front colour; only the letter takes
/// the front colour. At n = 100 the shaft runs from 8 to 40 pixels above the centre, one
/// pixel wide, with a head 10 pen widths long and 5 wide. Both the pen and the head's
/// length in pen widths grow with n, so the head's length in pixels grows with its
/// square: past n = 320 it is longer than the shaft.
/// @see [North arrows](docs/elements/north_arrows.md)
class MAP_SURROUND_API CNorthArrowOneAngle : public CNorthArrowBase {
public:
    CNorthArrowOneAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;
};

/// A tall arrowhead with a notch, its right half filled and its left half outlined, and
/// the letter N above the tip.
///
/// At n = 100 the tip is 34 pixels above the centre, the notch 20 and the corners 40
/// below it, and the corners are 20 to each side.
/// @see [North arrows](docs/elements/north_arrows.md)
class MAP_SURROUND_API CNorthArrowTwoAngle : public CNorthArrowBase {
public:
    CNorthArrowTwoAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;
};

/// A star with a point to each cardinal direction, and the letter N above it.
///
/// Each arm is split along its axis; the half clockwise of the tip is filled, the other
/// outlined. The star takes 85 % of the size and sits a little below the centre, which
/// leaves room for the letter: at size 100 and scale 1, n is 85, the arms are 34 long and
/// the star's own centre is 6 below.
/// @see [North arrows](docs/elements/north_arrows.md)
class MAP_SURROUND_API CNorthArrowFourAngle : public CNorthArrowBase {
public:
    CNorthArrowFourAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// Fills a figure of four points with the front colour, in the current world
    /// transform.
    /// @param points four device points, not null; not owned
    void FillSolidPath(Gdiplus::Graphics* graphics, Gdiplus::Point* points) const;

    /// Draws three lines in the front colour through four points, in the current world
    /// transform. Repeat the first point as the last to close the figure.
    /// @param points four device points, not null; not owned
    void DrawPath(Gdiplus::Graphics* graphics, Gdiplus::Point* points) const;
};

/// A compass rose of eight points, with the letters N, W, S and E around it.
///
/// Every point is split along its axis; the half clockwise of the tip is filled, and all
/// halves are outlined. The rose is centred on the pivot, but its inner points lie on
/// thirds and fifths of its width, each truncated from the left or the top: at n = 100,
/// where the cardinal points are 40 from the centre, they are 14 pixels left of it and 13
/// right of it.
/// @see [North arrows](docs/elements/north_arrows.md)
class MAP_SURROUND_API CNorthArrowEightAngle : public CNorthArrowBase {
public:
    CNorthArrowEightAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;
};
