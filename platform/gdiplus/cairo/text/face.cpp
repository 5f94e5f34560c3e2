#include "cairo/text/face.h"

#include <cairo-ft.h>
#include <ft2build.h>
#include <hb-ot.h>

#include <algorithm>
#include <cmath>
#include <mutex>
#include FT_FREETYPE_H

namespace engine {
namespace {

/// FreeType opens and closes faces one at a time; its faces can be used in any number of
/// threads.
struct FreeType {
    std::mutex mutex;
    FT_Library library = nullptr;
    int faces = 0;
    bool released = false;
};

FreeType& TheFreeType() {
    // Never destroyed: Cairo may release a last face after everything else has ended.
    static auto* const freeType = new FreeType;
    return *freeType;
}

void EndIfUnused(FreeType& freeType) {
    if (freeType.released && freeType.faces == 0 && freeType.library != nullptr) {
        FT_Done_FreeType(freeType.library);
        freeType.library = nullptr;
    }
}

FT_Face Open(const FaceFile& file) {
    FreeType& freeType = TheFreeType();
    const std::lock_guard lock(freeType.mutex);
    if (freeType.library == nullptr && FT_Init_FreeType(&freeType.library) != 0) {
        throw std::bad_alloc();
    }
    freeType.released = false;
    FT_Face face = nullptr;
    if (FT_New_Face(freeType.library, file.path.c_str(), file.index, &face) != 0) {
        throw std::bad_alloc();  // it existed when Fontconfig listed it
    }
    ++freeType.faces;
    return face;
}

void Close(void* face) {
    FreeType& freeType = TheFreeType();
    const std::lock_guard lock(freeType.mutex);
    FT_Done_Face(static_cast<FT_Face>(face));
    --freeType.faces;
    EndIfUnused(freeType);
}

cairo_font_face_t* CairoFace(const FaceFile& file) {
    FT_FaceRec_* const face = Open(file);
    cairo_font_face_t* const made = cairo_ft_font_face_create_for_ft_face(
        face, file.hintStyle == FC_HINT_SLIGHT ? FT_LOAD_TARGET_LIGHT : FT_LOAD_DEFAULT);
    static const cairo_user_data_key_t key = {0};
    // Cairo keeps faces longer than their creators.
    if (cairo_font_face_set_user_data(made, &key, face, Close) != CAIRO_STATUS_SUCCESS) {
        cairo_font_face_destroy(made);
        Close(face);
        throw std::bad_alloc();
    }
    const unsigned synthesis = (file.embolden ? unsigned{CAIRO_FT_SYNTHESIZE_BOLD} : 0U) |
                               (file.slant ? unsigned{CAIRO_FT_SYNTHESIZE_OBLIQUE} : 0U);
    cairo_ft_font_face_set_synthesize(made, synthesis);
    return made;
}

}  // namespace

void ReleaseFreeType() {
    FreeType& freeType = TheFreeType();
    const std::lock_guard lock(freeType.mutex);
    freeType.released = true;
    EndIfUnused(freeType);
}

Face::Face(std::shared_ptr<const FaceFile> from)
    : file(std::move(from)), glyphs(CairoFace(*file)) {
    const FontBytes blob = BytesOf(*file);
    hb_face_t* const face =
        hb_face_create(blob.get(), static_cast<unsigned>(file->index) & 0xFFFF);
    shapes.reset(hb_font_create(face));
    if (file->index >> 16 != 0) {
        hb_font_set_var_named_instance(shapes.get(),
                                       static_cast<unsigned>(file->index >> 16) - 1);
    }
    em = std::max(1U, hb_face_get_upem(face));
    hb_face_destroy(face);
}

bool Face::Has(char32_t character) const {
    hb_codepoint_t glyph = 0;
    return hb_font_get_nominal_glyph(shapes.get(), character, &glyph) != 0;
}

FontOptions OptionsFor(const FaceFile& file, bool fitToPixels, bool smooth) {
    FontOptions options(cairo_font_options_create());
    constexpr cairo_hint_style_t styles[] = {
        CAIRO_HINT_STYLE_NONE, CAIRO_HINT_STYLE_SLIGHT, CAIRO_HINT_STYLE_MEDIUM,
        CAIRO_HINT_STYLE_FULL};
    const int style = std::clamp(file.hintStyle, 0, 3);
    cairo_font_options_set_antialias(
        options.get(), smooth ? CAIRO_ANTIALIAS_GRAY : CAIRO_ANTIALIAS_NONE);
    cairo_font_options_set_hint_style(options.get(), styles[style]);
    cairo_font_options_set_hint_metrics(
        options.get(), fitToPixels ? CAIRO_HINT_METRICS_ON : CAIRO_HINT_METRICS_OFF);
    return options;
}

SizedFace::SizedFace(std::shared_ptr<Face> of, double emSize, bool fitToPixels,
                     bool smooth)
    : face(std::move(of)),
      size(emSize),
      fit(fitToPixels && emSize <= kLargestGlyphs),
      shapes(hb_font_create_sub_font(face->shapes.get())) {
    const auto scale = static_cast<int>(std::lround(size * kUnit));
    hb_font_set_scale(shapes.get(), scale, scale);
    cairo_matrix_t em;
    const double made = std::min(size, kLargestGlyphs);
    cairo_matrix_init_scale(&em, made, made);
    const cairo_matrix_t identity = {1, 0, 0, 1, 0, 0};
    glyphs.reset(cairo_scaled_font_create(face->glyphs.get(), &em, &identity,
                                          OptionsFor(*face->file, fit, smooth).get()));
    hb_font_extents_t extents = {};
    hb_font_get_h_extents(face->shapes.get(), &extents);
    const double unit = size / face->em;
    const auto whole = [&](double units) {
        return fit ? std::ceil(units * unit - 1e-6) : units * unit;
    };
    ascent = whole(extents.ascender);
    descent = whole(-extents.descender);
    const auto line = [&](hb_ot_metrics_tag_t tag, double otherwise) {
        hb_position_t position = 0;
        const bool told =
            hb_ot_metrics_get_position(face->shapes.get(), tag, &position) != 0;
        const double pixels = (told ? position : otherwise * face->em) * unit;
        return fit ? std::floor(pixels + 0.5) : pixels;
    };
    thickness = std::max(1.0, line(HB_OT_METRICS_TAG_UNDERLINE_SIZE, 0.05));
    underline = -line(HB_OT_METRICS_TAG_UNDERLINE_OFFSET, -0.1);
    strikeout = -line(HB_OT_METRICS_TAG_STRIKEOUT_OFFSET, 0.3);
}

}  // namespace engine
