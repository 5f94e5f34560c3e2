#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// Writes all the bytes, however often a signal interrupts.
/// @return 0, or the error (errno) that stopped it
int WriteAll(int descriptor, const void* bytes, std::size_t count);

/// Reads all the bytes of an open file, whatever its position.
/// @return false, with errno set, when they cannot be read
bool ReadAll(int descriptor, std::vector<std::uint8_t>& bytes);

}  // namespace host
