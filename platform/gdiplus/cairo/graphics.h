#pragma once

#include <cairo.h>

#include <memory>
#include <vector>

#pragma GCC visibility push(default)
#include "gdiplus/flat_cairo.h"
#pragma GCC visibility pop

#include "cairo/flat_functions.h"
#include "cairo/matrix.h"
#include "cairo/path.h"
#include "cairo/pixels.h"

namespace engine {

/// The state that Save keeps and Restore brings back.
struct State {
    cairo_matrix_t world = kIdentity;
    Unit pageUnit = UnitDisplay;
    SmoothingMode smoothing = SmoothingModeNone;
    TextRenderingHint textHint = TextRenderingHintSystemDefault;
    InterpolationMode interpolation = InterpolationModeBilinear;
    PixelOffsetMode pixelOffset = PixelOffsetModeDefault;
    /// In cells of the clip; null where nothing is clipped.
    std::shared_ptr<cairo_region_t> clip;
};

/// A pixel whose straight colour was premultiplied for one drawing.
struct StraightPixel {
    ARGB* at;
    ARGB straight;
    ARGB premultiplied;
};

/// A surface to draw on. Cairo's own transform stays as it was: points are transformed
/// before Cairo sees them.
struct Graphics : GpGraphics {
    ~Graphics();

    /// Null on a host's own surface.
    std::shared_ptr<Pixels> pixels;
    /// For pixels of three bytes: what Cairo draws on instead, one area at a time.
    std::shared_ptr<Pixels> scratch;
    cairo_t* cairo = nullptr;
    cairo_matrix_t base = kIdentity;  ///< from page pixels to Cairo's units
    bool ofPixels = true;             ///< rather than shapes, as on a PDF page
    double clipCells = 1.0;           ///< a unit of Cairo's
    REAL xdpi = 96.0f;
    REAL ydpi = 96.0f;
    CairoLineDrawn tellLine = nullptr;
    void* lineContext = nullptr;

    State state;
    struct Saved {
        GraphicsState name;
        State state;
    };
    std::vector<Saved> saved;
    GraphicsState lastName = 0;
    std::vector<StraightPixel> straight;  ///< of the present drawing

    bool IsSmooth() const {
        return state.smoothing == SmoothingModeAntiAlias ||
               state.smoothing == SmoothingModeHighQuality;
    }
    /// From world coordinates to Cairo's.
    cairo_matrix_t Device() const;
    /// The distance from a whole coordinate to the pixel's centre, for lines and glyphs:
    /// half a pixel if the world transform is only a translation.
    double PixelMiddle() const;
    /// Sets the clip in Cairo.
    void ApplyClip();
};

inline Graphics* From(GpGraphics* graphics) { return static_cast<Graphics*>(graphics); }
inline const Graphics* From(const GpGraphics* graphics) {
    return static_cast<const Graphics*>(graphics);
}

/// The pixels in one unit of length; world units are pixels.
REAL PixelsIn(Unit unit, REAL dpi);

/// Brackets one drawing within the extents. Straight colours are premultiplied meanwhile
/// if they have to be; untouched pixels keep theirs exactly.
class Drawing {
public:
    Drawing(Graphics& graphics, const Extents& extents);
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    /// The result of the drawing. A Cairo context in an error state is replaced.
    GpStatus Finish();

private:
    Graphics& graphics_;
    cairo_rectangle_int_t area_ = {0, 0, 0, 0};
};

}  // namespace engine
