#pragma once

#include "raster_data/gdal_raster.h"

namespace host {

/// The picture in a map frame, at any size.
class MapPicture {
public:
    MapPicture() = default;
    MapPicture(const MapPicture&) = delete;
    MapPicture& operator=(const MapPicture&) = delete;
    virtual ~MapPicture() = default;

    /// The whole picture at a size in pixels. Throws std::runtime_error with the reason
    /// when it cannot be had.
    virtual PixelImage Render(int width, int height, const Progress& progress) = 0;
};

}  // namespace host
