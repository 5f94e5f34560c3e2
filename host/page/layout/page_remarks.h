#pragma once

#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// What on a page its reader would stumble over, one line each that begins with the name
/// of the item: what leaves the sheet or its frame, lies over other furniture or over the
/// edge of a map, is covered, is written smaller than 5 points or so close that it cannot
/// be told apart. Empty for a page as it should be.
///
/// Measured by what is drawn: the ink of elements, and frames that have a border, a
/// background or a shadow. What lies within a map or a frame without element is meant to.
/// "title: leaves its frame by 12.4 mm".
std::vector<std::string> RemarksOf(const Page& page);

}  // namespace host
