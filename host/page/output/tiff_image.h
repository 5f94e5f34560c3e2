#pragma once

#include <cstdint>
#include <vector>

#include "page/output/png_image.h"

namespace host {

/// The bytes of a TIFF file, RGB without alpha, packed without loss, that records the
/// resolution in dots an inch. Throws std::runtime_error with the reason.
std::vector<std::uint8_t> EncodeTiff(const PixelRows& pixels, double dpi);

}  // namespace host
