#pragma once

#include <cairo.h>

#include "host/device_geometry.h"
#include "page/output/map_images.h"
#include "page/page.h"

namespace host {

/// Draws a map's picture on a surface whose unit is a point, as one image of its frame's
/// size in pixels, pixel for pixel. Nothing is smoothed, however closely a viewer zooms
/// in. Transparent parts stay transparent. Throws what the map's picture throws.
/// @param frame pixels of the page
/// @param dpi pixels per inch
void DrawMapImage(cairo_surface_t* surface, const MapFrame& map, const CRect& frame,
                  double dpi, MapImages images, const Progress& progress);

}  // namespace host
