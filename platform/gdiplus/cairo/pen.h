#pragma once

#include <optional>

#include "cairo/flat_functions.h"

namespace engine {

/// An arrowhead; height and width in widths of the pen that carries it.
struct ArrowCap : GpAdjustableArrowCap {
    REAL height = 0.0f;
    REAL width = 0.0f;
    bool filled = true;
};

struct Pen : GpPen {
    ARGB color = 0;
    REAL width = 1.0f;
    Unit unit = UnitWorld;
    DashStyle dash = DashStyleSolid;
    LineJoin join = LineJoinMiter;
    LineCap startCap = LineCapFlat;
    LineCap endCap = LineCapFlat;
    // The pen's own copies.
    std::optional<ArrowCap> startArrow;
    std::optional<ArrowCap> endArrow;
};

inline Pen* From(GpPen* pen) { return static_cast<Pen*>(pen); }
inline const Pen* From(const GpPen* pen) { return static_cast<const Pen*>(pen); }
inline ArrowCap* From(GpCustomLineCap* cap) { return static_cast<ArrowCap*>(cap); }

}  // namespace engine
