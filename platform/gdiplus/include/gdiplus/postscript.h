#pragma once

#include "gdiplus/graphics.h"

namespace Gdiplus {

/// A surface that writes a PostScript file of one page. Shapes stay shapes, text stays
/// text with embedded fonts, and images stay images.
///
/// An extension of libgdiplus that the Windows SDK does not have, so <gdiplus.h> leaves
/// it out.
class PostScriptGraphics : public Graphics {
public:
    /// The file is complete once this object is destroyed; libgdiplus does not report
    /// whether writing succeeded. A pixel is a point of the page: 2480 x 1754 are 34.4 x
    /// 24.4 inches.
    /// @param filename UTF-8; an existing file is overwritten
    PostScriptGraphics(const char* filename, INT width, INT height) {
        // At 72 dpi and with pixels as the unit, what libgdiplus scales and what it does
        // not comes out the same size.
        SetStatus(filename == nullptr
                      ? InvalidParameter
                      : DllExports::GdipGetPostScriptGraphicsContext(
                            filename, width, height, 72.0, 72.0, &native_));
        DllExports::GdipSetPageUnit(native_, UnitPixel);
    }
};

}  // namespace Gdiplus
