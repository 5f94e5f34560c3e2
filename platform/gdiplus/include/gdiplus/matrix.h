#pragma once

#include "gdiplus/flat.h"
#include "gdiplus/object.h"

namespace Gdiplus {

/// An affine transform; the identity by default. Angles are in degrees, clockwise on a
/// surface whose y grows downwards. A prepended step, which is the default, is applied to
/// a point before those already there: Translate(10, 0) and then Rotate(90) takes (1, 0)
/// to (10, 1).
class Matrix : public detail::StatusKeeper {
public:
    Matrix() { SetStatus(DllExports::GdipCreateMatrix(&native_)); }
    /// From its elements: (x, y) becomes (m11 x + m21 y + dx, m12 x + m22 y + dy).
    Matrix(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy) {
        SetStatus(DllExports::GdipCreateMatrix2(m11, m12, m21, m22, dx, dy, &native_));
    }
    ~Matrix() { DllExports::GdipDeleteMatrix(native_); }

    /// Each prepends or appends one step.
    Status Translate(REAL dx, REAL dy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipTranslateMatrix(native_, dx, dy, order));
    }
    Status Rotate(REAL angle, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipRotateMatrix(native_, angle, order));
    }
    Status Scale(REAL sx, REAL sy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipScaleMatrix(native_, sx, sy, order));
    }
    Status Multiply(const Matrix* matrix, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(
            DllExports::GdipMultiplyMatrix(native_, detail::Native(matrix), order));
    }
    /// Inverts the transform; fails if it has no inverse.
    Status Invert() { return SetStatus(DllExports::GdipInvertMatrix(native_)); }
    /// Replaces all elements: with the identity, or with those given.
    Status Reset() { return SetElements(1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f); }
    Status SetElements(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy) {
        return SetStatus(
            DllExports::GdipSetMatrixElements(native_, m11, m12, m21, m22, dx, dy));
    }

    /// Writes m11, m12, m21, m22, dx, dy.
    Status GetElements(REAL* elements) const {
        return SetStatus(DllExports::GdipGetMatrixElements(native_, elements));
    }
    /// Whether it has a property; false if creation failed.
    BOOL IsIdentity() const { return Tells(DllExports::GdipIsMatrixIdentity); }
    BOOL IsInvertible() const { return Tells(DllExports::GdipIsMatrixInvertible); }
    BOOL Equals(const Matrix* other) const {
        BOOL equal = 0;
        SetStatus(DllExports::GdipIsMatrixEqual(native_, detail::Native(other), &equal));
        return equal;
    }

    /// Transforms points in place.
    Status TransformPoints(PointF* points, INT count = 1) const {
        return SetStatus(DllExports::GdipTransformMatrixPoints(native_, points, count));
    }
    Status TransformPoints(Point* points, INT count = 1) const {
        return SetStatus(DllExports::GdipTransformMatrixPointsI(native_, points, count));
    }

    /// The native object, for the flat functions; null if creation failed.
    GpMatrix* NativeObject() const { return native_; }

private:
    BOOL Tells(Status (*flat)(const GpMatrix*, BOOL*)) const {
        return Query<BOOL, const GpMatrix>(flat, native_);
    }

    GpMatrix* native_ = nullptr;
};

}  // namespace Gdiplus
