#pragma once

namespace host {

/// A page unit is 1/96 inch, so a page at 96 dpi has one device pixel per unit.
constexpr double kUnitsPerInch = 96.0;

constexpr double kMillimetresPerInch = 25.4;
constexpr double kInchesPerMetre = 1.0 / 0.0254;

/// Type is measured in points, and so are the pages of files for print.
constexpr double kPointsPerInch = 72.0;

/// 25.4 mm are 96 units.
constexpr double UnitsFromMillimetres(double millimetres) {
    return millimetres * kUnitsPerInch / kMillimetresPerInch;
}

/// 18 points are 24 units.
constexpr double UnitsFromPoints(double points) {
    return points * kUnitsPerInch / kPointsPerInch;
}

constexpr double PointsFromUnits(double units) {
    return units * kPointsPerInch / kUnitsPerInch;
}

}  // namespace host
