#pragma once

#include <string>

namespace host {

/// Why a raster that may be a VRT, a raster made of others, should not be read: VRTs
/// nested more than three deep, or more than 10 000 rasters in all; under ConfineGdal
/// also sources that are not allowed, and bands that are not made of rasters. In a few
/// words without the raster's name; empty when it may be read, and for anything but a
/// VRT.
std::string WhyNotVrt(const std::string& raster);

}  // namespace host
