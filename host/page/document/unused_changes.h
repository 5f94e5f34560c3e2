#pragma once

#include <string>
#include <vector>

#include "page/document/page_changes.h"

namespace host {

/// The changes that a page has no use for, one line each: rasters, where it has no map or
/// legend.
std::vector<std::string> RemarksOfUnused(const PageChanges& changes, const Page& page);

}  // namespace host
