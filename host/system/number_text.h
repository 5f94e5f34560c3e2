#pragma once

#include <string>
#include <string_view>

namespace host {

/// Reads a whole text as a finite decimal number, the same in every locale: "12.5", not
/// "12,5", " 12" or "1e999".
/// @return false for anything else; `value` is then left alone
bool ParseNumber(std::string_view text, double& value);

/// The shortest decimal that is read as the same number again: "12", and "0.1" for a
/// float that as a double is 0.10000000149011612.
std::string NumberText(double value);
std::string NumberText(float value);

}  // namespace host
