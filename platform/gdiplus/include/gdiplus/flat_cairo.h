#pragma once

#include <cairo.h>

#include "gdiplus/flat.h"

namespace Gdiplus {

/// A line of text as it was drawn, for files that keep words beside their shapes.
struct CairoLine {
    const char* text;       ///< UTF-8
    double size;            ///< of the em
    double x;               ///< where the line begins on the left
    double baseline;        ///< its y
    double width;           ///< with all its advances
    cairo_matrix_t matrix;  ///< from these coordinates to the Cairo surface's
};

/// Called with the caller's context; the line is valid during the call.
typedef void (*CairoLineDrawn)(void* context, const CairoLine* line);

namespace DllExports {
extern "C" {

GpStatus GdipGetCairoGraphicsContext(cairo_t* cairo, REAL xdpi, REAL ydpi,
                                     GpGraphics** graphics);

/// Reports each line of text that GdipDrawString draws from now on; null ends it.
GpStatus GdipTellCairoLines(GpGraphics* graphics, CairoLineDrawn told, void* context);

}  // extern "C"
}  // namespace DllExports
}  // namespace Gdiplus
