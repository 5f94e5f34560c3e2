#pragma once

#include <optional>
#include <string>
#include <vector>

#include "page/map/shown_map.h"
#include "page/page.h"
#include "page/placed_frame.h"

namespace host {

/// Makes true again what a page says of its map (the first that is open and has
/// coordinates), after another extent, other rasters or another size of its frame: scale
/// bars whose distances are of the map or the ground get divisions of a round value
/// again, north arrows that follow true north turn there, numeric scales say the scale.
/// What is true stays as it is, to the bit. A page without such a map stays as it is.
/// @return what could not be made true, one line each
std::vector<std::string> FitToMap(Page& page);

/// The denominator of a map's scale as it is written: the one that it keeps, or that over
/// the length of its bar, rounded. None where its coordinate system does not tell.
/// @param kept 0 for none
/// @param barLength page units, 0 for none
std::optional<double> DenominatorOf(const ShownMap& map, double kept, double barLength);

/// The same of the map that a page speaks of, and its bar.
std::optional<double> DenominatorOn(const Page& page);

/// The unit that a bar counts in now: of a choice by length, the one that it names.
DistanceUnit CountedUnit(const ScaleBarFrame& frame, const CScaleBarBase& bar);

/// An extent of the proportions of a frame that has this one in its middle; the same when
/// it has them nearly.
/// @param aspectRatio width divided by height
Box Widened(const Box& extent, double aspectRatio);

}  // namespace host
