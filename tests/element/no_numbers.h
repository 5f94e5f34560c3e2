#pragma once

#include <limits>

/// What a property may hold and is no length, scale or angle.
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr float kFloatInfinity = std::numeric_limits<float>::infinity();
constexpr float kFloatNan = std::numeric_limits<float>::quiet_NaN();
