#pragma once

#include <cairo.h>

#include "gdiplus/flat.h"

namespace Gdiplus {
namespace DllExports {
extern "C" {

GpStatus GdipGetCairoGraphicsContext(cairo_t* cairo, REAL xdpi, REAL ydpi,
                                     GpGraphics** graphics);

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
