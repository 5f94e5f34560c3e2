#pragma once

#include <string>

namespace host {

/// The rasters that MakeSampleRasters writes: 600 x 450 pixels of 30 m, all of one area
/// in UTM zone 33 north.
struct SampleRasters {
    std::string scene;      ///< `landscape.tif`: three bands, red, green and blue
    std::string elevation;  ///< `elevation.tif`: metres; -9999, no value, over the sea
    std::string landCover;  ///< `land_cover.tif`: nine classes with names and colours
};

/// Writes the sample rasters into a folder, creating it if need be; files of the same
/// names are replaced. Their pixels are the same each time. Throws std::runtime_error
/// with the reason when they cannot be written.
/// @return the paths
SampleRasters MakeSampleRasters(const std::string& folder);

}  // namespace host
