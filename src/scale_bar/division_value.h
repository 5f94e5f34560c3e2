#pragma once

#include <optional>

namespace map_surround {

/// What one drawn division stands for: the paper-to-data scale rounded down to one
/// significant digit.
struct DivisionValue {
    double factor;  ///< the rounded scale over the scale itself; over 0.1, at most 1
    int decimals;   ///< of the labels: as many as the one digit needs
};

/// How a division value of exactly 1 is written.
enum class LabelOfOne {
    Whole,       ///< 1
    OneDecimal,  ///< 1.0
};

/// 0.037 gives 0.03 and two decimals, 2500 gives 2000 and none, 10 stays 10. No value for
/// a scale that is below 1e-8, infinite or NaN.
std::optional<DivisionValue> DivisionValueOf(double paperToData,
                                             LabelOfOne labelOfOne = LabelOfOne::Whole);

}  // namespace map_surround
