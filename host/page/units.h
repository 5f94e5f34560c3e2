#pragma once

namespace host {

/// A page unit is 1/96 inch, so a page at 96 dpi has one device pixel per unit.
constexpr double kUnitsPerInch = 96.0;

/// An inch is exactly 25.4 mm.
constexpr double kInchesPerMetre = 1.0 / 0.0254;

/// 25.4 mm are 96 units.
constexpr double UnitsFromMillimetres(double millimetres) {
    return millimetres * kUnitsPerInch / 25.4;
}

/// Type is measured in points, 72 to the inch: 18 points are 24 units.
constexpr double UnitsFromPoints(double points) { return points * kUnitsPerInch / 72.0; }

constexpr double PointsFromUnits(double units) { return units * 72.0 / kUnitsPerInch; }

}  // namespace host
