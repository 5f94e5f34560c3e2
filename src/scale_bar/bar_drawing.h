#pragma once

#include <gdiplus.h>

#include <optional>

#include "element/numbers.h"
#include "map_surround/scale_bar.h"
#include "scale_bar/division_value.h"

namespace map_surround {

/// What a style adds to a length in pixels before truncating it.
struct Rounding {
    double height = 0.0;
    double halves = 0.0;  ///< to half the height and half the width
};

/// The rectangle of a bar in device pixels, around its centre; width and height are even.
Gdiplus::Rect BarRect(const CScaleBarBase& bar, CPoint centre, double scale,
                      Rounding rounding = {});

/// A point of the layout, before it is clamped to the device's 32 bits.
struct BarPoint {
    Length x = 0;
    Length y = 0;
};

/// One drawing of a bar: the lengths that every style starts from, in device pixels, and
/// what all styles draw alike. Made anew by each call of a style's DrawDivision.
class BarDrawing {
public:
    /// Nothing if the bar has no division value, and so nothing to draw, and without a
    /// surface.
    static std::optional<BarDrawing> Begin(const CScaleBarBase& bar,
                                           Gdiplus::Graphics* graphics,
                                           const Gdiplus::Rect& rect, double scale,
                                           LabelOfOne labelOfOne = LabelOfOne::Whole);

    Length mainCount;
    Length subCount;

    Length height;      ///< of the rectangle
    Length tickTop;     ///< two thirds down
    Length bottom;      ///< the foot of the ticks
    Length firstX;      ///< where the first division begins
    Length step;        ///< from one main division to the next, in whole pixels
    double subStep;     ///< from one sub-division to the next
    double fullLength;  ///< of a division before rounding

    /// A pen in the front colour, as many pixels wide as the drawing scale.
    Gdiplus::Pen MakePen() const;
    Gdiplus::SolidBrush MakeBrush() const;
    Gdiplus::Font MakeLabelFont() const;

    void DrawLine(const Gdiplus::Pen& pen, BarPoint from, BarPoint to) const;

    /// Writes the value at the division boundary of that index, starting an eighth of the
    /// height to its left.
    void DrawLabel(const Gdiplus::Font& font, Length index, Length x) const;

    /// Writes the unit name at the bar's unit position, `rise` above the end of the last
    /// division.
    void DrawUnitName(BarPoint end, Length rise) const;

private:
    BarDrawing(const CScaleBarBase& bar, Gdiplus::Graphics* graphics,
               const Gdiplus::Rect& rect, double scale, DivisionValue value);

    Gdiplus::PointF UnitNameOrigin(BarPoint end, Length rise) const;

    const CScaleBarBase* m_bar;
    Gdiplus::Graphics* m_graphics;
    Gdiplus::Rect m_rect;
    double m_scale;
    DivisionValue m_value;
};

}  // namespace map_surround
