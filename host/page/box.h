#pragma once

#include "host/raster_data.h"

namespace host {

/// A rectangle whose y grows upwards: on the page in page units, or on a map in the units
/// of its coordinate system.
struct Box {
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    constexpr double Width() const { return right - left; }
    constexpr double Height() const { return top - bottom; }
    constexpr double MiddleX() const { return left + Width() / 2.0; }
    constexpr double MiddleY() const { return bottom + Height() / 2.0; }
};

/// The box less a margin on every side.
constexpr Box Inset(const Box& box, double rim) {
    return {box.left + rim, box.bottom + rim, box.right - rim, box.top - rim};
}

/// A box as the extent of a frame, and back.
inline CBoundingBox BoundingBoxOf(const Box& box) {
    return {box.left, box.bottom, box.right, box.top};
}
inline Box BoxOf(const CBoundingBox& extent) {
    const CPoint2D corner = extent.TopLeft();
    return {corner.x, corner.y - extent.GetHeight(), corner.x + extent.GetWidth(),
            corner.y};
}

}  // namespace host
