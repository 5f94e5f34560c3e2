#pragma once

#include "page/document/raster_store.h"
#include "page/page.h"

namespace host {

/// Gives a legend its sources and measures it; one whose size is set keeps size and
/// proportions. A raster is explained as the first map that shows it does, and left out
/// when it is left off the maps; without a page, it is explained as it is by itself.
/// Other items are left alone. Throws as RasterStore::Raster does.
/// @param page null for none
void OpenLegend(PageItem& item, const Page* page, RasterStore& store);

/// Has the legends of a page explain what its maps show now.
/// @return the legends that changed
std::vector<std::size_t> FitLegendsToMaps(Page& page, RasterStore& store);

}  // namespace host
