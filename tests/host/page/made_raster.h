#pragma once

#include <array>
#include <string>

/// What a raster that a test makes is like. Its only band holds class numbers with a
/// colour table, so that it is drawn in exactly these colours.
struct MadeRaster {
    int width = 8;
    int height = 8;
    std::array<double, 6> transform{};  ///< all 0 for none
    std::string projection;             ///< what GDAL reads as one, "EPSG:32725"
    unsigned argb = 0xFFFF0000;         ///< of the raster
    unsigned cornerArgb = 0xFF0000FF;   ///< of the first pixel of the first row
    bool hole = false;                  ///< the last pixel of the last row is no-data
};

/// Writes a GeoTIFF.
void WriteRaster(const std::string& path, const MadeRaster& raster);

/// A three-band GeoTIFF of gradients, large enough to be shown smoothly.
void WriteScene(const std::string& path, int width, int height);
