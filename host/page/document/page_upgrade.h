#pragma once

#include <nlohmann/json.hpp>

namespace host {

/// Turns a page of version 1 or 2 into the newest version. Other errors in the page are
/// left for its reader to report.
///
/// In version 1 colours began with their alpha: #80FF0000 becomes #FF000080; scale bars
/// counted in any single digit, and each of their divisions was cut to whole pixels.
/// Throws PageError for an invalid colour.
///
/// Up to version 2 some unit names stood for Chinese ones, "metre" for U+7C73.
void UpgradeFromVersion(int version, nlohmann::json& page);

}  // namespace host
