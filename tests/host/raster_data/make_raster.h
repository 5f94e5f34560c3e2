#pragma once

#include <gdal_priv.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "raster_data/gdal_raster.h"
#include "scratch_folder.h"

namespace raster_test {

using Dataset = std::unique_ptr<GDALDataset, void (*)(GDALDataset*)>;

/// Gives a raster that is written what it has besides values; it is given the first band.
using Describe = std::function<void(GDALRasterBand&)>;

/// A GeoTIFF to be written: the same number of values for each band, row by row.
struct Raster {
    int width = 0;
    std::vector<std::vector<double>> bands = {};
    GDALDataType type = GDT_Byte;
    std::optional<double> noData = {};
    std::vector<std::string> options = {};
    Describe describe = {};  ///< palette, tables, colours of bands
};

Raster With(Raster raster, const std::vector<std::string>& options);
Raster With(Raster raster, const Describe& describe);

/// A colour of a palette, of 0xAARRGGBB.
GDALColorEntry EntryOf(unsigned argb);

/// That palette, of indexes and colours.
using Palette = std::vector<std::pair<int, GDALColorEntry>>;
Describe Coloured(const Palette& entries);

/// That geotransform, of zeros for none, and unless it is empty that system,
/// "EPSG:32725".
Describe Placed(std::array<double, 6> transform, const std::string& system = "");

/// Writes the raster; fails the test when that cannot be done.
void Write(const std::string& path, const Raster& raster);

/// A file or a dataset that is closed with the pointer.
Dataset Owned(GDALDataset* dataset);

/// An empty file of the raster's form, open for changes.
Dataset Create(const std::string& path, int width, int height, int bands,
               GDALDataType type, const std::vector<std::string>& options = {});

/// Opens a raster that is there; null, and a failed test, when it does not open.
std::unique_ptr<host::GdalRaster> Open(const std::string& path,
                                       const host::RasterStyle& style = {});

/// Writes a raster, in a folder that is gone after the tests, and opens it.
std::unique_ptr<host::GdalRaster> WriteAndOpen(const Raster& raster,
                                               const host::RasterStyle& style = {});

/// Sets the pixels of a part of a band; fails the test when that cannot be done.
void Set(GDALRasterBand& band, int x, int y, int width, int height,
         std::vector<double> values);

/// Copies a raster to a file of another format, by the name of its driver: "PNG".
void Copy(const Dataset& raster, const char* format, const std::string& path);

/// Adds smaller copies of a raster, a factor each.
void AddOverviews(GDALDataset& dataset, std::vector<int> factors);

/// The least and the greatest value of a band, where it has any.
std::optional<std::pair<double, double>> RangeOf(host::GdalRaster& raster, int band = 0,
                                                 bool approximate = true);

/// The style of a stretch, given as ParseStretch reads it.
host::RasterStyle Stretched(const char* stretch);

/// The whole numbers from first to last.
std::vector<double> Ramp(int first, int last);

using Colours = std::vector<unsigned int>;

/// A drawn pixel as 0xAARRGGBB.
unsigned int Pixel(const host::PixelImage& image, int x, int y);

/// All pixels of a drawn image, row by row.
Colours Pixels(const host::PixelImage& image);

}  // namespace raster_test
