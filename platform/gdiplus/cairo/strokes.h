#pragma once

#include "cairo/pen.h"
#include "cairo/pencil.h"

namespace engine {

/// For lines, a whole coordinate is the centre of a pixel, unless the pixel offset is
/// half.
double StrokeOffset(const Graphics& graphics);

/// Strokes what the pencil traced.
GpStatus StrokeTraced(Pencil& pencil, const Pen& pen);

/// The pen's arrows on the ends of a line that leaves one point towards the next, and
/// arrives at its end from the one before.
GpStatus DrawArrows(Graphics& graphics, const Pen& pen, PointF start, PointF next,
                    PointF before, PointF end);

}  // namespace engine
