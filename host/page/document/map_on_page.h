#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/layout/layout.h"
#include "page/map/map_layers.h"

namespace host {

/// What the furniture of a page says of a map.
MapOnPage DescribeMap(const std::shared_ptr<MapLayers>& map,
                      const std::vector<std::string>& paths, RasterStore& rasters);

/// The layers of an item that is a map whose rasters are open; else null.
std::shared_ptr<MapLayers> LayersOf(const PageItem& item);

/// The rasters that could not be placed on a page's maps, and why, one line each.
std::vector<std::string> RemarksOfLeftOut(const Page& page);

}  // namespace host
