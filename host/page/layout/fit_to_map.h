#pragma once

#include "page/page.h"

namespace host {

/// Makes true again what a page says of its map (the first that is open and has
/// coordinates), after another extent or other rasters: scale bars whose distances are of
/// the map or the ground get divisions of a round value again, at most as long as they
/// were, and north arrows that follow true north turn there. What is true stays as it is,
/// to the bit. A page without such a map stays as it is.
///
/// A bar keeps its unit: one in metres or kilometres by its unit type.
void FitToMap(Page& page);

/// An extent of the proportions of a frame that has this one in its middle; the same when
/// it has them nearly.
/// @param aspectRatio width divided by height
Box Widened(const Box& extent, double aspectRatio);

}  // namespace host
