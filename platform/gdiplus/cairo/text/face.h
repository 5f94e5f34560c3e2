#pragma once

#include <cairo.h>
#include <hb.h>

#include <memory>

#include "cairo/owned.h"
#include "cairo/text/font_files.h"

namespace engine {

/// One face in one thread: its characters and shapes for HarfBuzz, its glyphs for Cairo.
/// Threads share none of it, so none waits for another.
struct Face {
    explicit Face(std::shared_ptr<const FaceFile> from);

    bool Has(char32_t character) const;

    std::shared_ptr<const FaceFile> file;
    Owned<hb_font_t, hb_font_destroy> shapes;
    Owned<cairo_font_face_t, cairo_font_face_destroy> glyphs;
    double em = 1000.0;
};

/// HarfBuzz uses integers: this many to a pixel.
constexpr double kUnit = 1024.0;

/// The largest em, in pixels, for which Cairo makes glyphs; above, outlines are filled.
constexpr double kLargestGlyphs = 400.0;

/// A face at an em size in pixels. Fitted to the pixels, each advance is a whole number
/// of them and each line starts on one.
struct SizedFace {
    SizedFace(std::shared_ptr<Face> of, double emSize, bool fitToPixels, bool smooth);

    std::shared_ptr<Face> face;
    double size;
    bool fit;
    Owned<hb_font_t, hb_font_destroy> shapes;
    Owned<cairo_scaled_font_t, cairo_scaled_font_destroy> glyphs;
    double ascent = 0.0;
    double descent = 0.0;
    // For the lines under and through a text, downwards from the baseline.
    double underline = 0.0;
    double strikeout = 0.0;
    double thickness = 1.0;
};

/// How Cairo is to make the glyphs of a face.
using FontOptions = Owned<cairo_font_options_t, cairo_font_options_destroy>;
FontOptions OptionsFor(const FaceFile& file, bool fitToPixels, bool smooth);

/// Ends FreeType once no face is left.
void ReleaseFreeType();

}  // namespace engine
