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

/// The options for how the map's rasters are shown, as given.
struct GivenStyle {
    std::optional<std::string> stretch;
    std::optional<std::string> bands;
    std::optional<std::string> noData;
};

void DeclareStyle(CLI::App& app, GivenStyle& given);

/// Throws UsageError for an invalid value.
host::RasterStyle ReadStyle(const GivenStyle& given);

/// The given options, by the names of a map's properties.
std::vector<std::pair<std::string, std::string>> MapTexts(const GivenStyle& given);

/// The command line without the program, and with a stretch of several words as one
/// argument: "percent 2 98". After a shorter one, CLI11 would take the rasters for words
/// of it.
std::vector<std::string> Arguments(int argc, const char* const* argv);

}  // namespace map_page
