#pragma once

#include <string>
#include <vector>

#include "map_page/given.h"
#include "map_page/options.h"

namespace CLI {
class App;
}

// A page file is a template: options that are given with it say something else than it.
namespace map_page {

/// Throws UsageError for options that do not go with a page file.
void CheckGoesWithPageFile(const CLI::App& app, const Given& given);

/// What the options that were given change of a page file's page.
host::PageChanges TemplateChanges(const CLI::App& app, const Given& given,
                                  const Options& options);

/// Whether a column of a series' list is named as an option that its cells are values of:
/// "title-size".
bool IsOptionColumn(const std::string& name);

/// What the cells of such columns change, each as an option with its value:
/// "--scale=1:25000". Throws UsageError for a value that is none.
host::PageChanges ChangesOfCells(const std::vector<std::string>& cells);

}  // namespace map_page
