#pragma once

#include <optional>

#include "map_page/options.h"
#include "system/allowed_sources.h"

namespace map_page {

/// What a page file, and the list of a series, may have read; none: all, for rasters on
/// the command line are the caller's own.
std::optional<host::AllowedSources> AllowedBy(const Options& options);

/// Takes from this process, for good, what drawing the page does not need, as far as the
/// kernel can: new files, programs, the network and files to read elsewhere. Rasters on
/// the command line of a kind that may need more, such as a service's, keep it all.
void Confine(const Options& options);

}  // namespace map_page
