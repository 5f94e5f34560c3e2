#pragma once

#include <nlohmann/json.hpp>

namespace host {

/// Makes a page of version 1 what version 2 has in its place. In version 1 colours had
/// their alpha first: #80FF0000 is #FF000080 now; scale bars counted any one digit, and
/// each of their divisions was cut to whole pixels. Throws PageError for a colour that is
/// none; what else is wrong with the page is left for its reader to tell.
void UpgradeFromVersion1(nlohmann::json& page);

}  // namespace host
