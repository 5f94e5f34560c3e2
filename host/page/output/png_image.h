#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// Pixels in memory, four bytes each (blue, green, red, unused), as GDI+ keeps them.
struct PixelRows {
    const std::uint8_t* first = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;  ///< bytes from a row to the next
};

/// The bytes of a PNG file of opaque colours that records its resolution: 150 dpi are
/// 5906 pixels per metre.
///
/// Made for pages, which are large and mostly paper: fast to write rather than as small
/// as possible. Throws std::runtime_error with the reason.
std::vector<std::uint8_t> EncodePng(const PixelRows& pixels, double dpi);

}  // namespace host
