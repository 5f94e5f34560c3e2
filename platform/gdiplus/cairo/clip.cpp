#include <algorithm>
#include <cmath>

#include "cairo/graphics.h"

namespace engine {
namespace {

using Region = std::shared_ptr<cairo_region_t>;

/// Far beyond every surface, yet small enough for sums.
constexpr int kFar = 1 << 22;

int Cell(double value) {
    // A cell is inside if its centre is.
    return static_cast<int>(
        std::clamp(std::ceil(value - 0.5), double(-kFar), double(kFar)));
}

Region Adopt(cairo_region_t* region) {
    if (cairo_region_status(region) != CAIRO_STATUS_SUCCESS) {
        throw std::bad_alloc();
    }
    return Region(region, cairo_region_destroy);
}

Region Everything() {
    const cairo_rectangle_int_t all = {-kFar, -kFar, 2 * kFar, 2 * kFar};
    return Adopt(cairo_region_create_rectangle(&all));
}

struct Corner {
    double x;
    double y;
};

/// The cells within a rotated rectangle, row by row.
Region Turned(const Corner (&corners)[4], int rows) {
    Region region = Adopt(cairo_region_create());
    double top = corners[0].y;
    double bottom = corners[0].y;
    for (const Corner& corner : corners) {
        top = std::min(top, corner.y);
        bottom = std::max(bottom, corner.y);
    }
    const int last = std::min(Cell(bottom), rows);
    for (int y = std::max(Cell(top), 0); y < last; ++y) {
        const double middle = y + 0.5;
        double left = kFar;
        double right = -kFar;
        for (int i = 0; i < 4; ++i) {
            const Corner& a = corners[i];
            const Corner& b = corners[(i + 1) % 4];
            if ((a.y <= middle) != (b.y <= middle)) {
                const double x = a.x + (middle - a.y) / (b.y - a.y) * (b.x - a.x);
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
        if (Cell(right) > Cell(left)) {
            const cairo_rectangle_int_t row = {Cell(left), y, Cell(right) - Cell(left),
                                               1};
            if (cairo_region_union_rectangle(region.get(), &row) !=
                CAIRO_STATUS_SUCCESS) {
                throw std::bad_alloc();
            }
        }
    }
    return region;
}

Region CellsOf(const Graphics& graphics, const RectF& rect) {
    cairo_matrix_t matrix = graphics.Device();
    cairo_matrix_t cells;
    cairo_matrix_init_scale(&cells, graphics.clipCells, graphics.clipCells);
    Join(matrix, cells, MatrixOrderAppend);
    const double right = static_cast<double>(rect.X) + rect.Width;
    const double bottom = static_cast<double>(rect.Y) + rect.Height;
    Corner corners[] = {
        {rect.X, rect.Y}, {right, rect.Y}, {right, bottom}, {rect.X, bottom}};
    for (Corner& corner : corners) {
        cairo_matrix_transform_point(&matrix, &corner.x, &corner.y);
        if (!std::isfinite(corner.x) || !std::isfinite(corner.y)) {
            return Adopt(cairo_region_create());
        }
    }
    const bool upright = matrix.xy == 0.0 && matrix.yx == 0.0;
    const bool onItsSide = matrix.xx == 0.0 && matrix.yy == 0.0;
    if (!upright && !onItsSide) {
        const int rows = graphics.pixels == nullptr ? kFar / 64 : graphics.pixels->height;
        return Turned(corners, rows);
    }
    const int left = Cell(std::min(corners[0].x, corners[2].x));
    const int top = Cell(std::min(corners[0].y, corners[2].y));
    const cairo_rectangle_int_t area = {left, top,
                                        Cell(std::max(corners[0].x, corners[2].x)) - left,
                                        Cell(std::max(corners[0].y, corners[2].y)) - top};
    return Adopt(cairo_region_create_rectangle(&area));
}

GpStatus Combine(Graphics& graphics, const RectF& rect, CombineMode mode) {
    const Region cells = CellsOf(graphics, rect);
    if (mode == CombineModeReplace) {
        graphics.state.clip = cells;
        graphics.ApplyClip();
        return Ok;
    }
    const Region before =
        graphics.state.clip == nullptr ? Everything() : graphics.state.clip;
    const bool complement = mode == CombineModeComplement;
    const Region after = Adopt(cairo_region_copy((complement ? cells : before).get()));
    const cairo_region_t* other = (complement ? before : cells).get();
    cairo_status_t status = CAIRO_STATUS_SUCCESS;
    switch (mode) {
        case CombineModeIntersect:
            status = cairo_region_intersect(after.get(), other);
            break;
        case CombineModeUnion:
            status = cairo_region_union(after.get(), other);
            break;
        case CombineModeXor:
            status = cairo_region_xor(after.get(), other);
            break;
        default:
            status = cairo_region_subtract(after.get(), other);
    }
    if (status != CAIRO_STATUS_SUCCESS) {
        return OutOfMemory;
    }
    graphics.state.clip = after;
    graphics.ApplyClip();
    return Ok;
}

}  // namespace

void Graphics::ApplyClip() {
    cairo_restore(cairo);
    cairo_save(cairo);
    if (state.clip == nullptr) {
        return;
    }
    cairo_identity_matrix(cairo);
    cairo_new_path(cairo);
    const int count = cairo_region_num_rectangles(state.clip.get());
    for (int i = 0; i < count; ++i) {
        cairo_rectangle_int_t area;
        cairo_region_get_rectangle(state.clip.get(), i, &area);
        cairo_rectangle(cairo, area.x / clipCells, area.y / clipCells,
                        area.width / clipCells, area.height / clipCells);
    }
    cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_WINDING);
    cairo_set_antialias(cairo, ofPixels ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
    cairo_clip(cairo);
}

}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdipSetClipRect(GpGraphics* graphics, REAL x, REAL y, REAL width, REAL height,
                         CombineMode mode) {
    if (graphics == nullptr || mode < CombineModeReplace ||
        mode > CombineModeComplement) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        return engine::Combine(*engine::From(graphics), RectF(x, y, width, height), mode);
    });
}

GpStatus GdipSetClipRectI(GpGraphics* graphics, INT x, INT y, INT width, INT height,
                          CombineMode mode) {
    return GdipSetClipRect(graphics, static_cast<REAL>(x), static_cast<REAL>(y),
                           static_cast<REAL>(width), static_cast<REAL>(height), mode);
}

GpStatus GdipResetClip(GpGraphics* graphics) {
    return engine::Set(engine::From(graphics), true, [](engine::Graphics& g) {
        g.state.clip.reset();
        g.ApplyClip();
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
