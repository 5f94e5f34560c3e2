#pragma once

#include <string>

namespace hostile_files {

/// The bytes of a PNG file with every chunk's checksum set right, as far as the chunks
/// can be followed, so that a decoder does not turn the file away at its first chunk.
std::string WithPngChecksums(std::string bytes);

}  // namespace hostile_files
