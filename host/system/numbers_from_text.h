#pragma once

#include <string_view>

namespace host {

/// Reads a whole text as a finite decimal number, the same in every locale: "12.5", not
/// "12,5", " 12" or "1e999".
/// @return false when it is none; `value` then stays as it was
bool ParseNumber(std::string_view text, double& value);

}  // namespace host
