#pragma once

#include <gdiplus.h>

#include <cmath>

namespace map_surround {

/// An angle that is not finite counts as 0: passed on, it would make any further drawing
/// on the surface fail.
inline Gdiplus::REAL FiniteAngle(Gdiplus::REAL angle) {
    return std::isfinite(angle) ? angle : 0.0f;
}

/// Rotates a world transform or a matrix by an angle in degrees about a point, clockwise
/// on a device surface.
inline void TurnAbout(Gdiplus::Graphics& graphics, Gdiplus::REAL x, Gdiplus::REAL y,
                      Gdiplus::REAL angle) {
    graphics.TranslateTransform(x, y, Gdiplus::MatrixOrderPrepend);
    graphics.RotateTransform(FiniteAngle(angle), Gdiplus::MatrixOrderPrepend);
    graphics.TranslateTransform(-x, -y, Gdiplus::MatrixOrderPrepend);
}

inline void TurnAbout(Gdiplus::Matrix& matrix, Gdiplus::REAL x, Gdiplus::REAL y,
                      Gdiplus::REAL angle) {
    matrix.Translate(x, y, Gdiplus::MatrixOrderPrepend);
    matrix.Rotate(FiniteAngle(angle), Gdiplus::MatrixOrderPrepend);
    matrix.Translate(-x, -y, Gdiplus::MatrixOrderPrepend);
}

}  // namespace map_surround
