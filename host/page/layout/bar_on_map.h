#pragma once

#include <optional>

#include "page/map/shown_map.h"
#include "page/placed_frame.h"

namespace host {

/// A bar's divisions, true to a map.
struct BarOnMap {
    DistanceUnit unit;  ///< never a choice by length
    double value;       ///< of a division, in that unit
    double length;      ///< of a division, page units
    int divisions;
};

/// Round divisions for a bar: as many as it has, or more or fewer where something else is
/// to be kept.
/// @param value of a division, where that is to be kept; in the bar's unit
/// @param divisions how many it has
/// @param longest the whole bar, page units
/// @return nothing where none fits
std::optional<BarOnMap> FitBar(const ShownMap& map, const BarMeasure& measure,
                               DistanceUnit unit, BarFit fit, double value, int divisions,
                               double longest);

/// Gives a bar its divisions and the name of its unit.
void SetDivisions(ScaleBarFrame& frame, CScaleBarBase& bar, const BarOnMap& divisions);

/// Whether the numbers over a bar's divisions keep clear of one another.
/// @param em their size, page units
/// @param value,length of a division
bool NumbersAreApart(double em, double value, double length, int divisions);

}  // namespace host
