#include "scale_bar/division_value.h"

#include <cmath>

namespace {

constexpr double kLeastScale = 1e-8;  // smaller scales count as zero

}  // namespace

// The powers of ten are applied one at a time, so that every bar and its labels round the
// same way to the last bit.
std::optional<map_surround::DivisionValue> map_surround::DivisionValueOf(
    double paperToData, LabelOfOne labelOfOne) {
    if (!(paperToData >= kLeastScale) || std::isinf(paperToData)) {
        return std::nullopt;
    }

    double digit = paperToData;
    int power = 0;
    if (paperToData < 1.0 ||
        (paperToData == 1.0 && labelOfOne == LabelOfOne::OneDecimal)) {
        do {
            digit *= 10.0;
            ++power;
        } while (digit < 1.0);
        double rounded = std::trunc(digit);
        for (int i = 0; i < power; ++i) {
            rounded /= 10.0;
        }
        return DivisionValue{rounded / paperToData, power};
    }
    if (paperToData > 1.0) {
        do {
            digit /= 10.0;
            ++power;
        } while (digit > 1.0);
        double rounded = std::trunc(digit * 10.0);
        for (int i = 1; i < power; ++i) {
            rounded *= 10.0;
        }
        return DivisionValue{rounded / paperToData, 0};
    }
    return DivisionValue{1.0, 0};
}
