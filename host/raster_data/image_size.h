#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

struct ImageSize {
    std::int64_t width = 0;   ///< pixels
    std::int64_t height = 0;  ///< likewise
};

/// The size that an image says it has, of which no pixel is read: PNG, JPEG, GIF, BMP or
/// TIFF. None for what is no such image.
std::optional<ImageSize> SizeOfImage(const std::string& path);

}  // namespace host
