#include "page/output/cairo_page.h"

#include <gdiplus/cairo.h>

#include <new>
#include <stdexcept>
#include <string>

namespace host {
namespace {

void CheckCairo(cairo_status_t status) {
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(std::string("the page cannot be written: ") +
                                 cairo_status_to_string(status));
    }
}

}  // namespace

cairo_status_t AppendToBytes(void* bytes, const unsigned char* data,
                             unsigned int length) {
    auto& all = *static_cast<std::vector<std::uint8_t>*>(bytes);
    try {
        all.insert(all.end(), data, data + length);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
    return CAIRO_STATUS_SUCCESS;
}

void DrawOnCairo(cairo_surface_t* surface, const Page& page, double dpi,
                 const Progress& progress) {
    const std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo(cairo_create(surface),
                                                             cairo_destroy);
    const double pixel = 72.0 / dpi;
    cairo_scale(cairo.get(), pixel, pixel);
    {
        Gdiplus::CairoGraphics graphics(cairo.get(), static_cast<float>(dpi));
        page.Draw(graphics, dpi, progress);
    }
    cairo_show_page(cairo.get());
    CheckCairo(cairo_status(cairo.get()));
}

void FinishSurface(cairo_surface_t* surface) {
    cairo_surface_finish(surface);
    CheckCairo(cairo_surface_status(surface));
}

}  // namespace host
