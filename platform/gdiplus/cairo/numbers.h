#pragma once

#include <cmath>
#include <limits>

#include "gdiplus/types.h"

namespace engine {

/// To the nearest integer, halves up; clamped to the range, NaN gives 0.
inline Gdiplus::INT Rounded(double value) {
    using Limits = std::numeric_limits<Gdiplus::INT>;
    const double rounded = std::floor(value + 0.5);
    if (rounded >= Limits::max()) {
        return Limits::max();
    }
    if (rounded <= Limits::min()) {
        return Limits::min();
    }
    return std::isnan(rounded) ? 0 : static_cast<Gdiplus::INT>(rounded);
}

/// Without its fraction; clamped to the range, NaN gives 0.
inline Gdiplus::INT Truncated(double value) {
    return Rounded(value < 0.0 ? std::ceil(value) : std::floor(value));
}

}  // namespace engine
