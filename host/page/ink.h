#pragma once

#include "map_surround/frame.h"
#include "map_surround/kit/ink.h"

namespace host {

using map_surround::kit::InkBox;
using map_surround::kit::kHinting;
using map_surround::kit::MeasureInk;

/// The ink of a frame's element as DrawElement draws it, from the middle of the frame.
InkBox MeasureInk(CSurroundFrame& frame);

}  // namespace host
