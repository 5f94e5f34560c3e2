#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/common_functions.h"

namespace host {

/// What a scale bar counts in. The values are those of page files' choices.
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
    Degree,      ///< of a map whose coordinates are degrees; no length on the ground
    Coordinate,  ///< whatever the map's coordinates count
};

/// What is known of a unit.
struct DistanceUnitFacts {
    DistanceUnit unit;
    const char* word;   ///< on the command line and in page files: "us-ft"
    const char* about;  ///< for people: "US survey feet"
    /// Metres, of a degree degrees; of a choice by length, those of the smaller unit.
    double size;
    CommonMeasureUnits type;  ///< what a bar answers when asked for its unit
};

/// Every unit, the choices by length first.
const std::vector<DistanceUnitFacts>& DistanceUnits();

const DistanceUnitFacts& FactsOf(DistanceUnit unit);

/// Whether it is a length, which can be measured on the ground.
constexpr bool IsLength(DistanceUnit unit) {
    return unit != DistanceUnit::Degree && unit != DistanceUnit::Coordinate;
}

/// Whether it is a choice by length.
constexpr bool IsByLength(DistanceUnit unit) {
    return unit == DistanceUnit::Metric || unit == DistanceUnit::Imperial;
}

/// The unit of a division of at most so much, where the unit is a choice by length: the
/// larger one as soon as a division is one of it. 900 m are metres, 1000 m a kilometre,
/// 5280 feet a mile.
/// @param size metres; degrees for an angle
DistanceUnit UnitFor(DistanceUnit unit, double size);

}  // namespace host
