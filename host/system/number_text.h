#pragma once

#include <string_view>

namespace host {

/// Reads a whole text as a finite decimal number, the same in every locale: "12.5", not
/// "12,5", " 12" or "1e999".
/// @return false for anything else; `value` is then left alone
bool ParseNumber(std::string_view text, double& value);

}  // namespace host
