#pragma once

#include <cstddef>
#include <string>

namespace host {

/// The bytes of a file. Throws std::runtime_error with the reason when there is none,
/// when it is something else (a folder, a device), and when it is larger than `most`.
std::string ReadFile(const std::string& path, std::size_t most);

}  // namespace host
