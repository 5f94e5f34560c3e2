#include "legend/ramp_values.h"

#include <cmath>

#include "element/numbers.h"
#include "host/common_functions.h"

namespace map_surround {
namespace {

// As many as distinguish any two doubles.
constexpr double kMostDecimals = 17.0;

int DecimalsFor(double lowest, double highest) {
    const double between = std::fabs(highest - lowest);
    const double range = between > 0.0 ? between : std::fabs(highest);
    if (range == 0.0) {
        return 0;
    }
    // None for what is not a number.
    return static_cast<int>(
        std::fmin(std::fmax(0.0, 2.0 - std::floor(std::log10(range))), kMostDecimals));
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
