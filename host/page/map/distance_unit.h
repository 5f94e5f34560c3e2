#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/common_functions.h"

namespace host {

/// The unit that a scale bar counts in. The values are those of page files' choices.
enum class DistanceUnit : std::int32_t {
    Metric,    ///< metres or kilometres, by the length of a division
    Imperial,  ///< feet or miles, likewise
    Metre,
    Kilometre,
    Foot,          ///< 0.3048 m
    UsSurveyFoot,  ///< 1200/3937 m
    Yard,
    Mile,  ///< of 5280 feet
    NauticalMile,
    Degree,      ///< for a map in degrees; not a length on the ground
    Coordinate,  ///< whatever the map's coordinates are in
};

/// The facts about a unit.
struct DistanceUnitFacts {
    DistanceUnit unit;
    const char* word;   ///< on the command line and in page files: "us-ft"
    const char* about;  ///< in plain words: "US survey feet"
    /// In metres; for a degree in degrees; for a choice by length, that of the smaller
    /// unit.
    double size;
    CommonMeasureUnits type;  ///< the unit that a bar reports
};

/// Every unit, the choices by length first.
const std::vector<DistanceUnitFacts>& DistanceUnits();

const DistanceUnitFacts& FactsOf(DistanceUnit unit);

/// Whether it is a unit of length, which can be measured on the ground.
constexpr bool IsLength(DistanceUnit unit) {
    return unit != DistanceUnit::Degree && unit != DistanceUnit::Coordinate;
}

/// Whether it is a choice by length.
constexpr bool IsByLength(DistanceUnit unit) {
    return unit == DistanceUnit::Metric || unit == DistanceUnit::Imperial;
}

/// The unit for divisions of a size, where it is chosen by length: the larger one as soon
/// as a division measures one of it. 900 m are metres, 1000 m a kilometre, 5280 feet a
/// mile.
/// @param size metres; degrees for an angle
DistanceUnit UnitFor(DistanceUnit unit, double size);

}  // namespace host
