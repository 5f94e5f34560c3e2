#pragma once

#include <string>

#include "map_page/options.h"
#include "map_page/quiet.h"
#include "page/page.h"
#include "system/output_file.h"

namespace map_page {

/// Draws the page into the file that the options name, and returns its size: "1754 x 1240
/// pixels". Throws as DrawPage does.
std::string WriteInto(const Options& options, const host::Page& page,
                      const host::OutputFile& output, const Quiet& quiet);

}  // namespace map_page
