#pragma once

#include <optional>
#include <string>
#include <vector>

#include "page/map/shown_map.h"
#include "page/page.h"
#include "page/placed_frame.h"

namespace host {

/// Makes what a page says of its map (the first that is open and has coordinates) true
/// again, after a change of extent, rasters or frame size: scale bars that measure the
/// map or the ground get round divisions again, north arrows that follow true north are
/// turned, numeric scales give the scale. What is still true stays as it is, to the bit.
/// A page without such a map is left alone.
/// @return what could not be made true, one line each
std::vector<std::string> FitToMap(Page& page);

/// The denominator of a map's scale as it is written: the one that it keeps, or else the
/// scale along its bar, rounded. Nothing where its coordinate system does not tell.
/// @param kept 0 for none
/// @param barLength page units, 0 for none
std::optional<double> DenominatorOf(const ShownMap& map, double kept, double barLength);

/// The same for the map that a page describes, and its bar.
std::optional<double> DenominatorOn(const Page& page);

/// The unit that a bar counts in at present: for a choice by length, the one that it
/// names.
DistanceUnit CountedUnit(const ScaleBarFrame& frame, const CScaleBarBase& bar);

/// An extent with the proportions of a frame and this one in its middle; the same extent
/// if it nearly has them.
/// @param aspectRatio width divided by height
Box Widened(const Box& extent, double aspectRatio);

}  // namespace host
