#include "cairo/text/text_layout.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "cairo/text/text_shaping.h"
#include "cairo/unicode.h"

namespace engine {

bool operator==(const TextStyle& a, const TextStyle& b) {
    const auto all = [](const TextStyle& s) {
        return std::tie(s.family, s.size, s.style, s.flags, s.alignment, s.lineAlignment,
                        s.trimming, s.width, s.height, s.fit, s.smooth);
    };
    return all(a) == all(b);
}

std::size_t TextLayout::Bytes() const {
    std::size_t bytes =
        sizeof *this + strokes.size() * sizeof strokes[0] + laid.size() * sizeof laid[0];
    for (const GlyphRun& run : runs) {
        bytes += sizeof run + run.glyphs.capacity() * sizeof(cairo_glyph_t) +
                 run.text.capacity() +
                 run.clusters.capacity() * sizeof(cairo_text_cluster_t);
    }
    return bytes;
}

namespace {

struct Span {
    std::size_t start;
    std::size_t end;
    std::size_t next;  ///< where the following line starts
};

bool IsSpace(char32_t c) { return c == ' ' || c == '\t' || c == 0x3000; }

bool IsIdeograph(char32_t c) {
    return (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7AF) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFF00 && c <= 0xFFEF) ||
           (c >= 0x20000 && c <= 0x3FFFF);
}

/// Characters that never begin a line.
bool Closes(char32_t c) {
    constexpr char32_t closing[] =
        U"!),.:;?]}\u2019\u201D\u2026\u3001\u3002\u3009\u300B\u300D\u300F\u3011\uFF01"
        U"\uFF09\uFF0C\uFF1A\uFF1B\uFF1F";
    return std::char_traits<char32_t>::find(closing, std::size(closing) - 1, c) !=
           nullptr;
}

bool MayBreak(char32_t before, char32_t after) {
    if (IsSpace(after) || Closes(after)) {
        return false;
    }
    return IsSpace(before) || before == '-' || before == 0x2013 || before == 0x200B ||
           IsIdeograph(before) || IsIdeograph(after);
}

/// The lines of a paragraph within a width: broken between words, and within a word that
/// is wider.
void Wrap(const std::u32string& text, const Span& paragraph,
          const std::vector<double>& advances, double width, std::vector<Span>& lines) {
    std::size_t start = paragraph.start;
    std::size_t best = start;
    double used = 0.0;
    for (std::size_t i = start; i < paragraph.end; ++i) {
        if (i > start && MayBreak(text[i - 1], text[i])) {
            best = i;
        }
        if (used + advances[i] > width && i > start && !IsSpace(text[i])) {
            const std::size_t end = best > start ? best : i;
            lines.push_back({start, end, end});
            start = best = end;
            used = 0.0;
            for (std::size_t j = start; j < i; ++j) {
                used += advances[j];
            }
        }
        used += advances[i];
    }
    lines.push_back({start, paragraph.end, paragraph.next});
}

std::vector<Span> LinesOf(Shaper& shaper, const std::u32string& text,
                          const TextStyle& style) {
    const bool wraps = style.width > 0.0 && (style.flags & StringFormatFlagsNoWrap) == 0;
    std::vector<Span> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(U"\r\n", start), text.size());
        const bool pair = text.compare(end, 2, U"\r\n") == 0;
        const Span paragraph = {start, end, std::min(end + (pair ? 2 : 1), text.size())};
        if (wraps) {
            std::vector<double> advances(text.size());
            shaper.Shape(start, end, &advances);
            Wrap(text, paragraph, advances, style.width, lines);
        } else {
            lines.push_back(paragraph);
        }
        start = paragraph.next;
    }
    return lines;
}

double Share(StringAlignment alignment) {
    return alignment == StringAlignmentNear     ? 0.0
           : alignment == StringAlignmentCenter ? 0.5
                                                : 1.0;
}

/// From right to left, the near side is the right one.
double ShareAlong(const TextStyle& style) {
    const double share = Share(style.alignment);
    return (style.flags & StringFormatFlagsDirectionRightToLeft) != 0 ? 1.0 - share
                                                                      : share;
}

INT Units(const std::u32string& text, std::size_t end) {
    return static_cast<INT>(
        end + static_cast<std::size_t>(std::count_if(
                  text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end),
                  [](char32_t c) { return c > 0xFFFF; })));
}

void AddStrokes(TextLayout& layout, const TextStyle& style, const SizedFace& face,
                const LaidLine& line) {
    const auto add = [&](double below) {
        layout.strokes.push_back(
            {line.x, line.baseline + below, line.width, face.thickness});
    };
    if ((style.style & FontStyleUnderline) != 0) {
        add(face.underline);
    }
    if ((style.style & FontStyleStrikeout) != 0) {
        add(face.strikeout);
    }
}

}  // namespace

std::unique_ptr<TextLayout> LayOut(ThreadTexts& texts, const TextStyle& style,
                                   const FlatChar* units, std::size_t length) {
    auto layout = std::make_unique<TextLayout>();
    const std::u32string text = CodePoints(units, length);
    Shaper shaper(texts, style, text);
    const auto fitted = [&](double value) {
        return style.fit ? std::floor(value) : value;
    };
    std::vector<ShapedLine> lines;
    const bool trailing = (style.flags & StringFormatFlagsMeasureTrailingSpaces) != 0;
    for (const Span& span : LinesOf(shaper, text, style)) {
        std::size_t end = span.end;
        while (!trailing && end > span.start && IsSpace(text[end - 1])) {
            --end;
        }
        const bool blank = end == span.start;
        ShapedLine line = shaper.Shape(span.start, blank ? span.end : end, nullptr);
        const double height = line.ascent + line.descent;
        const bool fits =
            style.height <= 0.0 || layout->height + (lines.empty() ? 1.0 : height) <=
                                       style.height + height - 1.0;
        if (!fits) {
            layout->clips = true;
            break;
        }
        layout->height += height;
        layout->width = std::max(layout->width, line.width);
        layout->characters = Units(text, span.next);
        layout->laid.push_back({span.start, end, 0.0, 0.0, line.width});
        lines.push_back(std::move(line));
    }
    layout->lines = static_cast<INT>(lines.size());
    const double along = ShareAlong(style);
    layout->left = fitted((style.width - layout->width) * along);
    layout->top = fitted((style.height - layout->height) * Share(style.lineAlignment));
    layout->clips = layout->clips || (style.width > 0.0 && layout->width > style.width) ||
                    (style.height > 0.0 && layout->height > style.height);
    double y = layout->top;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        LaidLine& laid = layout->laid[i];
        laid.x = fitted((style.width - laid.width) * along);
        laid.baseline = y + lines[i].ascent;
        if (!lines[i].runs.empty()) {
            AddStrokes(*layout, style, *lines[i].runs.front().face, laid);
        }
        for (GlyphRun& run : lines[i].runs) {
            for (cairo_glyph_t& glyph : run.glyphs) {
                glyph.x += laid.x;
                glyph.y += laid.baseline;
            }
            if (!run.glyphs.empty()) {
                layout->runs.push_back(std::move(run));
            }
        }
        y += lines[i].ascent + lines[i].descent;
    }
    return layout;
}

}  // namespace engine
