#pragma once

#include <memory>
#include <vector>

#include "raster_data/gdal_raster.h"
#include "raster_data/raster_classes.h"
#include "raster_data/raster_stretch.h"

class GDALRasterBand;

namespace host {

/// One band as grey or three as red, green and blue, each value in the shade given by its
/// band's range. `width` and `height` are at most the bands'.
PixelImage DrawShades(const std::vector<GDALRasterBand*>& bands,
                      const std::vector<ShadeRange>& ranges, int width, int height,
                      const Progress& progress);

/// A band in the colours of its classes, pixel by pixel. `width` and `height` are at most
/// the band's.
PixelImage DrawClasses(GDALRasterBand* band, const RasterClasses& classes, int width,
                       int height, const Progress& progress);

/// The classes that occur in a band and are not fully transparent, in the order of their
/// values. Rasters of up to 16 million pixels are read whole, larger ones sampled at 4096
/// x 4096, so that a rare class of a large raster may be missing; at most 10 000 are
/// listed.
std::unique_ptr<ClassificationTable> OccurringClasses(GDALRasterBand* band,
                                                      const RasterClasses& classes);

/// The image enlarged to at least its own size, without interpolation.
PixelImage Enlarge(PixelImage image, int width, int height);

}  // namespace host
