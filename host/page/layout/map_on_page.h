#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page/layout/layout.h"
#include "page/map/map_layers.h"
#include "page/page.h"

namespace host {

/// What the elements of a page say of a map; the legend explains the rasters on it.
MapOnPage DescribeMap(const std::shared_ptr<MapLayers>& map);

/// The layers of a map whose rasters are open; null for any other item.
std::shared_ptr<MapLayers> LayersOf(const PageItem& item);

/// The remarks of a page's maps (see MapLayers::Remarks).
std::vector<std::string> RemarksOfMaps(const Page& page);

}  // namespace host
