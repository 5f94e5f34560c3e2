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

/// What Save keeps and Restore brings back.
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

/// A pixel whose straight colour was replaced by the premultiplied one for a drawing.
struct StraightPixel {
    ARGB* at;
    ARGB straight;
    ARGB premultiplied;
};

/// A surface to draw on. Cairo's own transform stays as it was found: points are
/// transformed before Cairo sees them.
struct Graphics : GpGraphics {
    ~Graphics();

    /// Null on a surface of the host's own.
    std::shared_ptr<Pixels> pixels;
    /// Where the pixels have three bytes: what Cairo draws on instead, an area at a time.
    std::shared_ptr<Pixels> scratch;
    cairo_t* cairo = nullptr;
    cairo_matrix_t base = kIdentity;  ///< from page pixels to Cairo's units
    bool ofPixels = true;             ///< and not of shapes, as a PDF's page
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
    std::vector<StraightPixel> straight;  ///< of the drawing at work

    bool IsSmooth() const {
        return state.smoothing == SmoothingModeAntiAlias ||
               state.smoothing == SmoothingModeHighQuality;
    }
    /// From world coordinates to Cairo's.
    cairo_matrix_t Device() const;
    /// How far the middle of a pixel is from its whole coordinate, for lines and glyphs:
    /// half a pixel where the world is only moved.
    double PixelMiddle() const;
    /// Lets Cairo know of the clip.
    void ApplyClip();
};

inline Graphics* From(GpGraphics* graphics) { return static_cast<Graphics*>(graphics); }
inline const Graphics* From(const GpGraphics* graphics) {
    return static_cast<const Graphics*>(graphics);
}

/// Pixels that a length of 1 in a unit takes; world units are pixels.
REAL PixelsIn(Unit unit, REAL dpi);

/// The time of one drawing within the extents. Straight colours are premultiplied
/// meanwhile where they have to be; the untouched keep what they were.
class Drawing {
public:
    Drawing(Graphics& graphics, const Extents& extents);
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    /// How the drawing went. A Cairo that fell into an error is replaced.
    GpStatus Finish();

private:
    Graphics& graphics_;
    cairo_rectangle_int_t area_ = {0, 0, 0, 0};
};

}  // namespace engine
