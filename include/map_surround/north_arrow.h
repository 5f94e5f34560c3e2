#pragma once

/// @file
/// North arrows and their styles.

#include <gdiplus.h>

#include <cstdint>

#include "host/device_geometry.h"
#include "map_surround/element.h"
#include "map_surround/export.h"

/// The style of a north arrow, as each class's constructor sets it.
enum NorthArrowType : std::int32_t {
    NorthArrowOne = 1,
    NorthArrowTwo = 2,
    NorthArrowFour = 3,
    NorthArrowEight = 4,
};

/// A sign that points to the map's north. A host chooses a style by constructing its
/// class.
///
/// Conventions of every style:
/// - North is up the surface at angle 0. The host sets the angle to the direction of
///   north on its map, in degrees clockwise; the letters turn with the arrow.
/// - The pixel size n is size times scale, rounded half up: size 5 at scale 0.5 is 3
///   pixels, for 2.5 + 0.5 is 3. Only CNorthArrowFourAngle takes less.
/// - Every other length is a fraction of n in whole pixels, cut off by itself and in a
///   fixed order, so that a size gives the same vertices everywhere. Left may differ from
///   right by a pixel, and top from bottom.
/// - Fills, outlines and letters are in the front colour. Outlines are one unit wide.
///   Letters are in Arial.
/// - Nothing is checked. An arrow of no pixels draws its shapes as points; its letters
///   fail then, for GDI+ has no font without a height.
/// - The proportions are those of the style: drawing does not read the aspect ratio,
///   which tells only how much room the style wants, and ResetAspectRatio() leaves it.
class MAP_SURROUND_API CNorthArrowBase : public CMapSurround {
public:
    CNorthArrowBase();

    /// Tells which style an arrow is. Changing it does not change what is drawn.
    NorthArrowType GetNorthArrowType() const { return m_northArrowType; }
    void SetNorthArrowType(NorthArrowType type) { m_northArrowType = type; }

private:
    NorthArrowType m_northArrowType{};
};

/// A shaft with a filled arrowhead, and the letter N below the pivot.
///
/// The shaft and its head are black, whatever the front colour is; the letter has the
/// front colour. At n = 100 the shaft goes from 8 to 40 pixels above the centre, one
/// pixel wide, with a head 10 pen widths high and 5 wide. Pen and head both grow with n,
/// so the head's length in pixels grows with its square: past n = 320 it is longer than
/// the shaft.
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
class MAP_SURROUND_API CNorthArrowTwoAngle : public CNorthArrowBase {
public:
    CNorthArrowTwoAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;
};

/// A star with a point to each cardinal direction, and the letter N above it.
///
/// Each arm is split along its axis; the half that follows the tip clockwise is filled,
/// the other is outlined. The star takes 85 % of the size and sits a little below the
/// centre, to leave room for the letter: at size 100 and scale 1, n is 85, the arms are
/// 34 long and the star's own centre is 6 below.
class MAP_SURROUND_API CNorthArrowFourAngle : public CNorthArrowBase {
public:
    CNorthArrowFourAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

    /// Fills a figure of four points with the front colour, in the world transform that
    /// the surface has.
    /// @param points four device points, not null; not owned
    void FillSolidPath(Gdiplus::Graphics* graphics, Gdiplus::Point* points) const;

    /// Draws three lines in the front colour from the first of four points to the last,
    /// in the world transform that the surface has. The figure is closed when the caller
    /// repeats its first point.
    /// @param points four device points, not null; not owned
    void DrawPath(Gdiplus::Graphics* graphics, Gdiplus::Point* points) const;
};

/// A compass rose of eight points, with the letters N, W, S and E around it.
///
/// Every point is split along its axis; the half that follows the tip clockwise is
/// filled, and all halves are outlined. The rose is centred on the pivot, but its inner
/// points stand on thirds and fifths of its width, each cut off from the left or the
/// top: at n = 100, 14 pixels left of the centre and 13 right of it. The cardinal points
/// are 40 from the centre then.
class MAP_SURROUND_API CNorthArrowEightAngle : public CNorthArrowBase {
public:
    CNorthArrowEightAngle();

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;
};
