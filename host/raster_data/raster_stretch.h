#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "raster_data/raster_style.h"
#include "system/progress.h"

class GDALRasterBand;

namespace host {

/// The values that are drawn black and white.
struct ShadeRange {
    double black = 0.0;
    double white = 0.0;

    /// The nearest of 256 shades; mid grey where black and white are one value.
    std::uint8_t Shade(double value) const;
};

/// So many pixels a side are counted at most; larger rasters are sampled.
constexpr int kCountedSide = 1 << 12;

/// At what size the pixels of a band are looked at where `most` a side are enough: at its
/// own as long as it has no more of them than `most` by `most`, so that the answer is
/// exact, else at no more than `most` by `most`.
struct LookedAt {
    LookedAt(GDALRasterBand& band, int most);
    int width;
    int height;
};

/// What a stretch makes black and white of each of one to three bands, counting the
/// pixels that have a value in all of them; nothing where none has. A raster of up to
/// 16 million pixels is read whole (for percents up to 4 million), a larger one sampled
/// at 4096 x 4096 (2048 x 2048), from overviews where there are any.
///
/// Throws std::runtime_error when the file cannot be read or `progress` answers false.
/// @param stretch any but Automatic
std::vector<std::optional<ShadeRange>> RangesOf(const std::vector<GDALRasterBand*>& bands,
                                                const Stretch& stretch,
                                                const Progress& progress);

}  // namespace host
