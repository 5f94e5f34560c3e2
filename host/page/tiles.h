#pragma once

#include <vector>

#include "map_surround/legend.h"

namespace host {

/// Has a legend explain the tiles of a mosaic once. Sources that are called alike but for
/// their digits, and are shown alike (the same bands, range or classes), are one entry,
/// "tile_1.tif – tile_8.tif" unless the first of them is called otherwise.
/// @param shown as many as there are sources
void JoinTiles(const std::vector<CGISDataSource*>& sources,
               std::vector<LegendSource>& shown);

}  // namespace host
