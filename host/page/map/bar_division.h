#pragma once

#include <memory>
#include <optional>

#include "page/map/distance_unit.h"
#include "page/map/map_geometry.h"

namespace host {

/// What a scale bar measures: the ground under the middle of a map, or the map's own
/// coordinates.
class BarMeasure {
public:
    /// Distances on the ground, in metres.
    static BarMeasure OfGround(MapGround ground);

    /// Distances in coordinates.
    /// @param size metres, or degrees, per map unit
    static BarMeasure OfCoordinates(double size);

    /// The distance covered by some map units in the middle of the map, in metres or
    /// degrees; nothing where they reach beyond the Earth.
    std::optional<double> Length(double mapUnits) const;

    /// The longest span, up to a number of map units, that can be measured.
    double Reach(double most) const;

    /// The map units that cover a distance: the inverse of Length.
    std::optional<double> MapUnits(double length, double most) const;

private:
    std::shared_ptr<const MapGround> m_ground;
    double m_size = 1.0;
};

/// One of a bar's divisions.
struct BarDivision {
    DistanceUnit unit;
    double value;     ///< in that unit: 1, 2 or 5 times a power of ten
    double mapUnits;  ///< of the map; the bar is true as a whole
};

/// The largest round divisions of a bar of limited length.
/// @param divisions how many of them, at least 1
/// @param most map units, the whole bar
/// @return nothing where nothing can be measured
std::optional<BarDivision> LargestDivision(const BarMeasure& measure, DistanceUnit unit,
                                           int divisions, double most);

/// Divisions of a given value, round or not.
/// @param value above 0, in the unit
/// @return nothing where the bar would be longer than `most`
std::optional<BarDivision> DivisionOfValue(const BarMeasure& measure, DistanceUnit unit,
                                           double value, int divisions, double most);

}  // namespace host
