#pragma once

#include <cairo.h>

#include <vector>

#include "cairo/flat_functions.h"

namespace engine {

/// The points of figures. A figure begins with a Start; a Curve's points come in threes,
/// after the point from which it starts.
struct Path : GpPath {
    enum Kind : BYTE { Start = 0, Line = 1, Curve = 3, KindBits = 7, Closes = 0x80 };

    FillMode mode = FillModeAlternate;
    std::vector<PointF> points;
    std::vector<BYTE> kinds;
    bool open = false;  ///< whether the last figure continues

    /// Reserves space, so that the points that follow are all added or none.
    void Reserve(std::size_t more);
    void Add(REAL x, REAL y, Kind kind);
    void Close();
};

inline Path* From(GpPath* path) { return static_cast<Path*>(path); }
inline const Path* From(const GpPath* path) { return static_cast<const Path*>(path); }

/// The area that the figures cover after a matrix, including the extremes of curves; all
/// zero for none.
struct Extents {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};
Extents ExtentsOf(const Path& path, const cairo_matrix_t& matrix);

}  // namespace engine
