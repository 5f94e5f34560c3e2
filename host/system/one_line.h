#pragma once

#include <cstddef>
#include <string>

namespace host {

/// In bytes: a name may have 4096, and the reason stands after it.
constexpr std::size_t kLongestLine = 1000;

/// A text, which may contain names of any kind, as one line for a message or a log:
/// control characters and those that change the direction of writing are escaped ("\n",
/// "\x1B", "\u202E"), as are all bytes beyond ASCII where they are not valid UTF-8, and
/// the middle of a line that is too long is cut out. Such a line stays as it is.
/// @param longest bytes, at least 10
std::string OneLine(const std::string& text, std::size_t longest = kLongestLine);

}  // namespace host
