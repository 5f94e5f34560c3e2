#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

/// Whether two paths lead to one file that is there: by name, through links, or as hard
/// links. A path to nothing is the same as none.
bool IsSameFile(const std::string& a, const std::string& b);

/// The first of the inputs that writing the output would replace; none when there is
/// none. Inputs that are no paths, as GDAL takes them, are no file's.
std::optional<std::string> InputReplacedBy(const std::string& output,
                                           const std::vector<std::string>& inputs);

}  // namespace host
