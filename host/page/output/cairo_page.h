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

/// A surface that is destroyed with what holds it.
inline CairoSurface Owned(cairo_surface_t* surface) {
    return {surface, cairo_surface_destroy};
}

/// Writes what Cairo gives at the end of a std::vector<std::uint8_t>.
cairo_status_t AppendToBytes(void* bytes, const unsigned char* data, unsigned int length);

/// Throws std::runtime_error where Cairo failed.
void CheckCairo(cairo_status_t status);

/// What a page's drawing on a surface of Cairo's does beside.
struct CairoDrawing {
    /// The items whose content is tagged on the surface, as one figure each.
    std::set<std::size_t> tagged = {};
    PrintSettings print = {};
    /// Called with what draws, before it does.
    std::function<void(Gdiplus::CairoGraphics&)> prepare = {};
};

/// Draws a page on a surface whose unit is a point, 1/72 inch, and ends the surface's
/// page. Positions are those of the picture at the resolution, in whole pixels. Throws
/// what the page's drawing throws, and std::runtime_error when Cairo cannot draw it.
/// @return the items that were tagged, in the order of their tags
std::vector<std::size_t> DrawOnCairo(cairo_surface_t* surface, const Page& page,
                                     double dpi, const Progress& progress,
                                     const CairoDrawing& how = {});

/// Writes what is left. Throws std::runtime_error when anything could not be written.
void FinishSurface(cairo_surface_t* surface);

}  // namespace host
