#include "cairo/graphics.h"

#include <cmath>
#include <new>

#include "cairo/bitmap.h"

namespace engine {

Graphics::~Graphics() {
    if (cairo != nullptr) {
        cairo_restore(cairo);
        cairo_destroy(cairo);
    }
}

REAL PixelsIn(Unit unit, REAL dpi) {
    switch (unit) {
        case UnitPoint:
            return dpi / 72.0f;
        case UnitInch:
            return dpi;
        case UnitDocument:
            return dpi / 300.0f;
        case UnitMillimeter:
            return dpi / 25.4f;
        default:
            return 1.0f;
    }
}

cairo_matrix_t Graphics::Device() const {
    cairo_matrix_t device = state.world;
    if (state.pageUnit > UnitPixel) {
        Join(device,
             Scaling(PixelsIn(state.pageUnit, xdpi), PixelsIn(state.pageUnit, ydpi)),
             MatrixOrderAppend);
    }
    Join(device, base, MatrixOrderAppend);
    return device;
}

double Graphics::PixelMiddle() const {
    const cairo_matrix_t device = Device();
    const bool moved =
        device.xx == 1.0 && device.yx == 0.0 && device.xy == 0.0 && device.yy == 1.0;
    return ofPixels && moved ? 0.5 : 0.0;
}

namespace {

GpStatus MakeOn(Bitmap& bitmap, GpGraphics** place) {
    const std::shared_ptr<Pixels>& pixels = bitmap.pixels;
    auto graphics = std::make_unique<Graphics>();
    graphics->pixels = pixels;
    graphics->xdpi = bitmap.xdpi;
    graphics->ydpi = bitmap.ydpi;
    if (pixels->format == PixelFormat24bppRGB) {
        graphics->scratch =
            MakePixels(pixels->width, pixels->height, PixelFormat32bppRGB);
        if (graphics->scratch == nullptr) {
            return OutOfMemory;
        }
    }
    const SurfacePointer surface(
        SurfaceOver(graphics->scratch == nullptr ? *pixels : *graphics->scratch));
    cairo_t* const cairo = cairo_create(surface.get());
    cairo_save(cairo);
    graphics->cairo = cairo;
    const cairo_status_t status = cairo_status(cairo);
    if (status != CAIRO_STATUS_SUCCESS) {
        return status == CAIRO_STATUS_NO_MEMORY ? OutOfMemory : InvalidParameter;
    }
    bitmap.hasGraphics = true;
    bitmap.premultiplied.reset();
    *place = graphics.release();
    return Ok;
}

GpStatus Step(GpGraphics* graphics, const cairo_matrix_t& step, MatrixOrder order) {
    return Set(From(graphics), IsOrder(order),
               [&](Graphics& g) { Join(g.state.world, step, order); });
}

template <typename Mode>
GpStatus SetMode(GpGraphics* graphics, Mode State::*mode, Mode value, Mode last) {
    return Set(From(graphics), IsUpTo(value, last),
               [&](Graphics& g) { g.state.*mode = value; });
}

template <typename Mode>
GpStatus GetMode(GpGraphics* graphics, Mode State::*mode, Mode* value) {
    return Tell(From(graphics), value, [&](const Graphics& g) { return g.state.*mode; });
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::State;

GpStatus GdipGetImageGraphicsContext(GpImage* image, GpGraphics** graphics) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (image == nullptr || graphics == nullptr) {
        return InvalidParameter;
    }
    if (IsIndexedPixelFormat(From(image)->format) != 0) {
        return OutOfMemory;
    }
    return engine::Guarded([&] { return engine::MakeOn(*From(image), graphics); });
}

GpStatus GdipDeleteGraphics(GpGraphics* graphics) {
    return engine::Delete(From(graphics));
}

GpStatus GdipFlush(GpGraphics* graphics, FlushIntention) {
    return engine::Set(From(graphics), true, [](engine::Graphics& g) {
        cairo_surface_flush(cairo_get_target(g.cairo));
    });
}

GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode) {
    return engine::SetMode(graphics, &State::smoothing, mode, SmoothingModeAntiAlias);
}

GpStatus GdipGetSmoothingMode(GpGraphics* graphics, SmoothingMode* mode) {
    return engine::GetMode(graphics, &State::smoothing, mode);
}

GpStatus GdipSetTextRenderingHint(GpGraphics* graphics, TextRenderingHint hint) {
    return engine::SetMode(graphics, &State::textHint, hint,
                           TextRenderingHintClearTypeGridFit);
}

GpStatus GdipGetTextRenderingHint(GpGraphics* graphics, TextRenderingHint* hint) {
    return engine::GetMode(graphics, &State::textHint, hint);
}

GpStatus GdipSetInterpolationMode(GpGraphics* graphics, InterpolationMode mode) {
    return engine::SetMode(graphics, &State::interpolation, mode,
                           InterpolationModeHighQualityBicubic);
}

GpStatus GdipGetInterpolationMode(GpGraphics* graphics, InterpolationMode* mode) {
    return engine::GetMode(graphics, &State::interpolation, mode);
}

GpStatus GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode) {
    return engine::SetMode(graphics, &State::pixelOffset, mode, PixelOffsetModeHalf);
}

GpStatus GdipGetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode* mode) {
    return engine::GetMode(graphics, &State::pixelOffset, mode);
}

GpStatus GdipGetDpiX(GpGraphics* graphics, REAL* dpi) {
    return engine::Tell(From(graphics), dpi, [](auto& g) { return g.xdpi; });
}

GpStatus GdipGetDpiY(GpGraphics* graphics, REAL* dpi) {
    return engine::Tell(From(graphics), dpi, [](auto& g) { return g.ydpi; });
}

GpStatus GdipSetPageUnit(GpGraphics* graphics, Unit unit) {
    return engine::Set(From(graphics), unit > UnitWorld && unit <= UnitMillimeter,
                       [&](auto& g) { g.state.pageUnit = unit; });
}

GpStatus GdipSaveGraphics(GpGraphics* graphics, GraphicsState* state) {
    if (graphics == nullptr || state == nullptr) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        engine::Graphics& g = *From(graphics);
        g.saved.push_back({g.lastName + 1, g.state});
        *state = ++g.lastName;
        return Ok;
    });
}

GpStatus GdipRestoreGraphics(GpGraphics* graphics, GraphicsState state) {
    return engine::Set(From(graphics), true, [&](engine::Graphics& g) {
        for (std::size_t i = g.saved.size(); i-- > 0;) {
            if (g.saved[i].name == state) {
                g.state = g.saved[i].state;
                g.saved.resize(i);
                g.ApplyClip();
                break;
            }
        }
    });
}

GpStatus GdipTranslateWorldTransform(GpGraphics* graphics, REAL dx, REAL dy,
                                     GpMatrixOrder order) {
    return engine::Step(graphics, engine::Translation(dx, dy), order);
}

GpStatus GdipRotateWorldTransform(GpGraphics* graphics, REAL angle, GpMatrixOrder order) {
    return engine::Step(graphics, engine::Rotation(angle), order);
}

GpStatus GdipScaleWorldTransform(GpGraphics* graphics, REAL sx, REAL sy,
                                 GpMatrixOrder order) {
    return engine::Step(graphics, engine::Scaling(sx, sy), order);
}

GpStatus GdipMultiplyWorldTransform(GpGraphics* graphics, const GpMatrix* matrix,
                                    GpMatrixOrder order) {
    return matrix == nullptr ? InvalidParameter
                             : engine::Step(graphics, From(matrix)->value, order);
}

GpStatus GdipSetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return engine::Set(From(graphics), matrix != nullptr,
                       [&](auto& g) { g.state.world = From(matrix)->value; });
}

GpStatus GdipGetWorldTransform(GpGraphics* graphics, GpMatrix* matrix) {
    return engine::Set(From(graphics), matrix != nullptr,
                       [&](auto& g) { From(matrix)->value = g.state.world; });
}

GpStatus GdipResetWorldTransform(GpGraphics* graphics) {
    return engine::Set(From(graphics), true,
                       [](auto& g) { g.state.world = engine::kIdentity; });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
