#pragma once

#include <string>

namespace host {

/// What speaks against reading a raster that may be a VRT, a raster made of others: VRTs
/// in it that are nested more than three deep, or that stand for more than 10 000 rasters
/// together; under ConfineGdal also sources that are not allowed, and bands that are not
/// made of rasters. In a few words without the raster's name; empty when nothing does,
/// and for what is no VRT.
std::string WhyNotVrt(const std::string& raster);

}  // namespace host
