#pragma once

#include <string>
#include <vector>

#include "page/page.h"

namespace host {

/// What on a page would trouble its reader, one line each that begins with the item's
/// name: what leaves the sheet or its frame, overlaps other furniture or the edge of a
/// map, is covered, is set smaller than 5 points or too close to be told apart. Empty for
/// a sound page.
///
/// Judged by what is drawn: the ink of elements, and frames that have a border, a
/// background or a shadow. What lies within a map or a frame without an element is meant
/// to. "title: leaves its frame by 12.4 mm".
std::vector<std::string> RemarksOf(const Page& page);

}  // namespace host
