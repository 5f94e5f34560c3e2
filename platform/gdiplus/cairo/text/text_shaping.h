#pragma once

#include "cairo/text/text_cache.h"

namespace engine {

/// A line of glyphs from left to right, from the start of its baseline.
struct ShapedLine {
    std::vector<GlyphRun> runs;
    double width = 0.0;
    double ascent = 0.0;
    double descent = 0.0;
};

/// Shapes texts in one style: finds a face for each character, reorders text that runs
/// from right to left, and shapes it.
class Shaper {
public:
    Shaper(ThreadTexts& texts, const TextStyle& style, const std::u32string& text);

    /// A part of the text as one line. `advances`, if not null, receives the width of
    /// each character.
    ShapedLine Shape(std::size_t start, std::size_t end, std::vector<double>* advances);

private:
    struct Item {
        std::size_t start;
        std::size_t end;
        int level;
        hb_script_t script;
        std::shared_ptr<SizedFace> face;
    };

    std::vector<Item> ItemsOf(std::size_t start, std::size_t end);
    std::shared_ptr<SizedFace> FaceFor(char32_t character);
    void ShapeItem(const Item& item, ShapedLine& line, std::vector<double>* advances);
    double TabAdvance(double at);

    ThreadTexts& texts_;
    const TextStyle& style_;
    const std::u32string& text_;
    std::vector<signed char> levels_;  ///< embedding levels; empty if all left to right
    std::vector<std::shared_ptr<SizedFace>> faces_;
    double tab_ = 0.0;
};

}  // namespace engine
