#include "cairo/matrix.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "cairo/numbers.h"

namespace engine {

bool IsDrawable(const cairo_matrix_t& m) {
    constexpr double most = 1e7;
    const double elements[] = {m.xx, m.yx, m.xy, m.yy, m.x0, m.y0};
    return std::all_of(std::begin(elements), std::end(elements),
                       [](double element) { return std::fabs(element) <= most; });
}

bool IsInvertible(const cairo_matrix_t& m) {
    const double determinant = m.xx * m.yy - m.yx * m.xy;
    return std::isfinite(determinant) && std::fabs(determinant) > 1e-12;
}

bool IsIdentity(const cairo_matrix_t& m) {
    return m.xx == 1 && m.yx == 0 && m.xy == 0 && m.yy == 1 && m.x0 == 0 && m.y0 == 0;
}

void Join(cairo_matrix_t& matrix, const cairo_matrix_t& step, MatrixOrder order) {
    const cairo_matrix_t before = matrix;
    if (order == MatrixOrderPrepend) {
        cairo_matrix_multiply(&matrix, &step, &before);
    } else {
        cairo_matrix_multiply(&matrix, &before, &step);
    }
}

cairo_matrix_t Translation(REAL dx, REAL dy) { return {1, 0, 0, 1, dx, dy}; }

cairo_matrix_t Rotation(REAL degrees) {
    // Exact quarter turns keep lines on the pixels.
    const double turn = std::fmod(static_cast<double>(degrees), 360.0);
    const double quarters = turn / 90.0;
    if (quarters == std::floor(quarters)) {
        constexpr int sine[] = {0, 1, 0, -1};
        const int quarter = (static_cast<int>(quarters) + 4) % 4;
        const double s = sine[quarter];
        const double c = sine[(quarter + 1) % 4];
        return {c, s, -s, c, 0, 0};
    }
    const double radians = turn * (M_PI / 180.0);
    const double s = std::sin(radians);
    const double c = std::cos(radians);
    return {c, s, -s, c, 0, 0};
}

cairo_matrix_t Scaling(REAL sx, REAL sy) { return {sx, 0, 0, sy, 0, 0}; }

namespace {

GpStatus Step(GpMatrix* matrix, const cairo_matrix_t& step, MatrixOrder order) {
    return Set(From(matrix), IsOrder(order),
               [&](Matrix& m) { Join(m.value, step, order); });
}

/// @param point makes a point of the transformed coordinates
template <typename AnyPoint, typename Build>
GpStatus TransformPoints(GpMatrix* matrix, AnyPoint* points, INT count, Build point) {
    return Set(From(matrix), points != nullptr && count > 0, [&](const Matrix& m) {
        for (INT i = 0; i < count; ++i) {
            double x = points[i].X;
            double y = points[i].Y;
            cairo_matrix_transform_point(&m.value, &x, &y);
            points[i] = point(x, y);
        }
    });
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdipCreateMatrix(GpMatrix** matrix) {
    return GdipCreateMatrix2(1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, matrix);
}

GpStatus GdipCreateMatrix2(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy,
                           GpMatrix** matrix) {
    return engine::Make(matrix, true, [&] {
        auto* made = new engine::Matrix;
        made->value = {m11, m12, m21, m22, dx, dy};
        return made;
    });
}

GpStatus GdipDeleteMatrix(GpMatrix* matrix) {
    return engine::Delete(engine::From(matrix));
}

GpStatus GdipTranslateMatrix(GpMatrix* matrix, REAL dx, REAL dy, GpMatrixOrder order) {
    return engine::Step(matrix, engine::Translation(dx, dy), order);
}

GpStatus GdipRotateMatrix(GpMatrix* matrix, REAL angle, GpMatrixOrder order) {
    return engine::Step(matrix, engine::Rotation(angle), order);
}

GpStatus GdipScaleMatrix(GpMatrix* matrix, REAL sx, REAL sy, GpMatrixOrder order) {
    return engine::Step(matrix, engine::Scaling(sx, sy), order);
}

GpStatus GdipMultiplyMatrix(GpMatrix* matrix, const GpMatrix* by, GpMatrixOrder order) {
    return by == nullptr ? InvalidParameter
                         : engine::Step(matrix, engine::From(by)->value, order);
}

GpStatus GdipInvertMatrix(GpMatrix* matrix) {
    return engine::Set(
        engine::From(matrix),
        matrix != nullptr && engine::IsInvertible(engine::From(matrix)->value),
        [](engine::Matrix& m) { cairo_matrix_invert(&m.value); });
}

GpStatus GdipSetMatrixElements(GpMatrix* matrix, REAL m11, REAL m12, REAL m21, REAL m22,
                               REAL dx, REAL dy) {
    return engine::Set(engine::From(matrix), true, [&](engine::Matrix& m) {
        m.value = {m11, m12, m21, m22, dx, dy};
    });
}

GpStatus GdipTransformMatrixPoints(GpMatrix* matrix, GpPointF* points, INT count) {
    return engine::TransformPoints(matrix, points, count, [](double x, double y) {
        return PointF(static_cast<REAL>(x), static_cast<REAL>(y));
    });
}

GpStatus GdipTransformMatrixPointsI(GpMatrix* matrix, GpPoint* points, INT count) {
    return engine::TransformPoints(matrix, points, count, [](double x, double y) {
        return Point(engine::Rounded(x), engine::Rounded(y));
    });
}

GpStatus GdipGetMatrixElements(const GpMatrix* matrix, REAL* elements) {
    if (matrix == nullptr || elements == nullptr) {
        return InvalidParameter;
    }
    const cairo_matrix_t& m = engine::From(matrix)->value;
    for (const double element : {m.xx, m.yx, m.xy, m.yy, m.x0, m.y0}) {
        *elements++ = static_cast<REAL>(element);
    }
    return Ok;
}

GpStatus GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* identity) {
    return engine::Tell(engine::From(matrix), identity, [](const engine::Matrix& m) {
        return engine::IsIdentity(m.value) ? 1 : 0;
    });
}

GpStatus GdipIsMatrixInvertible(const GpMatrix* matrix, BOOL* invertible) {
    return engine::Tell(engine::From(matrix), invertible, [](const engine::Matrix& m) {
        return engine::IsInvertible(m.value) ? 1 : 0;
    });
}

GpStatus GdipIsMatrixEqual(const GpMatrix* matrix, const GpMatrix* other, BOOL* equal) {
    if (other == nullptr) {
        return InvalidParameter;
    }
    return engine::Tell(engine::From(matrix), equal, [&](const engine::Matrix& m) {
        const cairo_matrix_t& a = m.value;
        const cairo_matrix_t& b = engine::From(other)->value;
        return a.xx == b.xx && a.yx == b.yx && a.xy == b.xy && a.yy == b.yy &&
                       a.x0 == b.x0 && a.y0 == b.y0
                   ? 1
                   : 0;
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
