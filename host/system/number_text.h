#pragma once

#include <string>
#include <string_view>

namespace host {

/// Reads the whole text as a finite decimal number, the same in every locale: "12.5", not
/// "12,5", " 12" or "1e999".
/// @return false for anything else, leaving `value` alone
bool ParseNumber(std::string_view text, double& value);

/// The shortest decimal that reads as the same number again: "12", and "0.1" for the
/// float that is 0.10000000149011612 as a double.
std::string NumberText(double value);
std::string NumberText(float value);

}  // namespace host
