#pragma once

/// @file
/// The eight handles of a frame: their positions, and what dragging one does.

#include <gdiplus.h>

#include <algorithm>

#include "host/device_geometry.h"
#include "host/raster_data.h"

namespace map_surround::kit {

/// The handles of a frame, as CFrameBase::HitHandle numbers them: clockwise from the top
/// left.
constexpr int kHandles = 8;

/// The edges that a handle moves: -1 for the left or the bottom edge, 1 for the right or
/// the top edge, 0 for neither.
struct Pull {
    int x = 0;  ///< -1, 0 or 1, as y.
    int y = 0;  ///< Likewise.
};

/// The edges that a handle moves.
/// @param handle 0 to 7; any other moves none
constexpr Pull PullOf(int handle) {
    constexpr Pull kPulls[kHandles] = {{-1, 1}, {0, 1},  {1, 1},   {1, 0},
                                       {1, -1}, {0, -1}, {-1, -1}, {-1, 0}};
    return handle >= 0 && handle < kHandles ? kPulls[handle] : Pull();
}

/// The position of a handle of an extent, page units.
inline CPoint2D HandleAt(const CBoundingBox& extent, int handle) {
    const Pull pull = PullOf(handle);
    const CPoint2D corner = extent.TopLeft();
    return {corner.x + extent.GetWidth() * (1 + pull.x) / 2.0,
            corner.y - extent.GetHeight() * (1 - pull.y) / 2.0};
}

/// Dragging makes no side shorter than this, page units.
constexpr double kSmallestSide = 2.0;

/// An extent after a handle was dragged to a point; the opposite edge or corner stays.
/// Neither side gets shorter than kSmallestSide, and the extent never turns inside out.
/// @param keepProportions resize both sides by the larger factor; from the middle of an
/// edge, the middle of the opposite edge stays. An extent of 100 by 50 whose right edge
/// is dragged by 20 is then 120 by 60
inline CBoundingBox Pulled(const CBoundingBox& extent, int handle, CPoint2D to,
                           bool keepProportions) {
    const Pull pull = PullOf(handle);
    const double oldWidth = extent.GetWidth();
    const double oldHeight = extent.GetHeight();
    const double left = extent.TopLeft().x;
    const double bottom = extent.TopLeft().y - oldHeight;
    // The side's length, from the edge that stays to the point.
    const auto length = [](int way, double low, double old, double point) {
        const double asked = way < 0 ? low + old - point : way > 0 ? point - low : old;
        return std::max(kSmallestSide, asked);
    };
    double width = length(pull.x, left, oldWidth, to.x);
    double height = length(pull.y, bottom, oldHeight, to.y);
    if (keepProportions && oldWidth > 0.0 && oldHeight > 0.0) {
        const double across = width / oldWidth;
        const double upwards = height / oldHeight;
        const double asked = pull.x == 0   ? upwards
                             : pull.y == 0 ? across
                                           : std::max(across, upwards);
        const double factor =
            std::max({asked, kSmallestSide / oldWidth, kSmallestSide / oldHeight});
        width = oldWidth * factor;
        height = oldHeight * factor;
    }
    if (!keepProportions) {
        width = pull.x == 0 ? oldWidth : width;
        height = pull.y == 0 ? oldHeight : height;
    }
    const double newLeft = left + (oldWidth - width) * (1 - pull.x) / 2.0;
    const double newBottom = bottom + (oldHeight - height) * (1 - pull.y) / 2.0;
    return {newLeft, newBottom, newLeft + width, newBottom + height};
}

/// Fills a square on each handle. Draw them last, and only on the screen.
/// @param rect the frame's rectangle, device pixels
/// @param side of a square, device pixels; 7 extends from 3 before a handle to 3 after it
inline void DrawHandles(Gdiplus::Graphics& graphics, const CRect& rect, int side,
                        Gdiplus::Color color) {
    const Gdiplus::SolidBrush brush(color);
    for (int handle = 0; handle < kHandles; ++handle) {
        const Pull pull = PullOf(handle);
        const int x = rect.left + (rect.right - rect.left) * (1 + pull.x) / 2;
        const int y = rect.top + (rect.bottom - rect.top) * (1 - pull.y) / 2;
        graphics.FillRectangle(&brush, x - side / 2, y - side / 2, side, side);
    }
}

}  // namespace map_surround::kit
