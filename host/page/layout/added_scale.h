#pragma once

#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// Adds the scale in figures to a page that has none and whose map has coordinates: in a
/// frame like the scale bar's, above or below it, or in a corner of the map where there
/// is no room for it.
/// @return why it is left out, on one line
std::vector<std::string> AddNumericScale(Page& page);

}  // namespace host
