#pragma once

#include "cairo/pen.h"
#include "cairo/pencil.h"

namespace engine {

/// A whole coordinate is the middle of a pixel for lines, unless the pixel offset is
/// half.
double StrokeOffset(const Graphics& graphics);

/// Strokes what the pencil traced.
GpStatus StrokeTraced(Pencil& pencil, const Pen& pen);

/// The pen's arrows on the ends of a line that starts from one point towards the next,
/// and comes to its end from the one before.
GpStatus DrawArrows(Graphics& graphics, const Pen& pen, PointF start, PointF next,
                    PointF before, PointF end);

}  // namespace engine
