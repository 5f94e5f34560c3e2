#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "raster_data/raster_style.h"

namespace CLI {
class App;
}

namespace map_page {

/// The options of how the map's rasters are shown, as they were given.
struct GivenStyle {
    std::optional<std::string> stretch;
    std::optional<std::string> bands;
    std::optional<std::string> noData;
};

void DeclareStyle(CLI::App& app, GivenStyle& given);

/// Throws UsageError for a value that is none.
host::RasterStyle ReadStyle(const GivenStyle& given);

/// What is given, by the names of a map's properties.
std::vector<std::pair<std::string, std::string>> MapTexts(const GivenStyle& given);

/// The command line without the program, and with a stretch of several words as one
/// argument: "percent 2 98". CLI11 would take the rasters after a shorter one for words
/// of it.
std::vector<std::string> Arguments(int argc, const char* const* argv);

}  // namespace map_page
