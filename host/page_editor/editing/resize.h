#pragma once

#include "map_surround/kit/handles.h"
#include "page/box.h"

namespace page_editor {

using map_surround::kit::kHandles;
using map_surround::kit::kSmallestSide;
using map_surround::kit::PullOf;

/// The position of a box's handle.
inline CPoint2D HandleAt(const host::Box& box, int handle) {
    return map_surround::kit::HandleAt(host::BoundingBoxOf(box), handle);
}

/// A box after a handle was dragged to a point.
inline host::Box Resized(const host::Box& box, int handle, CPoint2D to,
                         bool keepProportions) {
    return host::BoxOf(
        map_surround::kit::Pulled(host::BoundingBoxOf(box), handle, to, keepProportions));
}

}  // namespace page_editor
