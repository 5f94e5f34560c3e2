#pragma once

#include <cstddef>
#include <string>

namespace host {

/// A file's bytes. Throws std::runtime_error with the reason when it does not exist, is
/// not a regular file (a folder, a device), or is larger than `most` bytes.
std::string ReadFile(const std::string& path, std::size_t most);

}  // namespace host
