#pragma once

#include <cairo.h>

#include "gdiplus/flat.h"

namespace Gdiplus {

/// A line of a text as it was drawn, for files that keep words beside their shapes.
struct CairoLine {
    const char* text;       ///< UTF-8
    double size;            ///< of the em
    double x;               ///< where the line begins on the left
    double baseline;        ///< its y
    double width;           ///< with all its advances
    cairo_matrix_t matrix;  ///< from these to the units of the Cairo surface
};

/// Called with what the caller gave, for the time of the call.
typedef void (*CairoLineDrawn)(void* context, const CairoLine* line);

namespace DllExports {
extern "C" {

GpStatus GdipGetCairoGraphicsContext(cairo_t* cairo, REAL xdpi, REAL ydpi,
                                     GpGraphics** graphics);

/// Has each line of text told that GdipDrawString draws from now on; null for no more.
GpStatus GdipTellCairoLines(GpGraphics* graphics, CairoLineDrawn told, void* context);

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
