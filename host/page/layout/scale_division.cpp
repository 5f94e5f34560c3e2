#include "page/layout/scale_division.h"

#include <cmath>

namespace host {
namespace {

/// 37 gives 30.
double RoundedDown(double value) {
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    return std::floor(value / power) * power;
}

}  // namespace

Division DivisionOf(double length, double perPageUnit) {
    const double value = RoundedDown(length * perPageUnit);
    return {value, value / perPageUnit};
}

}  // namespace host
