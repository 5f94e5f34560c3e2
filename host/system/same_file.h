#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

/// Whether two paths lead to the same existing file: by name, through links, or as hard
/// links.
bool IsSameFile(const std::string& a, const std::string& b);

/// The first of the inputs that writing the output would replace, if any. Inputs that
/// GDAL opens but that are not paths never match.
std::optional<std::string> InputReplacedBy(const std::string& output,
                                           const std::vector<std::string>& inputs);

}  // namespace host
