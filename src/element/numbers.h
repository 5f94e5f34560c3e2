#pragma once

#include <cstdint>
#include <limits>

namespace map_surround {

/// Layout arithmetic is done in 64 bits, where neither the product of two 32-bit lengths
/// nor the sum of a few overflows, and brought back to 32 bits where a length leaves the
/// layout.
using Length = std::int64_t;

/// A double as a 32-bit integer, truncated toward zero. Values out of range are clamped,
/// NaN gives 0: 2.9 is 2, -2.9 is -2, 1e12 is 2147483647.
constexpr std::int32_t Truncate(double value) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    if (value != value) {
        return 0;
    }
    if (value <= lowest) {
        return lowest;
    }
    if (value >= highest) {
        return highest;
    }
    return static_cast<std::int32_t>(value);
}

/// A layout length as the 32-bit coordinate that GDI+ takes, clamped to its range.
constexpr std::int32_t ToDevice(Length length) {
    constexpr Length lowest = std::numeric_limits<std::int32_t>::min();
    constexpr Length highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(length < lowest    ? lowest
                                     : length > highest ? highest
                                                        : length);
}

}  // namespace map_surround
