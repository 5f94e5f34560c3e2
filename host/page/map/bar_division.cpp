#include "page/map/bar_division.h"

#include <cmath>
#include <utility>

#include "map_surround/kit/division.h"

namespace host {

BarMeasure BarMeasure::OfGround(MapGround ground) {
    BarMeasure measure;
    measure.m_ground = std::make_shared<const MapGround>(std::move(ground));
    return measure;
}

BarMeasure BarMeasure::OfCoordinates(double size) {
    BarMeasure measure;
    measure.m_size = size;
    return measure;
}

std::optional<double> BarMeasure::Length(double mapUnits) const {
    return m_ground ? m_ground->Metres(mapUnits) : mapUnits * m_size;
}

double BarMeasure::Reach(double most) const {
    return m_ground ? m_ground->Reach(most) : most;
}

std::optional<double> BarMeasure::MapUnits(double length, double most) const {
    if (m_ground) {
        return m_ground->MapUnits(length, most);
    }
    const double units = length / m_size;
    return units <= most ? std::optional<double>(units) : std::nullopt;
}

std::optional<BarDivision> LargestDivision(const BarMeasure& measure, DistanceUnit unit,
                                           int divisions, double most) {
    const std::optional<double> longest = measure.Length(measure.Reach(most));
    const double part = longest.value_or(0.0) / divisions;
    if (!(part > 0.0) || !std::isfinite(part)) {
        return std::nullopt;
    }
    const DistanceUnit counted = UnitFor(unit, part);
    const double value = map_surround::kit::RoundDivision(part / FactsOf(counted).size);
    return DivisionOfValue(measure, counted, value, divisions, most);
}

std::optional<BarDivision> DivisionOfValue(const BarMeasure& measure, DistanceUnit unit,
                                           double value, int divisions, double most) {
    const double length = value * FactsOf(unit).size * divisions;
    const std::optional<double> whole = measure.MapUnits(length, most);
    if (!whole || !(*whole > 0.0)) {
        return std::nullopt;
    }
    return BarDivision{unit, value, *whole / divisions};
}

}  // namespace host
