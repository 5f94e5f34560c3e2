#include "cairo/path.h"

#include <algorithm>

#include "cairo/matrix.h"

namespace engine {

void Path::Reserve(std::size_t more) {
    // Grows in large steps, as if points were added one by one.
    const std::size_t wanted = points.size() + more;
    if (wanted > points.capacity()) {
        points.reserve(std::max(wanted, 2 * points.capacity()));
    }
    if (wanted > kinds.capacity()) {
        kinds.reserve(std::max(wanted, 2 * kinds.capacity()));
    }
}

void Path::Add(REAL x, REAL y, Kind kind) {
    points.emplace_back(x, y);
    kinds.push_back(kind);
    open = true;
}

void Path::Close() {
    if (!kinds.empty()) {
        kinds.back() |= Closes;
    }
    open = false;
}

namespace {

template <typename Number>
PointF AsReal(Number x, Number y) {
    return PointF(static_cast<REAL>(x), static_cast<REAL>(y));
}

/// Continues from the last point, which is not repeated.
template <typename AnyPoint>
GpStatus AddLines(GpPath* to, const AnyPoint* points, INT count) {
    if (to == nullptr || points == nullptr || count < 1) {
        return InvalidParameter;
    }
    return Guarded([&] {
        Path& path = *From(to);
        path.Reserve(static_cast<std::size_t>(count));
        for (INT i = 0; i < count; ++i) {
            const PointF point = AsReal(points[i].X, points[i].Y);
            if (i == 0 && path.open && path.points.back().Equals(point)) {
                continue;
            }
            path.Add(point.X, point.Y, path.open ? Path::Line : Path::Start);
        }
        return Ok;
    });
}

template <typename AnyPoint>
GpStatus AddPolygon(GpPath* to, const AnyPoint* points, INT count) {
    if (to == nullptr || points == nullptr || count < 3) {
        return InvalidParameter;
    }
    return Guarded([&] {
        Path& path = *From(to);
        path.Reserve(static_cast<std::size_t>(count));
        for (INT i = 0; i < count; ++i) {
            const PointF point = AsReal(points[i].X, points[i].Y);
            path.Add(point.X, point.Y, i == 0 ? Path::Start : Path::Line);
        }
        path.Close();
        return Ok;
    });
}

GpStatus AddRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    const PointF corners[] = {
        {x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
    return AddPolygon(path, corners, 4);
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;

GpStatus GdipCreatePath(GpFillMode mode, GpPath** path) {
    const bool valid = mode == FillModeAlternate || mode == FillModeWinding;
    return engine::Make(path, valid, [&] {
        auto* made = new engine::Path;
        made->mode = mode;
        return made;
    });
}

GpStatus GdipDeletePath(GpPath* path) { return engine::Delete(From(path)); }

GpStatus GdipResetPath(GpPath* path) {
    return engine::Set(From(path), true, [](auto& p) {
        p.points.clear();
        p.kinds.clear();
        p.open = false;
        p.mode = FillModeAlternate;
    });
}

GpStatus GdipGetPathFillMode(GpPath* path, GpFillMode* mode) {
    return engine::Tell(From(path), mode, [](auto& p) { return p.mode; });
}

GpStatus GdipSetPathFillMode(GpPath* path, GpFillMode mode) {
    const bool valid = mode == FillModeAlternate || mode == FillModeWinding;
    return engine::Set(From(path), valid, [&](auto& p) { p.mode = mode; });
}

GpStatus GdipStartPathFigure(GpPath* path) {
    return engine::Set(From(path), true, [](auto& p) { p.open = false; });
}

GpStatus GdipClosePathFigure(GpPath* path) {
    return engine::Set(From(path), true, [](auto& p) { p.Close(); });
}

GpStatus GdipAddPathRectangle(GpPath* path, REAL x, REAL y, REAL width, REAL height) {
    return engine::AddRectangle(path, x, y, width, height);
}

GpStatus GdipAddPathRectangleI(GpPath* path, INT x, INT y, INT width, INT height) {
    return engine::AddRectangle(path, static_cast<REAL>(x), static_cast<REAL>(y),
                                static_cast<REAL>(width), static_cast<REAL>(height));
}

GpStatus GdipAddPathLine(GpPath* path, REAL x1, REAL y1, REAL x2, REAL y2) {
    const PointF points[] = {{x1, y1}, {x2, y2}};
    return engine::AddLines(path, points, 2);
}

GpStatus GdipAddPathLineI(GpPath* path, INT x1, INT y1, INT x2, INT y2) {
    const Point points[] = {{x1, y1}, {x2, y2}};
    return engine::AddLines(path, points, 2);
}

GpStatus GdipAddPathLine2(GpPath* path, const GpPointF* points, INT count) {
    return engine::AddLines(path, points, count);
}

GpStatus GdipAddPathLine2I(GpPath* path, const GpPoint* points, INT count) {
    return engine::AddLines(path, points, count);
}

GpStatus GdipAddPathPolygon(GpPath* path, const GpPointF* points, INT count) {
    return engine::AddPolygon(path, points, count);
}

GpStatus GdipAddPathPolygonI(GpPath* path, const GpPoint* points, INT count) {
    return engine::AddPolygon(path, points, count);
}

GpStatus GdipTransformPath(GpPath* path, GpMatrix* matrix) {
    if (matrix == nullptr) {
        return path == nullptr ? InvalidParameter : Ok;
    }
    return engine::Set(From(path), true, [&](auto& p) {
        for (PointF& point : p.points) {
            double x = point.X;
            double y = point.Y;
            cairo_matrix_transform_point(&From(matrix)->value, &x, &y);
            point = engine::AsReal(x, y);
        }
    });
}

GpStatus GdipGetPointCount(GpPath* path, INT* count) {
    return engine::Tell(From(path), count,
                        [](auto& p) { return static_cast<INT>(p.points.size()); });
}

GpStatus GdipGetPathPoints(GpPath* path, GpPointF* points, INT count) {
    if (path == nullptr || points == nullptr || count < 1) {
        return InvalidParameter;
    }
    const std::vector<PointF>& all = From(path)->points;
    if (static_cast<std::size_t>(count) < all.size()) {
        return InsufficientBuffer;
    }
    std::copy(all.begin(), all.end(), points);
    return Ok;
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
