#include "cairo/text/text_shaping.h"

#include <fribidi.h>

#include <algorithm>
#include <cmath>

#include "cairo/unicode.h"

namespace engine {
namespace {

static_assert(sizeof(FriBidiChar) == sizeof(char32_t));
static_assert(sizeof(FriBidiLevel) == sizeof(signed char));

/// No character below the Hebrew letters is written from right to left.
bool MayTurn(const std::u32string& text) {
    return std::any_of(text.begin(), text.end(), [](char32_t c) { return c >= 0x590; });
}

std::vector<signed char> LevelsOf(const std::u32string& text, bool rightToLeft) {
    const auto count = static_cast<FriBidiStrIndex>(text.size());
    if (count == 0 || (!rightToLeft && !MayTurn(text))) {
        return {};
    }
    const auto* characters = reinterpret_cast<const FriBidiChar*>(text.data());
    std::vector<FriBidiCharType> types(text.size());
    std::vector<FriBidiBracketType> brackets(text.size());
    fribidi_get_bidi_types(characters, count, types.data());
    fribidi_get_bracket_types(characters, count, types.data(), brackets.data());
    FriBidiParType direction = rightToLeft ? FRIBIDI_PAR_RTL : FRIBIDI_PAR_LTR;
    std::vector<signed char> levels(text.size());
    if (fribidi_get_par_embedding_levels_ex(types.data(), brackets.data(), count,
                                            &direction, levels.data()) == 0) {
        throw std::bad_alloc();
    }
    const bool turns = std::any_of(levels.begin(), levels.end(),
                                   [](signed char level) { return level != 0; });
    return turns ? levels : std::vector<signed char>();
}

/// Characters that combine with the one before, or join two.
bool JoinsOn(char32_t c) {
    const hb_unicode_general_category_t kind =
        hb_unicode_general_category(hb_unicode_funcs_get_default(), c);
    return kind == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           kind == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK ||
           kind == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK ||
           kind == HB_UNICODE_GENERAL_CATEGORY_FORMAT;
}

hb_script_t ScriptOf(char32_t c) {
    if (c < 0x80) {
        const bool letter = (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
        return letter ? HB_SCRIPT_LATIN : HB_SCRIPT_COMMON;
    }
    return hb_unicode_script(hb_unicode_funcs_get_default(), c);
}

bool IsCommon(hb_script_t script) {
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED;
}

/// Characters without a shape or width.
bool IsSilent(char32_t c) { return c < 0x20 || c == 0x7F; }

/// Which characters of an item belong to which glyphs: clusters of some of each, as the
/// font forms them.
class Clusters {
public:
    Clusters(std::size_t start, std::size_t end)
        : start_(start), glyphs_(end - start, -1) {}

    /// Begins a cluster at a character.
    void Begin(std::size_t at) {
        int& glyphs = glyphs_[at - start_];
        glyphs = std::max(glyphs, 0);
    }
    void AddGlyph(std::size_t at) { ++glyphs_[at - start_]; }

    /// Writes the clusters that have glyphs.
    void Write(const std::u32string& text, GlyphRun& run) const {
        for (std::size_t from = 0; from < glyphs_.size();) {
            std::size_t to = from + 1;
            while (to < glyphs_.size() && glyphs_[to] < 0) {
                ++to;
            }
            if (glyphs_[from] > 0) {
                std::u32string part = text.substr(start_ + from, to - from);
                std::replace_if(part.begin(), part.end(), IsNoCharacter, U'\uFFFD');
                const std::string utf8 = Utf8(part);
                run.text += utf8;
                run.clusters.push_back({static_cast<int>(utf8.size()), glyphs_[from]});
            }
            from = to;
        }
    }

private:
    /// Values that Cairo does not accept as text.
    static bool IsNoCharacter(char32_t c) {
        return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF);
    }

    std::size_t start_;
    std::vector<int> glyphs_;  ///< by character; -1 within a cluster
};

}  // namespace

Shaper::Shaper(ThreadTexts& texts, const TextStyle& style, const std::u32string& text)
    : texts_(texts),
      style_(style),
      text_(text),
      levels_(LevelsOf(text, (style.flags & StringFormatFlagsDirectionRightToLeft) != 0)),
      faces_{texts.Sized(style.family->FaceOf(style.style), style)} {}

std::shared_ptr<SizedFace> Shaper::FaceFor(char32_t character) {
    for (const std::shared_ptr<SizedFace>& face : faces_) {
        if (face->face->Has(character)) {
            return face;
        }
    }
    if ((style_.flags & StringFormatFlagsNoFontFallback) == 0) {
        if (const auto file = texts_.FallbackFor(style_, character)) {
            faces_.push_back(texts_.Sized(file, style_));
            return faces_.back();
        }
    }
    return faces_.front();
}

std::vector<Shaper::Item> Shaper::ItemsOf(std::size_t start, std::size_t end) {
    std::vector<Item> items;
    for (std::size_t i = start; i < end; ++i) {
        const char32_t c = text_[i];
        const int level = levels_.empty() ? 0 : levels_[i];
        const hb_script_t script = ScriptOf(c);
        Item* const last = items.empty() ? nullptr : &items.back();
        const bool stays = last != nullptr && last->level == level &&
                           (IsSilent(c) || c == ' ' || JoinsOn(c));
        const std::shared_ptr<SizedFace> face =
            stays ? last->face : FaceFor(IsSilent(c) ? U' ' : c);
        if (last != nullptr && last->level == level && last->face == face &&
            (IsCommon(script) || IsCommon(last->script) || last->script == script)) {
            last->end = i + 1;
            last->script = IsCommon(last->script) ? script : last->script;
        } else {
            items.push_back({i, i + 1, level, script, face});
        }
    }
    return items;
}

double Shaper::TabAdvance(double at) {
    if (tab_ == 0.0) {
        hb_codepoint_t space = 0;
        hb_font_t* const font = faces_.front()->shapes.get();
        hb_font_get_nominal_glyph(font, U' ', &space);
        const double advance = hb_font_get_glyph_h_advance(font, space) / kUnit;
        tab_ = std::max(8.0 * (faces_.front()->fit ? std::round(advance) : advance), 1.0);
    }
    return (std::floor(at / tab_) + 1.0) * tab_ - at;
}

void Shaper::ShapeItem(const Item& item, ShapedLine& line,
                       std::vector<double>* advances) {
    const Owned<hb_buffer_t, hb_buffer_destroy> buffer(hb_buffer_create());
    hb_buffer_add_codepoints(
        buffer.get(), reinterpret_cast<const hb_codepoint_t*>(text_.data()),
        static_cast<int>(text_.size()), static_cast<unsigned>(item.start),
        static_cast<int>(item.end - item.start));
    hb_buffer_set_direction(buffer.get(),
                            item.level % 2 == 0 ? HB_DIRECTION_LTR : HB_DIRECTION_RTL);
    hb_buffer_set_script(buffer.get(),
                         IsCommon(item.script) ? HB_SCRIPT_LATIN : item.script);
    static const hb_language_t language = hb_language_get_default();
    hb_buffer_set_language(buffer.get(), language);
    hb_shape(item.face->shapes.get(), buffer.get(), nullptr, 0);
    if (hb_buffer_allocation_successful(buffer.get()) == 0) {
        throw std::bad_alloc();
    }
    unsigned count = 0;
    const hb_glyph_info_t* const infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* const positions =
        hb_buffer_get_glyph_positions(buffer.get(), nullptr);
    GlyphRun run = {item.face, {}};
    run.glyphs.reserve(count);
    run.isBackward = item.level % 2 != 0;
    Clusters clusters(item.start, item.end);
    const auto pixels = [&](hb_position_t position) {
        const double value = position / kUnit;
        return item.face->fit ? std::floor(value + 0.5) : value;
    };
    for (unsigned i = 0; i < count; ++i) {
        const char32_t c = text_[infos[i].cluster];
        double advance = 0.0;
        clusters.Begin(infos[i].cluster);
        if (c == '\t') {
            advance = TabAdvance(line.width);
        } else if (!IsSilent(c)) {
            advance = pixels(positions[i].x_advance);
            clusters.AddGlyph(infos[i].cluster);
            run.glyphs.push_back({infos[i].codepoint,
                                  line.width + pixels(positions[i].x_offset),
                                  -pixels(positions[i].y_offset)});
        }
        line.width += advance;
        if (advances != nullptr) {
            (*advances)[infos[i].cluster] += advance;
        }
    }
    clusters.Write(text_, run);
    line.runs.push_back(std::move(run));
}

ShapedLine Shaper::Shape(std::size_t start, std::size_t end,
                         std::vector<double>* advances) {
    std::vector<Item> items = ItemsOf(start, end);
    ShapedLine line;
    int highest = 0;
    for (const Item& item : items) {
        line.ascent = std::max(line.ascent, item.face->ascent);
        line.descent = std::max(line.descent, item.face->descent);
        highest = std::max(highest, item.level);
    }
    if (items.empty()) {
        line.ascent = faces_.front()->ascent;
        line.descent = faces_.front()->descent;
    }
    // From the innermost embedding outwards, reverses what runs the other way.
    for (int level = highest; level > 0; --level) {
        for (auto from = items.begin(); from != items.end();) {
            from = std::find_if(from, items.end(),
                                [&](const Item& item) { return item.level >= level; });
            const auto to = std::find_if(
                from, items.end(), [&](const Item& item) { return item.level < level; });
            std::reverse(from, to);
            from = to;
        }
    }
    for (const Item& item : items) {
        ShapeItem(item, line, advances);
    }
    return line;
}

}  // namespace engine
