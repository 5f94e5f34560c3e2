#pragma once

#include <string>

namespace editor_tests {

/// When the decoder of a made-up raster format does what decoders of damaged files do.
enum class Trap {
    None,
    DiesWhenOpened,
    DiesWhenRead,
    HangsWhenOpened,
    HangsWhenRead,
    IsSlowToRead,  ///< a fifth of a second for all of it
};

/// Has GDAL know that format: for this process, and for a helper that starts later.
void RegisterTraps();

/// Writes a raster of three bands in that format.
/// @param path ends in .trap
void WriteTrap(const std::string& path, Trap trap);

}  // namespace editor_tests
