#pragma once

#include <cstdint>
#include <vector>

#include "page/output/output_format.h"
#include "page/page.h"

namespace host {

/// The bytes of a PDF or PostScript file with the page in its true size: shapes stay
/// shapes and texts texts, in fonts that the file brings along; maps are images without
/// loss. Positions are those of the picture at the resolution, in whole pixels.
///
/// Throws what the page's drawing throws, and std::runtime_error when it cannot be
/// written.
/// @param dpi the resolution of maps: an A4 page is 842 x 595 points at any
std::vector<std::uint8_t> EncodeForPrint(const Page& page, OutputFormat format,
                                         double dpi, const Progress& progress = {});

}  // namespace host
