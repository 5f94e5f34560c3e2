#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "page/output/georeference.h"
#include "page/output/png_image.h"

namespace host {

/// The bytes of a TIFF file, RGB without alpha, losslessly compressed, that records the
/// resolution in dots per inch, and is a GeoTIFF where it has coordinates. Throws
/// std::runtime_error with the reason.
std::vector<std::uint8_t> EncodeTiff(
    const PixelRows& pixels, double dpi,
    const std::optional<Georeference>& georeference = {});

}  // namespace host
