#pragma once

#include <vector>

#include "map_surround/legend.h"

namespace host {

/// Has a legend explain the tiles of a mosaic once. Rasters that are called alike but for
/// their digits, lie side by side, have pixels of one size and are shown alike (in one
/// style, with the same bands, range or classes), are one entry, "tile_1.tif –
/// tile_8.tif" unless the first of them is called otherwise. Rasters of the same ground,
/// two dates of a scene, are no tiles; of each date there may be a mosaic.
/// @param shown as many as there are sources
void JoinTiles(const std::vector<CGISDataSource*>& sources,
               std::vector<LegendSource>& shown);

}  // namespace host
