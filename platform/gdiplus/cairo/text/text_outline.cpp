#include <algorithm>

#include "cairo/text/text_cache.h"

namespace engine {
namespace {

/// A Cairo context that draws nowhere, for its paths.
Owned<cairo_t, cairo_destroy> Nowhere() {
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1);
    Owned<cairo_t, cairo_destroy> cairo(cairo_create(surface));
    cairo_surface_destroy(surface);
    return cairo;
}

/// Adds a traced outline, scaled and moved.
void Take(Path& path, const cairo_path_t& traced, double scale, double x, double y) {
    const auto add = [&](const cairo_path_data_t& data, Path::Kind kind) {
        path.Add(static_cast<REAL>(data.point.x * scale + x),
                 static_cast<REAL>(data.point.y * scale + y), kind);
    };
    for (int i = 0; i < traced.num_data; i += traced.data[i].header.length) {
        const cairo_path_data_t* const data = &traced.data[i];
        // Cairo adds a move after closing; a real figure has at least one more point.
        const bool figure = i + data->header.length < traced.num_data &&
                            data[data->header.length].header.type != CAIRO_PATH_MOVE_TO;
        switch (data->header.type) {
            case CAIRO_PATH_MOVE_TO:
                if (figure) {
                    add(data[1], Path::Start);
                }
                break;
            case CAIRO_PATH_LINE_TO:
                add(data[1], Path::Line);
                break;
            case CAIRO_PATH_CURVE_TO:
                for (int k = 1; k <= 3; ++k) {
                    add(data[k], Path::Curve);
                }
                break;
            case CAIRO_PATH_CLOSE_PATH:
                path.Close();
        }
    }
}

void AddRectangle(Path& path, const cairo_rectangle_t& r) {
    const auto add = [&](double x, double y, Path::Kind kind) {
        path.Add(static_cast<REAL>(x), static_cast<REAL>(y), kind);
    };
    add(r.x, r.y, Path::Start);
    add(r.x + r.width, r.y, Path::Line);
    add(r.x + r.width, r.y + r.height, Path::Line);
    add(r.x, r.y + r.height, Path::Line);
    path.Close();
}

}  // namespace

const Path& OutlineOf(TextLayout& layout) {
    if (layout.outline != nullptr) {
        return *layout.outline;
    }
    auto outline = std::make_unique<Path>();
    const auto cairo = Nowhere();
    for (const GlyphRun& run : layout.runs) {
        cairo_set_scaled_font(cairo.get(), run.face->glyphs.get());
        const double enlarged = std::max(1.0, run.face->size / kLargestGlyphs);
        for (const cairo_glyph_t& glyph : run.glyphs) {
            const cairo_glyph_t alone = {glyph.index, 0.0, 0.0};
            cairo_new_path(cairo.get());
            cairo_glyph_path(cairo.get(), &alone, 1);
            const Owned<cairo_path_t, cairo_path_destroy> traced(
                cairo_copy_path(cairo.get()));
            if (traced->status != CAIRO_STATUS_SUCCESS) {
                throw std::bad_alloc();
            }
            Take(*outline, *traced, enlarged, glyph.x, glyph.y);
        }
    }
    for (const cairo_rectangle_t& stroke : layout.strokes) {
        AddRectangle(*outline, stroke);
    }
    Texts().Charge(outline->points.capacity() * sizeof(PointF) +
                   outline->kinds.capacity());
    layout.outline = std::move(outline);
    return *layout.outline;
}

}  // namespace engine
