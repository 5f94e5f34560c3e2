#pragma once

#include <optional>
#include <string>

#include "page/box.h"

namespace host {

/// A map that is longer than wide by more is a line; nothing is shown of it beyond.
constexpr double kLongestMap = 100.0;

/// What the coordinates of a map count.
enum class MapUnit { Unknown, Metre, Degree };

/// What a coordinate system counts in; Unknown for none, and for any other unit.
/// @param projection as WKT
MapUnit UnitOf(const std::string& projection);

/// The direction of true north in the middle of a map: degrees clockwise from straight
/// up, between -180 and 180. East of a UTM zone's central meridian, on the northern half,
/// it is negative: the meridians lean to the left there.
/// @return nothing where the coordinate system is unknown, or does not reach
std::optional<double> TrueNorthAt(const std::string& projection, const Box& extent);

/// How many metres on the ellipsoid one map unit is, eastwards through the middle of a
/// map: 78 847 on a map in degrees at 45 degrees north (WGS 84).
/// @return nothing where the coordinate system is unknown, or does not reach
std::optional<double> GroundMetresPerUnit(const std::string& projection,
                                          const Box& extent);

}  // namespace host
