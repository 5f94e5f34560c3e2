#include <algorithm>
#include <cmath>

#include "cairo/graphics.h"

namespace engine {
namespace {

cairo_rectangle_int_t AreaOf(const Pixels& pixels, const Extents& extents) {
    const double left = std::clamp(std::floor(extents.left), 0.0, double(pixels.width));
    const double top = std::clamp(std::floor(extents.top), 0.0, double(pixels.height));
    const double right = std::clamp(std::ceil(extents.right), left, double(pixels.width));
    const double bottom =
        std::clamp(std::ceil(extents.bottom), top, double(pixels.height));
    return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
            static_cast<int>(bottom - top)};
}

ARGB* FirstOf(const Pixels& pixels, const cairo_rectangle_int_t& area, int row) {
    return reinterpret_cast<ARGB*>(pixels.Row(area.y + row)) + area.x;
}

/// Opaque and fully clear pixels are the same in both forms; most rows have no others.
bool HasOthers(const ARGB* row, int count) {
    ARGB others = 0;
    for (int x = 0; x < count; ++x) {
        others |= row[x] >= 0xFF000000 ? 0 : row[x];
    }
    return others != 0;
}

bool IsOpaque(const Pixels& pixels, const cairo_rectangle_int_t& area) {
    for (int y = 0; y < area.height; ++y) {
        const ARGB* const row = FirstOf(pixels, area, y);
        ARGB all = 0xFF000000;
        for (int x = 0; x < area.width; ++x) {
            all &= row[x];
        }
        if (all != 0xFF000000) {
            return false;
        }
    }
    return true;
}

void Premultiply(const Pixels& pixels, const cairo_rectangle_int_t& area,
                 std::vector<StraightPixel>& kept) {
    for (int y = 0; y < area.height; ++y) {
        ARGB* const row = FirstOf(pixels, area, y);
        if (!HasOthers(row, area.width)) {
            continue;
        }
        for (ARGB* at = row; at != row + area.width; ++at) {
            if (*at >> 24 != 255 && *at != 0) {
                kept.push_back({at, *at, Premultiplied(*at)});
            }
        }
    }
    for (const StraightPixel& pixel : kept) {
        *pixel.at = pixel.premultiplied;
    }
}

void Straighten(const Pixels& pixels, const cairo_rectangle_int_t& area,
                std::vector<StraightPixel>& kept) {
    auto next = kept.begin();
    for (int y = 0; y < area.height; ++y) {
        ARGB* const row = FirstOf(pixels, area, y);
        if ((next == kept.end() || next->at >= row + area.width) &&
            !HasOthers(row, area.width)) {
            continue;
        }
        for (ARGB* at = row; at != row + area.width; ++at) {
            const bool was = next != kept.end() && next->at == at;
            if (was && *at == next->premultiplied) {
                *at = next->straight;
            } else if (*at >> 24 != 255) {
                *at = Straight(*at);
            }
            next += was ? 1 : 0;
        }
    }
    kept.clear();
}

}  // namespace

Drawing::Drawing(Graphics& graphics, const Extents& extents) : graphics_(graphics) {
    const Pixels* pixels = graphics.pixels.get();
    if (pixels == nullptr) {
        return;
    }
    if (pixels->format == PixelFormat32bppARGB && !pixels->opaque) {
        area_ = AreaOf(*pixels, extents);
        if (IsOpaque(*pixels, area_)) {
            area_.width = 0;  // and stays empty, whatever is drawn
            return;
        }
        Premultiply(*pixels, area_, graphics.straight);
    } else if (graphics.scratch != nullptr) {
        area_ = AreaOf(*pixels, extents);
        for (int y = 0; y < area_.height; ++y) {
            ReadColors(pixels->format, {}, pixels->Row(area_.y + y), area_.x, area_.width,
                       FirstOf(*graphics.scratch, area_, y));
        }
    }
}

Drawing::~Drawing() {
    if (area_.width == 0) {
        return;
    }
    const Pixels& pixels = *graphics_.pixels;
    if (graphics_.scratch == nullptr) {
        Straighten(pixels, area_, graphics_.straight);
        return;
    }
    for (int y = 0; y < area_.height; ++y) {
        WriteColors(pixels.format, pixels.Row(area_.y + y), area_.x, area_.width,
                    FirstOf(*graphics_.scratch, area_, y));
    }
}

GpStatus Drawing::Finish() {
    const cairo_status_t status = cairo_status(graphics_.cairo);
    if (status == CAIRO_STATUS_SUCCESS) {
        return Ok;
    }
    cairo_surface_t* const surface = cairo_get_target(graphics_.cairo);
    if (graphics_.pixels != nullptr &&
        cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS) {
        cairo_t* const fresh = cairo_create(surface);
        cairo_destroy(graphics_.cairo);
        graphics_.cairo = fresh;
        cairo_save(fresh);
        graphics_.ApplyClip();
    }
    return status == CAIRO_STATUS_NO_MEMORY ? OutOfMemory : GenericError;
}

}  // namespace engine
