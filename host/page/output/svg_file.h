#pragma once

#include <cstdint>
#include <vector>

#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

/// The bytes of an SVG file with the page in its true size: shapes stay shapes, letters
/// become shapes too, so that the page looks the same without its fonts, and maps are
/// lossless images. Its words lie over them as invisible text, to be searched, selected
/// and read aloud. The same page gives the same bytes. Throws as DrawOnCairo does.
/// @param dpi the resolution of maps
std::vector<std::uint8_t> EncodeSvg(const Page& page, double dpi,
                                    const Progress& progress = {},
                                    const PrintSettings& print = {});

}  // namespace host
