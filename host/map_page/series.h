#pragma once

#include <functional>
#include <string>
#include <vector>

#include "map_page/options.h"

namespace map_page {

/// Draws one page; throws when it fails. The text is where the page is listed, for what
/// is said of it: "list.csv: line 7".
using DrawOne = std::function<void(const Options&, const std::string&)>;

/// Throws Error for the first of the columns that names no element with a text.
using CheckColumns = std::function<void(const std::vector<std::string>&)>;

/// Draws a page for each row of the list, `options.jobs` at a time, each in a process of
/// its own. Outputs that are there already are left as they are. What is wrong with a
/// page is told in one line on standard error, and the others go on. Call it while there
/// is one thread.
/// @return the line that sums up; throws Error with it when a page failed
std::string DrawSeries(const Options& options, const CheckColumns& checkColumns,
                       const DrawOne& draw);

}  // namespace map_page
