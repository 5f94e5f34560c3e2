#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <string>

namespace host {

constexpr std::size_t kMostJsonBytes = std::size_t{16} << 20;

/// Reads a whole JSON text (RFC 8259): valid UTF-8, no key twice in an object, nested at
/// most 16 deep, at most 16 MB. Throws PageError that names line and column, or the key.
nlohmann::json ParseJson(const std::string& text);

/// The place of a key: "frame" in "elements[2]" is "elements[2].frame"; without a parent,
/// just the key.
std::string PlaceOf(const std::string& parent, const std::string& key);

}  // namespace host
