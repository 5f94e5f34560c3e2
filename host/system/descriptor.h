#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// Writes all the bytes, however often a signal interrupts.
/// @return 0, or the number of the error (errno) that ended it
int WriteAll(int descriptor, const void* bytes, std::size_t count);

/// The bytes of an open file, wherever it stands.
/// @return false, and errno, when they cannot be read
bool ReadAll(int descriptor, std::vector<std::uint8_t>& bytes);

}  // namespace host
