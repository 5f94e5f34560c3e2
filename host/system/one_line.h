#pragma once

#include <cstddef>
#include <string>

namespace host {

/// Bytes of a message: a name may be 4096 long, and what is wrong with it stands behind.
constexpr std::size_t kLongestLine = 1000;

/// A text, which may hold names of any kind, as one line for a person or a log: control
/// characters and those that turn the direction of writing are escaped ("\n", "\x1B",
/// "\u202E"), all that is not ASCII where it is not valid UTF-8, and the middle of what
/// is then too long is cut out. Such a line stays as it is.
/// @param longest bytes, at least 10
std::string OneLine(const std::string& text, std::size_t longest = kLongestLine);

}  // namespace host
