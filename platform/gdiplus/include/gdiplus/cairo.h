#pragma once

#include "gdiplus/flat_cairo.h"
#include "gdiplus/graphics.h"

namespace Gdiplus {

/// A surface that draws with a Cairo context of the host's: on an image, a window, or a
/// page of a PDF, SVG or PostScript file, in which shapes stay shapes and texts texts.
///
/// Something that the Windows SDK does not have; so <gdiplus.h> leaves it out.
class CairoGraphics : public Graphics {
public:
    /// World coordinates are those of the context as it is now, its transform and its
    /// clip included: on a PDF page a unit is a point. The context is the surface's until
    /// the surface is gone, and then as it was.
    /// @param dpi how many units of world coordinates make an inch, for fonts and pens in
    /// inches, points and millimetres: 72 on a PDF page, where a font of 10 points is
    /// then 10 units high
    CairoGraphics(cairo_t* cairo, REAL dpi = 96.0f) {
        SetStatus(DllExports::GdipGetCairoGraphicsContext(cairo, dpi, dpi, &native_));
    }

    /// Has each line of text told that is drawn from now on: where it stands, and its
    /// words, which Cairo keeps in PDF files only. Null for no more.
    Status TellLines(CairoLineDrawn told, void* context) {
        return SetStatus(DllExports::GdipTellCairoLines(native_, told, context));
    }
};

}  // namespace Gdiplus
