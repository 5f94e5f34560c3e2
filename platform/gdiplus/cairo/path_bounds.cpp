#include <algorithm>
#include <cmath>
#include <limits>

#include "cairo/matrix.h"
#include "cairo/numbers.h"
#include "cairo/path.h"
#include "cairo/pen.h"

namespace engine {
namespace {

struct Reach {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void Include(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }

    /// A curve from a to d has its extremes where its slope, a parabola, is zero.
    void IncludeCurve(double a, double b, double c, double d) {
        Include(d);
        if (std::min(b, c) >= least && std::max(b, c) <= most) {
            return;  // it stays between its points
        }
        const double p = d - a + 3.0 * (b - c);
        const double q = 2.0 * (a - 2.0 * b + c);
        const double r = b - a;
        const auto turn = [&](double t) {
            if (t > 0.0 && t < 1.0) {
                const double s = 1.0 - t;
                Include(a * s * s * s + 3.0 * b * s * s * t + 3.0 * c * s * t * t +
                        d * t * t * t);
            }
        };
        const double root = std::sqrt(std::max(0.0, q * q - 4.0 * p * r));
        if (std::fabs(p) > 1e-9) {
            turn((-q + root) / (2.0 * p));
            turn((-q - root) / (2.0 * p));
        } else if (q != 0.0) {
            turn(-r / q);
        }
    }
};

}  // namespace

Extents ExtentsOf(const Path& path, const cairo_matrix_t& matrix) {
    if (path.points.empty()) {
        return {};
    }
    Reach x;
    Reach y;
    double fromX = 0.0;
    double fromY = 0.0;
    const bool isPlain = &matrix == &kIdentity;
    const auto point = [&](std::size_t i, double& toX, double& toY) {
        toX = path.points[i].X;
        toY = path.points[i].Y;
        if (!isPlain) {
            cairo_matrix_transform_point(&matrix, &toX, &toY);
        }
    };
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        double toX = 0.0;
        double toY = 0.0;
        if ((path.kinds[i] & Path::KindBits) == Path::Curve) {
            double x2 = 0.0;
            double y2 = 0.0;
            double x3 = 0.0;
            double y3 = 0.0;
            point(i, x2, y2);
            point(i + 1, x3, y3);
            point(i + 2, toX, toY);
            x.IncludeCurve(fromX, x2, x3, toX);
            y.IncludeCurve(fromY, y2, y3, toY);
            i += 2;
        } else {
            point(i, toX, toY);
            x.Include(toX);
            y.Include(toY);
        }
        fromX = toX;
        fromY = toY;
    }
    return {x.least, y.least, x.most, y.most};
}

namespace {

/// Includes half the pen's width on each side, as scaled by the matrix.
Extents WorldExtents(const GpPath& path, const GpMatrix* matrix, const GpPen* pen) {
    const cairo_matrix_t& world = matrix == nullptr ? kIdentity : From(matrix)->value;
    Extents extents = ExtentsOf(*From(&path), world);
    if (pen != nullptr && !From(&path)->points.empty()) {
        const double scale =
            std::sqrt(std::fabs(world.xx * world.yy - world.xy * world.yx));
        const double half = std::max(1.0, std::fabs(From(pen)->width) * scale) / 2.0;
        extents.left -= half;
        extents.top -= half;
        extents.right += half;
        extents.bottom += half;
    }
    return extents;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdipGetPathWorldBounds(GpPath* path, GpRectF* bounds, const GpMatrix* matrix,
                                const GpPen* pen) {
    return engine::Tell(path, bounds, [&](const GpPath& p) {
        const engine::Extents e = engine::WorldExtents(p, matrix, pen);
        return RectF(static_cast<REAL>(e.left), static_cast<REAL>(e.top),
                     static_cast<REAL>(e.right - e.left),
                     static_cast<REAL>(e.bottom - e.top));
    });
}

GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds, const GpMatrix* matrix,
                                 const GpPen* pen) {
    // Fractions are cut off: pages have been laid out by such bounds.
    using engine::Truncated;
    return engine::Tell(path, bounds, [&](const GpPath& p) {
        const engine::Extents e = engine::WorldExtents(p, matrix, pen);
        return Rect(Truncated(e.left), Truncated(e.top), Truncated(e.right - e.left),
                    Truncated(e.bottom - e.top));
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
