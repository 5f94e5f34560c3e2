#pragma once

#include <string>

namespace map_surround {

/// The values at the ends of a ramp as text.
struct RampValues {
    std::wstring lowest;
    std::wstring highest;
};

/// Cut to whole numbers.
RampValues WholeValues(double lowest, double highest);

/// Rounded to three digits of what is between them, without zeros that both end in: 0 and
/// 9.5 are "0.0" and "9.5". Of two that are the same, to three digits of their own.
RampValues RoundedValues(double lowest, double highest);

}  // namespace map_surround
