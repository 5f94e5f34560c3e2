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

/// Writes a raster of three bands in that format, which GDAL of this process then knows.
/// @param path ends in .trap
void WriteTrap(const std::string& path, Trap trap);

}  // namespace editor_tests
