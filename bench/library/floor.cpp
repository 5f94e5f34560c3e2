#include "floor.h"

#include <cairo.h>
#include <dlfcn.h>

#include <memory>

namespace bench {
namespace {

using Calls = std::vector<std::function<void()>>;

Calls* g_notes = nullptr;

template <typename Function>
Function* Real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Makes a call and notes it, to be made again with what it was given by value.
template <typename Function, typename... Arguments>
void Make(Function* real, Arguments... arguments) {
    real(arguments...);
    if (g_notes != nullptr) {
        g_notes->push_back([=] { real(arguments...); });
    }
}

/// What Cairo counts the holders of is held as long as the notes are.
template <typename Function, typename Object>
void MakeHolding(Function* real, cairo_t* cairo, Object* object, Object* (*hold)(Object*),
                 void (*drop)(Object*)) {
    real(cairo, object);
    if (g_notes != nullptr) {
        const std::shared_ptr<Object> held(hold(object), drop);
        g_notes->push_back([=] { real(cairo, held.get()); });
    }
}

/// Of an array a copy is given again.
template <typename Function, typename Item, typename... More>
void MakeCopying(Function* real, cairo_t* cairo, const Item* items, int count,
                 More... more) {
    real(cairo, items, count, more...);
    if (g_notes != nullptr) {
        const std::vector<Item> again(items, items + count);
        g_notes->push_back([=] { real(cairo, again.data(), count, more...); });
    }
}

}  // namespace

Floor::Floor(const std::function<void()>& draw) {
    g_notes = &m_calls;
    draw();
    g_notes = nullptr;
}

}  // namespace bench

// The calls of what draws reach these first.
#define FLOOR_CALL(name, parameters, ...)                              \
    void name parameters {                                             \
        static auto* const real = bench::Real<void parameters>(#name); \
        bench::Make(real, __VA_ARGS__);                                \
    }

extern "C" {

FLOOR_CALL(cairo_save, (cairo_t * c), c)
FLOOR_CALL(cairo_restore, (cairo_t * c), c)
FLOOR_CALL(cairo_clip, (cairo_t * c), c)
FLOOR_CALL(cairo_new_path, (cairo_t * c), c)
FLOOR_CALL(cairo_close_path, (cairo_t * c), c)
FLOOR_CALL(cairo_fill, (cairo_t * c), c)
FLOOR_CALL(cairo_stroke, (cairo_t * c), c)
FLOOR_CALL(cairo_paint, (cairo_t * c), c)
FLOOR_CALL(cairo_identity_matrix, (cairo_t * c), c)
FLOOR_CALL(cairo_move_to, (cairo_t * c, double x, double y), c, x, y)
FLOOR_CALL(cairo_line_to, (cairo_t * c, double x, double y), c, x, y)
FLOOR_CALL(cairo_translate, (cairo_t * c, double x, double y), c, x, y)
FLOOR_CALL(cairo_scale, (cairo_t * c, double x, double y), c, x, y)
FLOOR_CALL(cairo_curve_to,
           (cairo_t * c, double x1, double y1, double x2, double y2, double x3,
            double y3),
           c, x1, y1, x2, y2, x3, y3)
FLOOR_CALL(cairo_rectangle, (cairo_t * c, double x, double y, double w, double h), c, x,
           y, w, h)
FLOOR_CALL(cairo_set_source_rgba,
           (cairo_t * c, double red, double green, double blue, double alpha), c, red,
           green, blue, alpha)
FLOOR_CALL(cairo_set_line_width, (cairo_t * c, double width), c, width)
FLOOR_CALL(cairo_set_font_size, (cairo_t * c, double size), c, size)
FLOOR_CALL(cairo_set_antialias, (cairo_t * c, cairo_antialias_t mode), c, mode)
FLOOR_CALL(cairo_set_fill_rule, (cairo_t * c, cairo_fill_rule_t rule), c, rule)
FLOOR_CALL(cairo_set_line_cap, (cairo_t * c, cairo_line_cap_t cap), c, cap)
FLOOR_CALL(cairo_set_line_join, (cairo_t * c, cairo_line_join_t join), c, join)
FLOOR_CALL(cairo_set_operator, (cairo_t * c, cairo_operator_t op), c, op)

void cairo_set_matrix(cairo_t* c, const cairo_matrix_t* matrix) {
    static auto* const real = bench::Real<decltype(cairo_set_matrix)>("cairo_set_matrix");
    real(c, matrix);
    if (bench::g_notes != nullptr) {
        bench::g_notes->push_back([c, again = *matrix] { real(c, &again); });
    }
}

void cairo_set_dash(cairo_t* c, const double* dashes, int count, double offset) {
    static auto* const real = bench::Real<decltype(cairo_set_dash)>("cairo_set_dash");
    bench::MakeCopying(real, c, dashes, count, offset);
}

void cairo_show_glyphs(cairo_t* c, const cairo_glyph_t* glyphs, int count) {
    static auto* const real =
        bench::Real<decltype(cairo_show_glyphs)>("cairo_show_glyphs");
    bench::MakeCopying(real, c, glyphs, count);
}

void cairo_glyph_path(cairo_t* c, const cairo_glyph_t* glyphs, int count) {
    static auto* const real = bench::Real<decltype(cairo_glyph_path)>("cairo_glyph_path");
    bench::MakeCopying(real, c, glyphs, count);
}

void cairo_set_source(cairo_t* c, cairo_pattern_t* source) {
    static auto* const real = bench::Real<decltype(cairo_set_source)>("cairo_set_source");
    bench::MakeHolding(real, c, source, cairo_pattern_reference, cairo_pattern_destroy);
}

void cairo_set_font_face(cairo_t* c, cairo_font_face_t* face) {
    static auto* const real =
        bench::Real<decltype(cairo_set_font_face)>("cairo_set_font_face");
    bench::MakeHolding(real, c, face, cairo_font_face_reference, cairo_font_face_destroy);
}

void cairo_set_font_options(cairo_t* c, const cairo_font_options_t* options) {
    static auto* const real =
        bench::Real<decltype(cairo_set_font_options)>("cairo_set_font_options");
    real(c, options);
    if (bench::g_notes != nullptr) {
        const std::shared_ptr<cairo_font_options_t> again(
            cairo_font_options_copy(options), cairo_font_options_destroy);
        bench::g_notes->push_back([=] { real(c, again.get()); });
    }
}

void cairo_set_scaled_font(cairo_t* c, const cairo_scaled_font_t* font) {
    static auto* const real =
        bench::Real<decltype(cairo_set_scaled_font)>("cairo_set_scaled_font");
    real(c, font);
    if (bench::g_notes != nullptr) {
        const std::shared_ptr<cairo_scaled_font_t> held(
            cairo_scaled_font_reference(const_cast<cairo_scaled_font_t*>(font)),
            cairo_scaled_font_destroy);
        bench::g_notes->push_back([=] { real(c, held.get()); });
    }
}

}  // extern "C"
