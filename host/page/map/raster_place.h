#pragma once

#include <string>

#include "page/box.h"
#include "raster_data/gdal_raster.h"

namespace host {

/// Whether a raster's pixels have map coordinates.
bool IsGeoreferenced(const GdalRaster& raster);

/// Whether the rows of a georeferenced raster run along neither east nor west.
bool IsTurned(const GdalRaster& raster);

/// The extent of a raster that is not rotated, in map coordinates.
Box ExtentOf(const GdalRaster& raster);

/// The pixels of an unrotated raster that a part of the map touches; no columns or no
/// rows where it misses the raster.
GdalRaster::Window WindowIn(const Box& extent, const GdalRaster& raster);

/// Why an unrotated raster cannot be laid over or under the first one; empty when it can.
/// Coordinate systems are the same when the raster's corners have the same coordinates in
/// both, to half a pixel, however they are worded; unknown is the same as unknown.
std::string WhyNotPlaced(const GdalRaster& raster, const GdalRaster& first);

}  // namespace host
