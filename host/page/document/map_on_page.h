#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/layout/layout.h"
#include "page/map/map_layers.h"

namespace host {

/// What the furniture of a page says of a map; its legend explains the rasters that are
/// on it.
MapOnPage DescribeMap(const std::shared_ptr<MapLayers>& map);

/// The layers of an item that is a map whose rasters are open; else null.
std::shared_ptr<MapLayers> LayersOf(const PageItem& item);

/// What the maps of a page remark (see MapLayers::Remarks).
std::vector<std::string> RemarksOfMaps(const Page& page);

}  // namespace host
