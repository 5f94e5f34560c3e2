#pragma once

#include <cmath>
#include <limits>

#include "gdiplus/types.h"

namespace engine {

/// To the nearest whole number, halves up; what is beyond stays at the end, and what is
/// no number is 0.
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

/// Without its fraction; what is beyond stays at the end, and what is no number is 0.
inline Gdiplus::INT Truncated(double value) {
    return Rounded(value < 0.0 ? std::ceil(value) : std::floor(value));
}

}  // namespace engine
