#pragma once

// A page whose rasters were moved can be opened, repaired and saved: its map is hatched
// until its rasters can be read.

#include <set>
#include <string>
#include <vector>

#include "page/document/raster_store.h"
#include "page/page.h"

namespace page_editor {

/// The rasters that items name and that are not open.
std::set<std::string> NotOpen(const std::vector<host::PageItem>& items,
                              const host::RasterStore& rasters);

/// As host::OpenRasters, but skips rasters known to be missing: a map is hatched, a
/// legend explains nothing.
void OpenOrHatch(host::PageItem& item, host::RasterStore& rasters,
                 const std::set<std::string>& missing);

/// The same for every item of a page, where whatever cannot be opened counts as missing.
/// @return what is missing, one line each
std::vector<std::string> OpenOrHatch(host::Page& page, host::RasterStore& rasters);

/// Why maps of a page are hatched, one line each.
std::vector<std::string> RemarksOfHatched(const host::Page& page);

}  // namespace page_editor
