#pragma once

#include <string>
#include <vector>

#include "map_page/given.h"
#include "map_page/options.h"

namespace CLI {
class App;
}

// A page file is a template: options given with it override it.
namespace map_page {

/// Throws UsageError for options that do not work with a page file.
void CheckGoesWithPageFile(const CLI::App& app, const Given& given);

/// The changes that the given options make to a page file's page.
host::PageChanges TemplateChanges(const CLI::App& app, const Given& given,
                                  const Options& options);

/// Whether a column of a series' list has the name of an option, so that its cells are
/// values of it: "title-size".
bool IsOptionColumn(const std::string& name);

/// The changes that such cells make, each an option with its value: "--scale=1:25000".
/// Throws UsageError for an invalid value.
host::PageChanges ChangesOfCells(const std::vector<std::string>& cells);

}  // namespace map_page
