#include "page/map/distance_unit.h"

#include <cmath>
#include <iterator>

namespace host {
namespace {

constexpr double kFoot = 0.3048;
constexpr double kMile = 5280.0 * kFoot;

/// The two units of a choice by length.
struct ByLength {
    DistanceUnit choice;
    DistanceUnit smaller;
    DistanceUnit larger;
};

constexpr ByLength kByLength[] = {
    {DistanceUnit::Metric, DistanceUnit::Metre, DistanceUnit::Kilometre},
    {DistanceUnit::Imperial, DistanceUnit::Foot, DistanceUnit::Mile},
};

// Rounding sometimes leaves a length of 1000 m a hair short.
constexpr double kNearly = 1.0 - 1.0e-12;

}  // namespace

const std::vector<DistanceUnitFacts>& DistanceUnits() {
    static const std::vector<DistanceUnitFacts> units = {
        {DistanceUnit::Metric, "metric", "metres or kilometres, by length", 1.0,
         MeasureMeter},
        {DistanceUnit::Imperial, "imperial", "feet or miles, by length", kFoot,
         MeasureUnknown},
        {DistanceUnit::Metre, "m", "metres", 1.0, MeasureMeter},
        {DistanceUnit::Kilometre, "km", "kilometres", 1000.0, MeasureKilometer},
        {DistanceUnit::Foot, "ft", "feet", kFoot, MeasureUnknown},
        {DistanceUnit::UsSurveyFoot, "us-ft", "US survey feet", 1200.0 / 3937.0,
         MeasureUnknown},
        {DistanceUnit::Yard, "yd", "yards", 3.0 * kFoot, MeasureUnknown},
        {DistanceUnit::Mile, "mi", "miles", kMile, MeasureUnknown},
        {DistanceUnit::NauticalMile, "nmi", "nautical miles", 1852.0, MeasureUnknown},
        {DistanceUnit::Degree, "deg", "degrees, where the map's coordinates are degrees",
         1.0, MeasureDegree},
        {DistanceUnit::Coordinate, "map-units",
         "the map's coordinates, whatever their unit", 1.0, MeasureUnknown},
    };
    return units;
}

const DistanceUnitFacts& FactsOf(DistanceUnit unit) {
    for (const DistanceUnitFacts& facts : DistanceUnits()) {
        if (facts.unit == unit) {
            return facts;
        }
    }
    return DistanceUnits().front();
}

DistanceUnit UnitFor(DistanceUnit unit, double size) {
    for (const ByLength& choice : kByLength) {
        if (choice.choice == unit) {
            return size >= FactsOf(choice.larger).size * kNearly ? choice.larger
                                                                 : choice.smaller;
        }
    }
    return unit;
}

}  // namespace host
