#pragma once

#include "gdiplus/flat.h"

namespace Gdiplus {

/// An affine transform; the identity by default. Angles are in degrees, clockwise on a
/// surface whose y grows downwards.
class Matrix : public detail::StatusKeeper {
public:
    Matrix() { SetStatus(DllExports::GdipCreateMatrix(&native_)); }
    Matrix(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy) {
        SetStatus(DllExports::GdipCreateMatrix2(m11, m12, m21, m22, dx, dy, &native_));
    }
    ~Matrix() { DllExports::GdipDeleteMatrix(native_); }

    Status Translate(REAL dx, REAL dy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipTranslateMatrix(native_, dx, dy, order));
    }
    Status Rotate(REAL angle, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipRotateMatrix(native_, angle, order));
    }
    Status Scale(REAL sx, REAL sy, MatrixOrder order = MatrixOrderPrepend) {
        return SetStatus(DllExports::GdipScaleMatrix(native_, sx, sy, order));
    }

    /// Writes m11, m12, m21, m22, dx, dy.
    Status GetElements(REAL* elements) const {
        return SetStatus(DllExports::GdipGetMatrixElements(native_, elements));
    }
    BOOL IsIdentity() const {
        BOOL identity = 0;
        SetStatus(DllExports::GdipIsMatrixIdentity(native_, &identity));
        return identity;
    }

    GpMatrix* NativeObject() const { return native_; }

private:
    GpMatrix* native_ = nullptr;
};

}  // namespace Gdiplus
