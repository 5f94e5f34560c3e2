#pragma once

#include <string>

#include "map_page/options.h"
#include "map_page/quiet.h"
#include "page/page.h"
#include "system/output_file.h"

namespace map_page {

/// Draws the page into the file that the options name, and returns the line that says
/// where it will be once the file is committed. Throws as DrawPage does.
std::string WriteInto(const Options& options, const host::Page& page,
                      host::OutputFile& output, const Quiet& quiet);

}  // namespace map_page
