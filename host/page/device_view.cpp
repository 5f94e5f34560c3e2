#include "page/device_view.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "page/units.h"

namespace host {
namespace {

// Far beyond any device, and small enough that differences stay within 32 bits.
constexpr double kFarthestPixel = 1.0e9;

int Nearest(double pixels) {
    if (std::isnan(pixels)) {
        return 0;
    }
    return static_cast<int>(
        std::floor(std::clamp(pixels, -kFarthestPixel, kFarthestPixel) + 0.5));
}

}  // namespace

DeviceView::DeviceView(double pageHeight, double dpi)
    : m_pageHeight(pageHeight), m_scale(dpi / kUnitsPerInch) {}

int DeviceView::ToDevice(double length) const { return Nearest(length * m_scale); }

CPoint DeviceView::ToDevice(CPoint2D point) const {
    return {ToDevice(point.x), ToDevice(m_pageHeight - point.y)};
}

CRect DeviceView::ToDevice(const CBoundingBox& extent) const {
    const CPoint2D corner = extent.TopLeft();
    const CPoint topLeft = ToDevice(corner);
    const CPoint bottomRight =
        ToDevice(CPoint2D(corner.x + extent.GetWidth(), corner.y - extent.GetHeight()));
    return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

CPoint Centre(const CRect& rect) {
    return {rect.left + (rect.right - rect.left) / 2,
            rect.top + (rect.bottom - rect.top) / 2};
}

}  // namespace host
