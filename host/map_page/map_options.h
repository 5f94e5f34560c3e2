#pragma once

#include <CLI/CLI.hpp>

#include "map_page/options.h"

// The options of the map, and of what follows from it on the page.
namespace map_page {

void DeclareMap(CLI::App& app, Options& options);
void DeclareScaleBar(CLI::App& app, Options& options);
void DeclareNorthArrow(CLI::App& app, Options& options);

}  // namespace map_page
