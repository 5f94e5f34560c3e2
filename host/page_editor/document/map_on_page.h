#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/layout.h"
#include "page/map_layers.h"

namespace page_editor {

/// What the furniture of a page says of a map.
host::MapOnPage DescribeMap(const std::shared_ptr<host::MapLayers>& map,
                            const std::vector<std::string>& paths,
                            host::RasterStore& rasters);

/// The layers of an item that is a map whose rasters are open; else null.
std::shared_ptr<host::MapLayers> SharedLayersOf(const host::PageItem& item);
const host::MapLayers* LayersOf(const host::PageItem& item);

}  // namespace page_editor
