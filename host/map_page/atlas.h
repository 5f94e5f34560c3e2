#pragma once

#include <string>

#include "map_page/options.h"
#include "map_page/series_list.h"

namespace map_page {

/// Draws the pages of a list into one PDF file, one after the other, in one process. What
/// a page's file does to a decoder is contained: the process is begun again without that
/// page. A page that fails is reported in one line on standard error, and the others go
/// on. A file that is there is left alone.
/// @return the summary; throws Error with it when a page failed, and Error when the file
/// cannot be written
std::string DrawAtlas(const Options& options, const SeriesList& list);

}  // namespace map_page
