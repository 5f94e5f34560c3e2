#pragma once

#include "gdiplus/flat_cairo.h"
#include "gdiplus/graphics.h"

namespace Gdiplus {

/// A surface that draws with a host's Cairo context: on an image, a window, or a page of
/// a PDF, SVG or PostScript file, in which shapes stay shapes and text stays text.
///
/// The Windows SDK has no such class, so <gdiplus.h> leaves it out.
class CairoGraphics : public Graphics {
public:
    /// World coordinates are those of the context at present, including its transform and
    /// its clip: on a PDF page a unit is a point. The surface uses the context for as
    /// long as it lives, and then leaves it as it was.
    /// @param dpi world units per inch, for fonts and pens in inches, points and
    /// millimetres: 72 on a PDF page, where a font of 10 points is then 10 units high
    CairoGraphics(cairo_t* cairo, REAL dpi = 96.0f) {
        SetStatus(DllExports::GdipGetCairoGraphicsContext(cairo, dpi, dpi, &native_));
    }

    /// Reports each line of text drawn from now on: its place, and its words, which Cairo
    /// keeps only in PDF files. Null ends it.
    Status TellLines(CairoLineDrawn told, void* context) {
        return SetStatus(DllExports::GdipTellCairoLines(native_, told, context));
    }
};

}  // namespace Gdiplus
