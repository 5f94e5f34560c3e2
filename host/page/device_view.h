#pragma once

#include "host/device_geometry.h"
#include "host/raster_data.h"

namespace host {

/// A page seen at a resolution: from page units, y growing upwards from the bottom left
/// corner, to device pixels, y growing downwards from the top left corner.
///
/// Every edge is rounded by itself to the nearest pixel boundary, halves upwards, so that
/// frames which touch on the page touch on the device. On a page 200 units high at 150
/// dpi, the extent from (10, 20) to (50, 100) is the rectangle (16, 156, 78, 281).
class DeviceView {
public:
    /// @param pageHeight page units
    /// @param dpi device pixels per inch
    DeviceView(double pageHeight, double dpi);

    /// Device pixels per page unit: 1.5625 at 150 dpi.
    double Scale() const { return m_scale; }

    /// A length on the page in whole pixels.
    int ToDevice(double length) const;
    CPoint ToDevice(CPoint2D point) const;
    CRect ToDevice(const CBoundingBox& extent) const;

private:
    double m_pageHeight;
    double m_scale;
};

/// The pixel in the middle of a rectangle.
CPoint Centre(const CRect& rect);

}  // namespace host
