#pragma once

#include "cairo/graphics.h"

namespace engine {

/// Traces figures in world coordinates into Cairo's path, and records their extents. A
/// coordinate beyond Cairo's range is clamped to it, some 2 million units; figures with a
/// NaN are not drawn.
class Pencil {
public:
    /// @param offset added to every point after the transform
    Pencil(Graphics& graphics, double offset);

    void MoveTo(double x, double y);
    void LineTo(double x, double y);
    void CurveTo(const PointF& second, const PointF& third, const PointF& end);
    void Close() { cairo_close_path(graphics_.cairo); }

    Graphics& Surface() const { return graphics_; }
    const cairo_matrix_t& Device() const { return device_; }
    bool IsEmpty() const { return !(extents_.left <= extents_.right) || bad_; }

    /// The extents of all points, widened by a margin on each side.
    Extents Reach(double margin) const;

private:
    void Carry(double& x, double& y);

    Graphics& graphics_;
    cairo_matrix_t device_;
    bool plain_;  ///< nothing to transform
    double offset_;
    bool bad_ = false;
    Extents extents_;
};

void TraceRectangle(Pencil& pencil, double x, double y, double width, double height);

/// Traces a path, scaled and then moved to an origin.
void TracePath(Pencil& pencil, const Path& path, const PointF& origin = PointF(),
               double scale = 1.0);

void SetColor(cairo_t* cairo, ARGB color);

GpStatus Clear(Graphics& graphics, ARGB color);
GpStatus FillTraced(Pencil& pencil, ARGB color, FillMode mode);

}  // namespace engine
