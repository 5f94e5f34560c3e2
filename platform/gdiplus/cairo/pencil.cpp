#include "cairo/pencil.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace engine {

Pencil::Pencil(Graphics& graphics, double offset)
    : graphics_(graphics),
      device_(graphics.Device()),
      plain_(IsIdentity(device_)),
      offset_(offset) {
    constexpr double none = std::numeric_limits<double>::infinity();
    extents_ = {none, none, -none, -none};
    cairo_identity_matrix(graphics.cairo);
    cairo_new_path(graphics.cairo);
}

void Pencil::Carry(double& x, double& y) {
    if (!plain_) {
        cairo_matrix_transform_point(&device_, &x, &y);
    }
    constexpr double most = 1 << 21;
    bad_ = bad_ || std::isnan(x) || std::isnan(y);
    x = std::clamp(x + offset_, -most, most);
    y = std::clamp(y + offset_, -most, most);
    extents_.left = std::min(extents_.left, x);
    extents_.top = std::min(extents_.top, y);
    extents_.right = std::max(extents_.right, x);
    extents_.bottom = std::max(extents_.bottom, y);
}

void Pencil::MoveTo(double x, double y) {
    Carry(x, y);
    cairo_move_to(graphics_.cairo, x, y);
}

void Pencil::LineTo(double x, double y) {
    Carry(x, y);
    cairo_line_to(graphics_.cairo, x, y);
}

void Pencil::CurveTo(const PointF& second, const PointF& third, const PointF& end) {
    double x[] = {second.X, third.X, end.X};
    double y[] = {second.Y, third.Y, end.Y};
    for (int i = 0; i < 3; ++i) {
        Carry(x[i], y[i]);
    }
    cairo_curve_to(graphics_.cairo, x[0], y[0], x[1], y[1], x[2], y[2]);
}

Extents Pencil::Reach(double margin) const {
    return {extents_.left - margin, extents_.top - margin, extents_.right + margin,
            extents_.bottom + margin};
}

void TraceRectangle(Pencil& pencil, double x, double y, double width, double height) {
    pencil.MoveTo(x, y);
    pencil.LineTo(x + width, y);
    pencil.LineTo(x + width, y + height);
    pencil.LineTo(x, y + height);
    pencil.Close();
}

void TracePath(Pencil& pencil, const Path& path, const PointF& origin, double scale) {
    const auto at = [&](std::size_t i) {
        return PointF(static_cast<REAL>(path.points[i].X * scale + origin.X),
                      static_cast<REAL>(path.points[i].Y * scale + origin.Y));
    };
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        const PointF point = at(i);
        switch (path.kinds[i] & Path::KindBits) {
            case Path::Start:
                pencil.MoveTo(point.X, point.Y);
                break;
            case Path::Line:
                pencil.LineTo(point.X, point.Y);
                break;
            default:
                pencil.CurveTo(point, at(i + 1), at(i + 2));
                i += 2;
        }
        if ((path.kinds[i] & Path::Closes) != 0) {
            pencil.Close();
        }
    }
}

void SetColor(cairo_t* cairo, ARGB color) {
    constexpr double whole = 255.0;
    cairo_set_source_rgba(cairo, (color >> 16 & 255) / whole, (color >> 8 & 255) / whole,
                          (color & 255) / whole, (color >> 24) / whole);
}

namespace {

/// Fills the pixels within part of a clip.
void Flood(const Pixels& pixels, const cairo_rectangle_int_t& part, ARGB color) {
    const int left = std::max(part.x, 0);
    const int right = std::min(part.x + part.width, pixels.width);
    const int top = std::max(part.y, 0);
    const int bottom = std::min(part.y + part.height, pixels.height);
    if (left >= right || top >= bottom) {
        return;
    }
    const std::vector<ARGB> colors(static_cast<std::size_t>(right - left), color);
    WriteColors(pixels.format, pixels.Row(top), left, right - left, colors.data());
    // A colour with all bytes equal, such as white, can be written without reading first.
    const int bytes = static_cast<int>(GetPixelFormatSize(pixels.format) / 8);
    const BYTE* const pixel = pixels.Row(top) + std::ptrdiff_t{left} * bytes;
    const bool plain =
        std::all_of(pixel, pixel + bytes, [pixel](BYTE byte) { return byte == *pixel; });
    for (int y = top + 1; y < bottom; ++y) {
        if (plain) {
            std::memset(
                pixels.Row(y) + std::ptrdiff_t{left} * bytes, *pixel,
                static_cast<std::size_t>(right - left) * static_cast<std::size_t>(bytes));
        } else {
            WriteColors(pixels.format, pixels.Row(y), left, right - left, colors.data());
        }
    }
}

}  // namespace

GpStatus Clear(Graphics& graphics, ARGB color) {
    const cairo_region_t* const clip = graphics.state.clip.get();
    if (Pixels* const pixels = graphics.pixels.get()) {
        const bool opaque = color >> 24 == 255;
        if (clip == nullptr) {
            Flood(*pixels, {0, 0, pixels->width, pixels->height}, color);
            pixels->opaque = opaque && pixels->memory != nullptr;
            return Ok;
        }
        for (int i = 0; i < cairo_region_num_rectangles(clip); ++i) {
            cairo_rectangle_int_t part;
            cairo_region_get_rectangle(clip, i, &part);
            Flood(*pixels, part, color);
        }
        pixels->opaque = pixels->opaque && opaque;
        return Ok;
    }
    SetColor(graphics.cairo, color);
    cairo_set_operator(graphics.cairo, CAIRO_OPERATOR_SOURCE);
    cairo_paint(graphics.cairo);
    cairo_set_operator(graphics.cairo, CAIRO_OPERATOR_OVER);
    return cairo_status(graphics.cairo) == CAIRO_STATUS_SUCCESS ? Ok : GenericError;
}

GpStatus FillTraced(Pencil& pencil, ARGB color, FillMode mode) {
    Graphics& graphics = pencil.Surface();
    if (pencil.IsEmpty()) {
        return Ok;
    }
    Drawing drawing(graphics, pencil.Reach(1.0));
    cairo_t* const cairo = graphics.cairo;
    cairo_set_antialias(
        cairo, graphics.IsSmooth() ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    cairo_set_fill_rule(cairo, mode == FillModeWinding ? CAIRO_FILL_RULE_WINDING
                                                       : CAIRO_FILL_RULE_EVEN_ODD);
    SetColor(cairo, color);
    cairo_fill(cairo);
    return drawing.Finish();
}

}  // namespace engine
