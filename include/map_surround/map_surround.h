#pragma once

/// @file
/// Every public class of the library, and its version: MAP_SURROUND_VERSION is 10203 for
/// version 1.2.3, MAP_SURROUND_VERSION_STRING "1.2.3", and MAP_SURROUND_VERSION_MAJOR,
/// _MINOR and _PATCH are the three numbers.

#include "map_surround/element.h"
#include "map_surround/frame.h"
#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/picture.h"
#include "map_surround/scale_bar.h"
#include "map_surround/title.h"
#include "map_surround/version.h"
