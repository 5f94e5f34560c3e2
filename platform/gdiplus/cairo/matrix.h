#pragma once

#include <cairo.h>

#include "cairo/flat_functions.h"

namespace engine {

/// An affine transform, x' = xx x + xy y + x0. Kept in doubles, returned in floats.
struct Matrix : GpMatrix {
    cairo_matrix_t value = {1, 0, 0, 1, 0, 0};
};

constexpr cairo_matrix_t kIdentity = {1, 0, 0, 1, 0, 0};

inline Matrix* From(GpMatrix* matrix) { return static_cast<Matrix*>(matrix); }
inline const Matrix* From(const GpMatrix* matrix) {
    return static_cast<const Matrix*>(matrix);
}

inline bool IsOrder(MatrixOrder order) {
    return order == MatrixOrderPrepend || order == MatrixOrderAppend;
}

/// Whether all elements fit in Cairo's fixed-point numbers.
bool IsDrawable(const cairo_matrix_t& matrix);
bool IsInvertible(const cairo_matrix_t& matrix);
bool IsIdentity(const cairo_matrix_t& matrix);

/// Adds a step before or after the matrix.
void Join(cairo_matrix_t& matrix, const cairo_matrix_t& step, MatrixOrder order);
cairo_matrix_t Translation(REAL dx, REAL dy);
cairo_matrix_t Rotation(REAL degrees);
cairo_matrix_t Scaling(REAL sx, REAL sy);

}  // namespace engine
