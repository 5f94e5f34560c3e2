#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

struct ImageSize {
    std::int64_t width = 0;   ///< pixels
    std::int64_t height = 0;  ///< likewise
};

/// The size given in an image's header, without reading a pixel: PNG, JPEG, GIF, BMP or
/// TIFF. No value for anything else.
std::optional<ImageSize> SizeOfImage(const std::string& path);

}  // namespace host
