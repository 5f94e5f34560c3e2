#pragma once

#include <cstdint>
#include <vector>

#include "page/output/print_settings.h"
#include "page/page.h"

namespace host {

/// The bytes of an SVG file with the page in its true size: shapes stay shapes, letters
/// are shapes too, so that the page looks the same without its fonts, and maps are images
/// without loss. Its words lie over them as text that is not seen, to be searched,
/// selected and read aloud. The same page gives the same bytes. Throws as DrawOnCairo
/// does.
/// @param dpi the resolution of maps
std::vector<std::uint8_t> EncodeSvg(const Page& page, double dpi,
                                    const Progress& progress = {},
                                    const PrintSettings& print = {});

}  // namespace host
