#pragma once

#include <string>

#include "map_page/options.h"
#include "map_page/series_list.h"

namespace map_page {

/// Draws the pages of a list into one PDF file, one after the other, in a separate
/// process. If a page crashes a decoder, the process is restarted without that page. A
/// page that fails is reported on one line of standard error, and the others continue. An
/// existing file is left alone.
/// @return the summary; throws Error with it when a page failed, and Error when the file
/// cannot be written
std::string DrawAtlas(const Options& options, const SeriesList& list);

}  // namespace map_page
