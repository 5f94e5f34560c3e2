#pragma once

#include "gdiplus/graphics.h"

namespace Gdiplus {

/// A surface that becomes a PostScript file of one page, in which shapes stay shapes,
/// texts texts in fonts that the file brings along, and images images.
///
/// Something of libgdiplus, which the Windows SDK does not have; so <gdiplus.h> leaves it
/// out.
class PostScriptGraphics : public Graphics {
public:
    /// The file is whole when this is gone; libgdiplus does not tell whether it could be
    /// written. A pixel is a point of the page: 2480 x 1754 are 34.4 x 24.4 inches.
    /// @param filename UTF-8; what it holds is replaced
    PostScriptGraphics(const char* filename, INT width, INT height) {
        // At 72 dpi and with pixels as the unit, what libgdiplus scales and what it
        // forgets to scale have the same size.
        SetStatus(filename == nullptr
                      ? InvalidParameter
                      : DllExports::GdipGetPostScriptGraphicsContext(
                            filename, width, height, 72.0, 72.0, &native_));
        DllExports::GdipSetPageUnit(native_, UnitPixel);
    }
};

}  // namespace Gdiplus
