#pragma once

#include <optional>
#include <string>

#include "page/box.h"
#include "page/map/bar_division.h"
#include "page/map/distance_unit.h"

namespace host {

/// A map as it stands on a page.
struct ShownMap {
    std::string projection;  ///< as WKT, empty when unknown
    Box extent;              ///< what it shows, in map units
    double width = 0.0;      ///< of its frame, page units

    double MapUnitsPerPageUnit() const { return extent.Width() / width; }
};

/// The scale's denominator: 25 000 where a centimetre on paper is 250 m on the ground. It
/// is measured over the same span of the map as a bar of that length, or else over a
/// quarter of the map's width, so that bar and figures agree.
/// @param span page units; 0 for no bar
/// @return nothing where the coordinate system is unknown, or not valid
std::optional<double> ScaleOf(const ShownMap& map, double span = 0.0);

/// The extent that a frame shows at a scale, centred on the middle of another.
/// @param scale its denominator
/// @param width,height of the frame, page units
/// @return nothing where the coordinate system is unknown, or not valid
std::optional<Box> ExtentAtScale(const std::string& projection, const Box& around,
                                 double scale, double width, double height);

/// What a scale bar on a page measures.
enum class BarDistances : std::int32_t {
    Fixed,   ///< a fixed distance
    Map,     ///< the coordinates of the map on the page
    Ground,  ///< the ground in the middle of that map, along the ellipsoid
};

/// A bar's default unit: metres or kilometres; feet or miles where the coordinates are
/// feet; degrees for a map in degrees whose coordinates are measured.
DistanceUnit UsualUnit(const std::string& projection, BarDistances distances);

/// How a bar in a unit is measured. Degrees and coordinates are always the map's own.
/// @param why set where it cannot be: "the map has no coordinate system"
std::optional<BarMeasure> MeasureFor(const ShownMap& map, BarDistances distances,
                                     DistanceUnit unit, std::string& why);

}  // namespace host
