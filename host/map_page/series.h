#pragma once

#include <functional>
#include <string>
#include <vector>

#include "map_page/options.h"

namespace map_page {

/// Draws one page; throws when it fails. The text says where the page is listed, for
/// warnings: "list.csv: line 7".
using DrawOne = std::function<void(const Options&, const std::string&)>;

/// Throws Error for the first of the columns that names no element with a text.
using CheckColumns = std::function<void(const std::vector<std::string>&)>;

/// Draws a page for each row of the list, `options.jobs` at a time, each in a process of
/// its own. Existing outputs are skipped. A page that fails is reported in one line on
/// standard error, and the others go on. Call it while the program has one thread.
/// @return the summary; throws Error with it when a page failed
std::string DrawSeries(const Options& options, const CheckColumns& checkColumns,
                       const DrawOne& draw);

}  // namespace map_page
