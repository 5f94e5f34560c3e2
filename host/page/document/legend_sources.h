#pragma once

#include "page/document/raster_store.h"
#include "page/page.h"

namespace host {

/// Gives a legend its sources, and measures it by them; one whose size is set keeps size
/// and proportions. It explains its rasters as the first map of the page shows them that
/// has them, and none that is left off the maps; without a page as they are by
/// themselves. Other items stay as they are. Throws as RasterStore::Raster does.
/// @param page null for none
void OpenLegend(PageItem& item, const Page* page, RasterStore& store);

/// Has the legends of a page explain what its maps show by now.
/// @return which of them explained something else before
std::vector<std::size_t> FitLegendsToMaps(Page& page, RasterStore& store);

}  // namespace host
