#pragma once

#include "page_editor/editing/arrange.h"

namespace page_editor {

/// The handles of a frame, as CFrameBase::HitTest numbers them.
constexpr int kHandles = 8;

/// Which way a handle pulls: -1 for the left or the bottom edge, 1 for the right or the
/// top edge, 0 for neither.
struct Pull {
    int x = 0;
    int y = 0;
};

Pull PullOf(int handle);

/// Where a handle of a box stands.
CPoint2D HandleAt(const host::Box& box, int handle);

/// A box whose handle was pulled to a point; the opposite edge or corner stays. It is
/// never smaller than kSmallestSide either way, and never turns inside out.
/// @param keepProportions grow both ways as far as the larger pull asks; at the middle of
/// an edge, the middle of the opposite edge stays. A box of 100 by 50 whose right edge is
/// pulled by 20 is then 120 by 60
host::Box Resized(const host::Box& box, int handle, CPoint2D to, bool keepProportions);

constexpr double kSmallestSide = 2.0;

}  // namespace page_editor
