#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cairo/path.h"
#include "cairo/text/face.h"
#include "cairo/text/font.h"

namespace engine {

/// What decides the layout of a text. Lengths are in pixels.
struct TextStyle {
    const Family* family = nullptr;
    double size = 0.0;
    INT style = FontStyleRegular;
    INT flags = 0;
    StringAlignment alignment = StringAlignmentNear;
    StringAlignment lineAlignment = StringAlignmentNear;
    StringTrimming trimming = StringTrimmingCharacter;
    double width = 0.0;   ///< of the box; 0 for unlimited
    double height = 0.0;  ///< 0 for unlimited
    bool fit = true;
    bool smooth = true;
};

bool operator==(const TextStyle& a, const TextStyle& b);

/// Glyphs of one face, with their positions.
struct GlyphRun {
    std::shared_ptr<SizedFace> face;
    std::vector<cairo_glyph_t> glyphs;
    /// The text that the glyphs stand for, in UTF-8, with the number of bytes and glyphs
    /// in each cluster, in text order: so that a file has the text and not only its
    /// shapes.
    std::string text = {};
    std::vector<cairo_text_cluster_t> clusters = {};
    bool isBackward = false;  ///< the text begins with the last glyph
};

/// A line of a text: its code points and position.
struct LaidLine {
    std::size_t start;
    std::size_t end;
    double x;
    double baseline;
    double width;
};

/// A text laid out, relative to the corner of its box.
struct TextLayout {
    std::vector<GlyphRun> runs;
    std::vector<cairo_rectangle_t> strokes;  ///< under and through the text
    std::vector<LaidLine> laid;
    // The extent of the lines, with all their advances.
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
    INT characters = 0;  ///< UTF-16 units that fit
    INT lines = 0;
    bool clips = false;  ///< whether something reaches beyond the box

    /// The glyphs' outlines, made when first asked for.
    std::unique_ptr<const Path> outline;

    std::size_t Bytes() const;
};

struct ThreadTexts;

std::unique_ptr<TextLayout> LayOut(ThreadTexts& texts, const TextStyle& style,
                                   const FlatChar* units, std::size_t length);

/// The outlines of all glyphs and lines of a text.
const Path& OutlineOf(TextLayout& layout);

}  // namespace engine
