#pragma once

#include <string>

#include "host/raster_data.h"

namespace map_surround {

/// The values at the ends of a ramp as text.
struct RampValues {
    std::wstring lowest;
    std::wstring highest;
};

/// The values of a source's first band; 0 without a band.
/// @param rounded to three digits of their difference, without the zeros that both end
/// in: 0 and 9.5 are "0.0" and "9.5"; if they are equal, to three digits of their own.
/// Otherwise cut to whole numbers.
RampValues ValuesOf(CRasterSource& source, bool rounded);

}  // namespace map_surround
