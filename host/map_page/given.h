#pragma once

#include <string>
#include <vector>

#include "map_page/style_options.h"

namespace map_page {

/// Options as given, before they are interpreted.
struct Given {
    std::vector<std::string> rasters;
    GivenStyle style;
    std::string title;
    std::string titleFont = "Arial";
    std::string picture;
    std::string legendTitle;
    std::string language;
    std::string legendFont = "Arial";
    bool noLegend = false;
    std::string size = "A4";
    bool portrait = false;
    std::string border = "on";
    std::string shadow = "on";
    std::string background = "on";
    bool schema = false;
};

}  // namespace map_page
