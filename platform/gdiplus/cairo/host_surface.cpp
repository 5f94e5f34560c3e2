#include <cairo-ps.h>

#include "cairo/graphics.h"

#pragma GCC visibility push(default)
#include "gdiplus/flat_cairo.h"
#pragma GCC visibility pop

namespace engine {
namespace {

GpStatus MakeOn(cairo_t* cairo, REAL xdpi, REAL ydpi, const cairo_matrix_t& base,
                GpGraphics** place) {
    const cairo_status_t status = cairo_status(cairo);
    if (status != CAIRO_STATUS_SUCCESS) {
        return status == CAIRO_STATUS_NO_MEMORY ? OutOfMemory : InvalidParameter;
    }
    auto graphics = std::make_unique<Graphics>();
    graphics->cairo = cairo_reference(cairo);
    cairo_save(cairo);
    graphics->base = base;
    graphics->xdpi = xdpi;
    graphics->ydpi = ydpi;
    graphics->ofPixels =
        cairo_surface_get_type(cairo_get_group_target(cairo)) == CAIRO_SURFACE_TYPE_IMAGE;
    // Elsewhere a unit may be many pixels, and a clip has to be as fine.
    constexpr double finer = 32.0;
    graphics->clipCells = graphics->ofPixels ? 1.0 : finer;
    *place = graphics.release();
    return Ok;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

GpStatus GdipGetCairoGraphicsContext(cairo_t* cairo, REAL xdpi, REAL ydpi,
                                     GpGraphics** graphics) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (cairo == nullptr || graphics == nullptr || !(xdpi > 0.0f) || !(ydpi > 0.0f)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        cairo_matrix_t base;
        cairo_get_matrix(cairo, &base);
        return engine::MakeOn(cairo, xdpi, ydpi, base, graphics);
    });
}

GpStatus GdipGetPostScriptGraphicsContext(const char* file, int width, int height,
                                          double dpiX, double dpiY,
                                          GpGraphics** graphics) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (file == nullptr || graphics == nullptr || width <= 0 || height <= 0 ||
        !(dpiX > 0.0) || !(dpiY > 0.0)) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        constexpr double points = 72.0;
        cairo_surface_t* const surface =
            cairo_ps_surface_create(file, width * points / dpiX, height * points / dpiY);
        cairo_t* const cairo = cairo_create(surface);
        cairo_surface_destroy(surface);
        const GpStatus status =
            engine::MakeOn(cairo, static_cast<REAL>(dpiX), static_cast<REAL>(dpiY),
                           {points / dpiX, 0.0, 0.0, points / dpiY, 0.0, 0.0}, graphics);
        cairo_destroy(cairo);
        return status;
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
