#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/common_functions.h"
#include "host/raster_data.h"
#include "map_surround/kit/classification_table.h"
#include "raster_data/raster_style.h"
#include "system/progress.h"

class GDALDataset;

namespace host {

using map_surround::kit::ClassColour;

/// The pixels of a drawn raster: 4 bytes each (blue, green, red, alpha, as GDI+ keeps
/// PixelFormat32bppARGB in memory), rows from the top, no padding.
struct PixelImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bgra;
};

/// Any raster that GDAL opens, as the legend's data source and as the map's picture.
///
/// The display type follows from the bands that are shown: three are RGB; one with a
/// palette or an attribute table is classified, any other grey. The style chooses them,
/// else their colours do: red, green and blue, else the first three that are not alpha;
/// with fewer than three, the first.
///
/// The bands' ranges are the ranges drawn: ComputeMinMax gives the values shown black and
/// white, `approximate` or not. No file is written beside the raster.
class GdalRaster : public CRasterSource {
public:
    /// @return null when GDAL cannot open the file as a raster, or it lacks the bands
    /// that the style chooses; `why` then says so in a few words, without the file's name
    static std::unique_ptr<GdalRaster> Open(const std::string& path, std::string& why,
                                            const RasterStyle& style = {});

    ~GdalRaster() override;

    // CGISDataSource
    bool IsAvailable() override;  ///< false once the file can no longer be read
    GISDataSourceType GetDataSourceType() override;
    std::wstring GetFileName() override;  ///< without its folder
    DataDisplayType GetDisplayType() override;

    // CRasterSource
    int GetRedBandNum() override;
    int GetGreenBandNum() override;
    int GetBlueBandNum() override;
    CRasterBand* GetRasterBand(int index) override;
    CClassifyDisplayTable* GetClassifyDisplayTable() override;

    /// The map's colours for the values of a band with a palette, from lowest to highest,
    /// where they form a ramp rather than classes: 32 or more, unnamed, none far from the
    /// one before it. Reads the raster the first time.
    std::vector<ClassColour> RampColours();

    const std::string& Path() const;
    const RasterStyle& Style() const;  ///< the style it was opened with

    /// The files that it is read from, including side files and the sources of a VRT.
    const std::vector<std::string>& Files() const;

    int BandCount() const;
    int Width() const;   ///< pixels
    int Height() const;  ///< pixels

    /// GDAL's six coefficients from pixel and line to map coordinates; the identity for a
    /// raster without them.
    const std::array<double, 6>& GeoTransform() const;
    bool HasGeoTransform() const;

    /// The coordinate system as WKT, empty when unknown.
    const std::string& Projection() const;

    /// A rectangle of a raster's pixels.
    struct Window {
        int x = 0;  ///< first column
        int y = 0;  ///< first line
        int width = 0;
        int height = 0;
    };

    /// A part of the raster as a raster of its own, which keeps the file open and has the
    /// same name, colours and coordinates. Throws std::runtime_error when it cannot be
    /// made.
    /// @param window inside the raster, at least one pixel
    std::unique_ptr<GdalRaster> Part(const Window& window) const;

    /// The same for a raster that is rotated, with its rows from west to east: each pixel
    /// takes the nearest one's value, and is transparent outside the raster. Throws
    /// std::runtime_error when it cannot be made.
    std::unique_ptr<GdalRaster> NorthUp() const;

    /// The whole raster at the given size in pixels, read decimated or from overviews, in
    /// strips, so that memory does not grow with the raster; no-data is transparent. A
    /// value has the same colour at every size, and in every part. Throws
    /// std::runtime_error with the reason when it cannot be read or is stopped.
    PixelImage Render(int width, int height, const Progress& progress = {});

private:
    struct State;
    explicit GdalRaster(std::unique_ptr<State> state);
    std::unique_ptr<GdalRaster> Derived(std::shared_ptr<GDALDataset> dataset) const;

    std::unique_ptr<State> m_state;
};

}  // namespace host
