#pragma once

#include <cairo.h>
#include <gdiplus.h>
#include <gdiplus/cairo.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

using CairoSurface = std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)>;

/// A surface that is destroyed with its owner.
inline CairoSurface Owned(cairo_surface_t* surface) {
    return {surface, cairo_surface_destroy};
}

/// Appends what Cairo writes to a std::vector<std::uint8_t>.
cairo_status_t AppendToBytes(void* bytes, const unsigned char* data, unsigned int length);

/// Throws std::runtime_error if Cairo failed.
void CheckCairo(cairo_status_t status);

/// What else happens while a page is drawn on a Cairo surface.
struct CairoDrawing {
    /// The items whose content is tagged on the surface, each as one figure.
    std::set<std::size_t> tagged = {};
    PrintSettings print = {};
    /// Called with the graphics before it draws.
    std::function<void(Gdiplus::CairoGraphics&)> prepare = {};
};

/// Draws a page on a surface whose unit is a point, 1/72 inch, and ends the surface's
/// page. Positions are those of the image at the resolution, in whole pixels. Throws what
/// drawing the page throws, and std::runtime_error when Cairo cannot draw it.
/// @return the tagged items, in the order of their tags
std::vector<std::size_t> DrawOnCairo(cairo_surface_t* surface, const Page& page,
                                     double dpi, const Progress& progress,
                                     const CairoDrawing& how = {});

/// Writes what is left. Throws std::runtime_error when anything could not be written.
void FinishSurface(cairo_surface_t* surface);

}  // namespace host
