#pragma once

#include "map_surround/frame.h"

namespace host {

/// A frame that holds its element off the middle, and keeps a scale bar true to the map
/// at any resolution.
class PlacedFrame : public CSurroundFrame {
public:
    /// Where the element's centre stands from the middle of the frame: page units, y
    /// growing upwards.
    void SetElementOffset(double dx, double dy);
    CPoint2D ElementOffset() const { return {m_offsetX, m_offsetY}; }

    /// The length on the page, in page units, of a scale bar's division before it is
    /// rounded to a nice value. Has no meaning for other elements.
    void SetDivisionLength(double length) { m_divisionLength = length; }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override;

private:
    double m_offsetX = 0.0;
    double m_offsetY = 0.0;
    double m_divisionLength = 0.0;
};

}  // namespace host
