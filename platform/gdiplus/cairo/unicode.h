#pragma once

#include <string>

#include "cairo/flat_functions.h"

namespace engine {

/// The code points of UTF-16 units; a lone surrogate becomes U+FFFD.
std::u32string CodePoints(const FlatChar* units, std::size_t count);

std::string Utf8(const std::u32string& text);

std::string Utf8(const std::u32string& text);

/// A null-terminated text as UTF-8, and back.
std::string Utf8(const FlatChar* text);
std::u16string Utf16(const char* utf8);

}  // namespace engine
