#include "cairo/graphics.h"

namespace engine {
namespace {

GpStatus MakeOn(cairo_t* cairo, REAL xdpi, REAL ydpi, GpGraphics** place) {
    const cairo_status_t status = cairo_status(cairo);
    if (status != CAIRO_STATUS_SUCCESS) {
        return status == CAIRO_STATUS_NO_MEMORY ? OutOfMemory : InvalidParameter;
    }
    auto graphics = std::make_unique<Graphics>();
    graphics->cairo = cairo_reference(cairo);
    cairo_save(cairo);
    cairo_get_matrix(cairo, &graphics->base);
    graphics->xdpi = xdpi;
    graphics->ydpi = ydpi;
    graphics->ofPixels =
        cairo_surface_get_type(cairo_get_group_target(cairo)) == CAIRO_SURFACE_TYPE_IMAGE;
    // On other surfaces a unit may be many pixels, and the clip has to be finer.
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
    return engine::Guarded([&] { return engine::MakeOn(cairo, xdpi, ydpi, graphics); });
}

GpStatus GdipTellCairoLines(GpGraphics* graphics, CairoLineDrawn told, void* context) {
    if (graphics == nullptr) {
        return InvalidParameter;
    }
    engine::From(graphics)->tellLine = told;
    engine::From(graphics)->lineContext = context;
    return Ok;
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
