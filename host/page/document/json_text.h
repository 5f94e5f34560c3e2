#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>

namespace host {

constexpr std::size_t kMostJsonBytes = std::size_t{16} << 20;

/// Reads a whole JSON text (RFC 8259), which must be valid UTF-8 without a key given
/// twice in an object, nest at most 16 deep and hold at most 16 MB. Throws PageError that
/// names line and column, or the key.
nlohmann::json ParseJson(const std::string& text);

/// "elements[2]" and "frame" are "elements[2].frame"; nothing and a key are the key.
std::string PlaceOf(const std::string& parent, const std::string& key);

}  // namespace host
