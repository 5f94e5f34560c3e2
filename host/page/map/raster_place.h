#pragma once

#include <string>

#include "page/box.h"
#include "raster_data/gdal_raster.h"

namespace host {

/// Whether a raster's pixels have map coordinates.
bool IsGeoreferenced(const GdalRaster& raster);

/// Whether the rows of a georeferenced raster do not run from west to east, or from east
/// to west.
bool IsTurned(const GdalRaster& raster);

/// What a raster that is not turned spans, in map coordinates.
Box ExtentOf(const GdalRaster& raster);

/// The pixels of a raster that is not turned which a part of the map touches; no columns
/// or no rows where it passes the raster by.
GdalRaster::Window WindowIn(const Box& extent, const GdalRaster& raster);

/// Why a raster that is not turned cannot be laid under or over the first one; empty when
/// it can. Their coordinate systems are the same when the raster's corners have, to half
/// a pixel, the same coordinates in both, however they are worded; unknown is the same as
/// unknown.
std::string WhyNotPlaced(const GdalRaster& raster, const GdalRaster& first);

}  // namespace host
