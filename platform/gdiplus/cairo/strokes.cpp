#include "cairo/strokes.h"

#include <algorithm>
#include <cmath>

namespace engine {

double StrokeOffset(const Graphics& graphics) {
    const bool half = graphics.state.pixelOffset == PixelOffsetModeHalf ||
                      graphics.state.pixelOffset == PixelOffsetModeHighQuality;
    return half ? 0.0 : graphics.PixelMiddle();
}

namespace {

/// The width of a pen's line on the surface.
struct Width {
    double units;           ///< of the matrix
    double device;          ///< at most
    cairo_matrix_t matrix;  ///< under which the pen is round
    bool thin;              ///< no wider than a unit
};

/// The thinnest line is as wide, in world units, as a pixel's diagonal along x or y.
double ThinnestOn(const cairo_matrix_t& device) {
    cairo_matrix_t back = device;
    cairo_matrix_invert(&back);
    return std::max(std::fabs(back.xx + back.xy), std::fabs(back.yx + back.yy));
}

/// A page pixel in Cairo's units: a fraction on a page of shapes, whose units are points.
double PixelOf(const Graphics& graphics) {
    const cairo_matrix_t& base = graphics.base;
    const double area = std::fabs(base.xx * base.yy - base.xy * base.yx);
    return graphics.ofPixels || !(area > 0.0) ? 1.0 : std::sqrt(area);
}

Width WidthOf(const Pen& pen, const Pencil& pencil) {
    const cairo_matrix_t& device = pencil.Device();
    constexpr double most = 1 << 21;
    const bool thin = !(pen.width > 1.0f);
    const double pixel = PixelOf(pencil.Surface());
    if (pen.unit != UnitWorld || !IsInvertible(device)) {
        const double pixels =
            pen.unit == UnitWorld
                ? 1.0
                : pen.width * double(PixelsIn(pen.unit, pencil.Surface().xdpi));
        const double width = std::clamp(pixels * pixel, pixel, most);
        return {width, width, kIdentity, thin};
    }
    const double units = std::max(double(pen.width), ThinnestOn(device) * pixel);
    const double scale =
        std::hypot(std::hypot(device.xx, device.yx), std::hypot(device.xy, device.yy));
    if (units * scale > most) {
        return {most, most, kIdentity, thin};
    }
    return {
        units, units * scale, {device.xx, device.yx, device.xy, device.yy, 0, 0}, thin};
}

void SetDash(cairo_t* cairo, DashStyle style, double unit) {
    // Dashes and gaps, in pen widths.
    constexpr double pattern[] = {3, 1, 1, 1, 1, 1};
    double dashes[6];
    std::transform(std::begin(pattern), std::end(pattern), dashes,
                   [&](double length) { return length * unit; });
    switch (style) {
        case DashStyleDash:
            cairo_set_dash(cairo, dashes, 2, 0.0);
            break;
        case DashStyleDot:
            cairo_set_dash(cairo, dashes + 2, 2, 0.0);
            break;
        case DashStyleDashDot:
            cairo_set_dash(cairo, dashes, 4, 0.0);
            break;
        case DashStyleDashDotDot:
            cairo_set_dash(cairo, dashes, 6, 0.0);
            break;
        default:
            cairo_set_dash(cairo, nullptr, 0, 0.0);
    }
}

cairo_line_join_t JoinOf(LineJoin join) {
    switch (join) {
        case LineJoinBevel:
            return CAIRO_LINE_JOIN_BEVEL;
        case LineJoinRound:
            return CAIRO_LINE_JOIN_ROUND;
        default:
            return CAIRO_LINE_JOIN_MITER;
    }
}

/// Cairo has one cap for both ends: that of the start, unless only the end has one.
cairo_line_cap_t CapOf(const Pen& pen, bool thin) {
    const LineCap cap = pen.startCap == LineCapFlat ? pen.endCap : pen.startCap;
    switch (cap) {
        case LineCapSquare:
            return CAIRO_LINE_CAP_SQUARE;
        case LineCapRound:
            return CAIRO_LINE_CAP_ROUND;
        default:
            // The thinnest line includes its last pixel.
            return thin && pen.dash == DashStyleSolid ? CAIRO_LINE_CAP_SQUARE
                                                      : CAIRO_LINE_CAP_BUTT;
    }
}

void SetPen(cairo_t* cairo, const Graphics& graphics, const Pen& pen,
            const Width& width) {
    cairo_set_antialias(
        cairo, graphics.IsSmooth() ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    cairo_set_matrix(cairo, &width.matrix);
    cairo_set_line_width(cairo, width.units);
    cairo_set_line_join(cairo, JoinOf(pen.join));
    cairo_set_line_cap(cairo, CapOf(pen, width.thin));
    SetDash(cairo, pen.dash, width.units);
    SetColor(cairo, pen.color);
}

/// How far from its points a stroke may reach: to the tips of its mitres.
double MarginOf(const Width& width) { return width.device * 5.0 + 1.0; }

/// An arrow with its tip at (x, y), pointing away from (fromX, fromY). A pen narrower
/// than 2 carries the arrow of a pen of width 2.
GpStatus DrawArrow(Graphics& graphics, const Pen& pen, const ArrowCap& cap, double fromX,
                   double fromY, double x, double y) {
    const double length = std::hypot(x - fromX, y - fromY);
    const double unit = std::max(2.0, static_cast<double>(pen.width));
    const double along = cap.height * unit;
    const double across = cap.width * unit / 2.0;
    if (!(length > 0.0) || !std::isfinite(along) || !std::isfinite(across)) {
        return Ok;
    }
    const double dx = (x - fromX) / length;
    const double dy = (y - fromY) / length;
    const auto trace = [&](Pencil& pencil) {
        pencil.MoveTo(x, y);
        pencil.LineTo(x - along * dx + across * dy, y - along * dy - across * dx);
        pencil.LineTo(x - along * dx - across * dy, y - along * dy + across * dx);
        pencil.LineTo(x, y);
    };
    if (cap.filled) {
        Pencil pencil(graphics, 0.0);
        trace(pencil);
        const GpStatus status = FillTraced(pencil, pen.color, FillModeWinding);
        if (status != Ok) {
            return status;
        }
    }
    Pen outline = pen;
    outline.dash = DashStyleSolid;
    outline.startCap = outline.endCap = LineCapFlat;
    Pencil pencil(graphics, 0.0);
    trace(pencil);
    return StrokeTraced(pencil, outline);
}

}  // namespace

GpStatus StrokeTraced(Pencil& pencil, const Pen& pen) {
    if (pencil.IsEmpty() || std::isnan(pen.width)) {
        return Ok;
    }
    Graphics& graphics = pencil.Surface();
    const Width width = WidthOf(pen, pencil);
    Drawing drawing(graphics, pencil.Reach(MarginOf(width)));
    SetPen(graphics.cairo, graphics, pen, width);
    cairo_stroke(graphics.cairo);
    return drawing.Finish();
}

GpStatus DrawArrows(Graphics& graphics, const Pen& pen, PointF start, PointF next,
                    PointF before, PointF end) {
    GpStatus status = Ok;
    if (pen.startArrow) {
        status =
            DrawArrow(graphics, pen, *pen.startArrow, next.X, next.Y, start.X, start.Y);
    }
    if (status == Ok && pen.endArrow) {
        status =
            DrawArrow(graphics, pen, *pen.endArrow, before.X, before.Y, end.X, end.Y);
    }
    return status;
}

}  // namespace engine
