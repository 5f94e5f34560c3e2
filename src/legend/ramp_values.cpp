#include "legend/ramp_values.h"

#include <algorithm>
#include <cmath>

#include "element/numbers.h"
#include "host/common_functions.h"

namespace map_surround {
namespace {

// As many as distinguish any two doubles.
constexpr int kMostDecimals = 17;

int DecimalsFor(double lowest, double highest) {
    const double between = std::fabs(highest - lowest);
    const double range = between > 0.0 ? between : std::fabs(highest);
    if (!(range > 0.0) || !std::isfinite(range)) {
        return 0;
    }
    return std::clamp(2 - static_cast<int>(std::floor(std::log10(range))), 0,
                      kMostDecimals);
}

RampValues WithDecimals(double lowest, double highest, int decimals) {
    return {CommonFun::double2wstring(lowest, decimals),
            CommonFun::double2wstring(highest, decimals)};
}

RampValues WholeValues(double lowest, double highest) {
    return {CommonFun::int2wstring(Truncate(lowest)),
            CommonFun::int2wstring(Truncate(highest))};
}

RampValues RoundedValues(double lowest, double highest) {
    int decimals = DecimalsFor(lowest, highest);
    RampValues values = WithDecimals(lowest, highest, decimals);
    while (decimals > 0 && values.lowest.back() == L'0' &&
           values.highest.back() == L'0') {
        values = WithDecimals(lowest, highest, --decimals);
    }
    return values;
}

}  // namespace

RampValues ValuesOf(CRasterSource& source, bool rounded) {
    double lowest = 0.0;
    double highest = 0.0;
    CRasterBand* const band = source.GetRasterBand(0);
    if (band != nullptr) {
        band->ComputeMinMax(&lowest, &highest, true);
    }
    return rounded ? RoundedValues(lowest, highest) : WholeValues(lowest, highest);
}

}  // namespace map_surround
