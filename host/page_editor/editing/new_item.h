#pragma once

#include <string>
#include <vector>

#include "page/document/item_type.h"
#include "page/document/raster_store.h"
#include "page/page.h"

namespace page_editor {

/// A new item to start from: in the middle of the sheet, of a suitable size, a scale bar
/// and a legend for the first map on the page. Throws host::PageError when a file cannot
/// be used.
/// @param files the image of a picture, the rasters of a map; not for others
/// @param reading called while files take long to read; may cancel the reading
/// @param remarks if not null, what could not be done as one would expect is added
host::PageItem NewItem(const host::ItemType& type, const host::Page& page,
                       host::RasterStore& rasters,
                       const std::vector<std::string>& files = {},
                       const host::Progress& reading = {},
                       std::vector<std::string>* remarks = nullptr);

}  // namespace page_editor
