#include <cmath>

#include "cairo/bitmap.h"
#include "cairo/pencil.h"

namespace engine {
namespace {

cairo_filter_t FilterOf(InterpolationMode mode) {
    switch (mode) {
        case InterpolationModeNearestNeighbor:
            return CAIRO_FILTER_NEAREST;
        case InterpolationModeHighQuality:
        case InterpolationModeBicubic:
        case InterpolationModeHighQualityBilinear:
        case InterpolationModeHighQualityBicubic:
            return CAIRO_FILTER_BEST;
        default:
            return CAIRO_FILTER_BILINEAR;
    }
}

/// The limit of Cairo's surfaces.
constexpr INT kLongestSide = 32767;

GpStatus DrawInto(Graphics& graphics, Bitmap& bitmap, double x, double y, double width,
                  double height) {
    const Pixels& pixels = *bitmap.pixels;
    if (pixels.width > kLongestSide || pixels.height > kLongestSide ||
        std::isnan(x + y + width + height)) {
        return InvalidParameter;
    }
    cairo_matrix_t matrix = graphics.Device();
    cairo_matrix_t place = {width / pixels.width, 0.0, 0.0, height / pixels.height, x, y};
    Join(matrix, place, MatrixOrderPrepend);
    if (!IsDrawable(matrix) || !IsInvertible(matrix)) {
        return Ok;
    }
    const SurfacePointer source = SourceOf(bitmap);
    Pencil pencil(graphics, 0.0);
    TraceRectangle(pencil, x, y, width, height);
    const Owned<cairo_pattern_t, cairo_pattern_destroy> pattern(
        cairo_pattern_create_for_surface(source.get()));
    cairo_matrix_t back = matrix;
    cairo_matrix_invert(&back);
    cairo_pattern_set_matrix(pattern.get(), &back);
    cairo_pattern_set_filter(pattern.get(), FilterOf(graphics.state.interpolation));
    // Edge pixels must not fade into what surrounds them.
    cairo_pattern_set_extend(pattern.get(),
                             graphics.ofPixels ? CAIRO_EXTEND_PAD : CAIRO_EXTEND_NONE);
    Drawing drawing(graphics, pencil.Reach(1.0));
    cairo_set_antialias(graphics.cairo, CAIRO_ANTIALIAS_DEFAULT);
    cairo_set_source(graphics.cairo, pattern.get());
    cairo_fill(graphics.cairo);
    return drawing.Finish();
}

GpStatus Draw(GpGraphics* graphics, GpImage* image, double x, double y, double width,
              double height) {
    if (graphics == nullptr || image == nullptr) {
        return InvalidParameter;
    }
    return Guarded(
        [&] { return DrawInto(*From(graphics), *From(image), x, y, width, height); });
}

/// At its size on paper.
GpStatus DrawOwnSize(GpGraphics* graphics, GpImage* image, double x, double y) {
    if (graphics == nullptr || image == nullptr) {
        return InvalidParameter;
    }
    const Graphics& g = *From(graphics);
    const Bitmap& b = *From(image);
    return Draw(graphics, image, x, y,
                b.pixels->width * static_cast<double>(g.xdpi / b.xdpi),
                b.pixels->height * static_cast<double>(g.ydpi / b.ydpi));
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdipDrawImage(GpGraphics* graphics, GpImage* image, REAL x, REAL y) {
    return engine::DrawOwnSize(graphics, image, x, y);
}

GpStatus GdipDrawImageI(GpGraphics* graphics, GpImage* image, INT x, INT y) {
    return engine::DrawOwnSize(graphics, image, x, y);
}

GpStatus GdipDrawImageRect(GpGraphics* graphics, GpImage* image, REAL x, REAL y,
                           REAL width, REAL height) {
    return engine::Draw(graphics, image, x, y, width, height);
}

GpStatus GdipDrawImageRectI(GpGraphics* graphics, GpImage* image, INT x, INT y, INT width,
                            INT height) {
    return engine::Draw(graphics, image, x, y, width, height);
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
