#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "raster_data/raster_style.h"
#include "system/progress.h"

class GDALRasterBand;

namespace host {

/// The values drawn black and white.
struct ShadeRange {
    double black = 0.0;
    double white = 0.0;

    /// The nearest of 256 shades; mid grey when black and white are the same value.
    std::uint8_t Shade(double value) const;
};

/// Pixels counted along a side at most; larger rasters are sampled.
constexpr int kCountedSide = 1 << 12;

/// The size at which a band's pixels are examined when `most` along a side are enough:
/// its own while it has no more than `most` by `most` pixels, so that the answer is
/// exact, else at most `most` by `most`.
struct LookedAt {
    LookedAt(GDALRasterBand& band, int most);
    int width;
    int height;
};

/// The values that a stretch makes black and white in each of one to three bands,
/// counting the pixels with a value in all of them; nothing when there are none. A raster
/// of up to 16 million pixels is read whole (4 million for percentiles), a larger one
/// sampled at 4096 x 4096 (2048 x 2048), from overviews where it has them.
///
/// Throws std::runtime_error when the file cannot be read or `progress` returns false.
/// @param stretch any but Automatic
std::vector<std::optional<ShadeRange>> RangesOf(const std::vector<GDALRasterBand*>& bands,
                                                const Stretch& stretch,
                                                const Progress& progress);

}  // namespace host
