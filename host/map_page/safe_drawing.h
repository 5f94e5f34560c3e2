#pragma once

#include <optional>

#include "map_page/options.h"
#include "system/allowed_sources.h"

namespace map_page {

/// What a page file, or the list of a series, may have read; nothing for rasters on the
/// command line, which are the user's own: they may read everything.
std::optional<host::AllowedSources> AllowedBy(const Options& options);

/// Takes from this process, for good, what drawing the page does not need, as far as the
/// kernel can: new files, programs, the network and files elsewhere. Rasters on the
/// command line that may need more, such as those of a service, are not confined.
void Confine(const Options& options);

}  // namespace map_page
