#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "page/box.h"
#include "page/document/raster_store.h"
#include "page/page.h"

namespace host {

/// What a page has otherwise than its page file, as the pages of a series have.
struct PageChanges {
    std::vector<std::string> rasters;  ///< none: as in the page file
    std::optional<Box> extent;         ///< likewise
    std::optional<double> scale;       ///< likewise
    /// Names of properties that every map has, and their texts: {"stretch", "minmax"}.
    std::vector<std::pair<std::string, std::string>> mapTexts;
    /// Names of elements and their texts, in UTF-8.
    std::vector<std::pair<std::string, std::string>> texts;
};

/// Changes a page whose rasters are not open yet, and opens them: every map and legend
/// has the rasters, every map the extent and the texts, every title of a name the text,
/// every legend of a name the first line. What gets larger than its frame by that is made
/// smaller; scale bars, north arrows and numeric scales follow the map. Throws PageError
/// for a text that is none and for what cannot be opened.
/// @return what could not be made true to the map, one line each
std::vector<std::string> ChangeAndOpen(Page& page, const PageChanges& changes,
                                       RasterStore& store);

/// Whether an element of that name has a text.
bool HasText(const Page& page, const std::string& name);

}  // namespace host
