#pragma once

#include <cstdint>
#include <vector>

#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

/// The bytes of a PostScript file with the page in its true size: shapes stay shapes and
/// text stays text; maps are lossless images. The same page gives the same bytes. Throws
/// as DrawOnCairo does.
/// @param dpi the resolution of maps: an A4 page is always 842 x 595 points
std::vector<std::uint8_t> EncodePostScript(const Page& page, double dpi,
                                           const Progress& progress = {},
                                           const PrintSettings& print = {});

}  // namespace host
