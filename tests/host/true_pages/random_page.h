#pragma once

#include <cstdint>
#include <string>

#include "map_page/run_map_page.h"
#include "page/box.h"

namespace true_pages {

/// A map and what is asked of its page: the same for the same seed, on every machine.
struct RandomPage {
    std::string system;  ///< the map's coordinate system, as PROJ reads it
    std::string raster;  ///< its file
    host::Box extent;    ///< of the raster
    host::Box shown;     ///< the part asked for
    /// Whether it has values from `low` to `high`, growing to the right; else classes.
    bool isGrey = false;
    double low = 0.0;
    double high = 0.0;
    double dpi = 0.0;
    double scale = 0.0;  ///< asked for; 0 for none
    /// map_page's, but for the page to be written and the arrow's angle.
    host_tests::Arguments arguments;
};

/// The colours of a page's classes, left to right in equal strips.
constexpr std::uint32_t kClassColours[] = {0x1B9E77, 0xD95F02, 0x7570B3, 0xE6AB02};

/// Draws a page from a seed, and writes its raster into the folder.
RandomPage MakeRandomPage(std::uint32_t seed, const std::string& folder);

}  // namespace true_pages
