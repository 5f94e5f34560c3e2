#pragma once

#include <vector>

#include "map_surround/legend.h"

namespace host {

/// Has a legend explain the tiles of a mosaic once. Rasters become one entry, "tile_1.tif
/// – tile_8.tif" unless the first has a name of its own, if their names differ only in
/// digits, they lie side by side, their pixels have one size, and they are shown alike
/// (in one style, with the same bands, range or classes). Rasters of the same ground,
/// such as two dates of a scene, are not tiles; each date may have a mosaic.
/// @param shown as many as there are sources
void JoinTiles(const std::vector<CGISDataSource*>& sources,
               std::vector<LegendSource>& shown);

}  // namespace host
