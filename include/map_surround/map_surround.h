#pragma once

/// @file
/// Every public class of the library.

#include "map_surround/element.h"
#include "map_surround/frame.h"
#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/picture.h"
#include "map_surround/scale_bar.h"
#include "map_surround/title.h"
