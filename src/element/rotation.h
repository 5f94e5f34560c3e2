#pragma once

#include <gdiplus.h>

namespace map_surround {

/// Turns a world transform or a matrix by an angle in degrees about a point: what is
/// drawn afterwards in unturned coordinates comes out turned, clockwise on a device
/// surface.
inline void TurnAbout(Gdiplus::Graphics& graphics, Gdiplus::REAL x, Gdiplus::REAL y,
                      Gdiplus::REAL angle) {
    graphics.TranslateTransform(x, y, Gdiplus::MatrixOrderPrepend);
    graphics.RotateTransform(angle, Gdiplus::MatrixOrderPrepend);
    graphics.TranslateTransform(-x, -y, Gdiplus::MatrixOrderPrepend);
}

inline void TurnAbout(Gdiplus::Matrix& matrix, Gdiplus::REAL x, Gdiplus::REAL y,
                      Gdiplus::REAL angle) {
    matrix.Translate(x, y, Gdiplus::MatrixOrderPrepend);
    matrix.Rotate(angle, Gdiplus::MatrixOrderPrepend);
    matrix.Translate(-x, -y, Gdiplus::MatrixOrderPrepend);
}

}  // namespace map_surround
