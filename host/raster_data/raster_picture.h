#pragma once

#include <memory>
#include <vector>

#include "raster_data/gdal_raster.h"
#include "raster_data/raster_classes.h"

class GDALRasterBand;

namespace host {

/// One band as grey or three as red, green and blue, each stretched by itself: black at
/// what 2 % of its visible pixels do not exceed, white at 98 %, of the pixels as they are
/// drawn. Where those are one value, from the smallest to the largest; where these are
/// too, mid grey. `width` and `height` are at most the bands'.
PixelImage DrawStretched(const std::vector<GDALRasterBand*>& bands, int width, int height,
                         const Progress& progress);

/// A band in the colours of its classes, pixel by pixel. `width` and `height` are at most
/// the band's.
PixelImage DrawClasses(GDALRasterBand* band, const RasterClasses& classes, int width,
                       int height, const Progress& progress);

/// The classes that occur in a band and are not fully transparent, in the order of their
/// values. Rasters of up to 16 million pixels are read whole, larger ones sampled at
/// 4096 x 4096, so that a rare class of a large raster may be missed; at most 10 000 are
/// listed.
std::unique_ptr<ClassificationTable> OccurringClasses(GDALRasterBand* band,
                                                      const RasterClasses& classes);

/// The image at a size that is at least its own, each pixel as it is.
PixelImage Enlarge(PixelImage image, int width, int height);

}  // namespace host
