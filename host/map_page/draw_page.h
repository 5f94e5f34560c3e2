#pragma once

#include <string>
#include <vector>

#include "map_page/options.h"
#include "map_page/quiet.h"
#include "system/output_file.h"

namespace map_page {

/// Draws the page that the options ask for into the file, when there is one, saves it as
/// a page file when they ask for that, and returns the lines that say where both will be
/// once the file is committed. Throws Error, and std::bad_alloc when the memory does not
/// suffice. GDI+ must have been started.
std::string DrawPage(const Options& options, host::OutputFile* output,
                     const Quiet& quiet);

/// Throws Error for outputs that cannot be made here, and for the first of the columns
/// that names no element with a text in the page file. GDI+ must have been started.
void CheckSeries(const Options& options, const std::vector<std::string>& columns);

}  // namespace map_page
