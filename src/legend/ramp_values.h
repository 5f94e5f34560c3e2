#pragma once

#include <string>

#include "host/raster_data.h"

namespace map_surround {

/// The values at the ends of a ramp as text.
struct RampValues {
    std::wstring lowest;
    std::wstring highest;
};

/// Those of a source's first band; nought where it has none.
/// @param rounded to three digits of what is between them, without zeros that both end
/// in: 0 and 9.5 are "0.0" and "9.5"; two that are the same to three digits of their own.
/// Otherwise cut to whole numbers.
RampValues ValuesOf(CRasterSource& source, bool rounded);

}  // namespace map_surround
