#pragma once

#include <nlohmann/json.hpp>

namespace host {

/// Makes a page of version 1 or 2 what the newest version has in its place. What else is
/// wrong with the page is left for its reader to tell.
///
/// In version 1 colours had their alpha first: #80FF0000 is #FF000080 now; scale bars
/// counted any one digit, and each of their divisions was cut to whole pixels. Throws
/// PageError for a colour that is none.
///
/// Up to version 2 some names of units stood for Chinese ones, "metre" for U+7C73.
void UpgradeFromVersion(int version, nlohmann::json& page);

}  // namespace host
