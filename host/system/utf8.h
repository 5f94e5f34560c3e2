#pragma once

#include <string>

namespace host {

/// UTF-8 as wide text.
/// @return false when the bytes are not valid UTF-8, leaving `wide` alone
bool Widen(const std::string& utf8, std::wstring& wide);

/// Wide text as UTF-8; what is not a character becomes U+FFFD.
std::string Narrow(const std::wstring& wide);

}  // namespace host
