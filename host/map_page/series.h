#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "map_page/options.h"

namespace map_page {

/// Draws one page; throws when it fails. The text says where the page is listed, for
/// warnings: "list.csv: line 7".
using DrawOne = std::function<void(const Options&, const std::string&)>;

/// Throws Error for the first column that does not name an element with a text.
using CheckColumns = std::function<void(const std::vector<std::string>&)>;

// Shared by the two ways of drawing a series.

/// Outputs get their names only when complete, so an existing one is complete.
bool IsDrawn(const std::string& output);

/// One line on standard error.
void Tell(const std::string& what);

/// Shows on a terminal how far the series has come.
void ShowPages(std::size_t done, std::size_t all);

/// "list.csv: line 7"
std::string PlaceOf(const Options& options, std::size_t line);

/// "3 drawn, 1 already there, 0 failed"
std::string SumOf(std::size_t drawn, std::size_t skipped, std::size_t failed);

/// Draws a page for each row of the list, `options.jobs` at a time, each in a process of
/// its own. Existing outputs are skipped. A page that fails is reported on one line of
/// standard error, and the others continue. All pages go into one file where IsAtlas says
/// so. Call it while the program has one thread.
/// @return the summary; throws Error with it when a page failed
std::string DrawSeries(const Options& options, const CheckColumns& checkColumns,
                       const DrawOne& draw);

}  // namespace map_page
