#pragma once

#include <cstddef>

namespace host {

/// Writes all the bytes, however often a signal interrupts.
/// @return 0, or the number of the error (errno) that ended it
int WriteAll(int descriptor, const void* bytes, std::size_t count);

}  // namespace host
