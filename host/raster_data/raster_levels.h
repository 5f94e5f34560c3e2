#pragma once

#include <vector>

class GDALRasterBand;

namespace host {

/// Bands that are read together, or one overview of them, with the masks that tell which
/// of their pixels count. All of one size; all owned by the dataset.
struct Level {
    std::vector<GDALRasterBand*> bands;
    std::vector<GDALRasterBand*> masks;  ///< none when every pixel counts

    int Width() const;
    int Height() const;
};

/// The bands themselves.
Level FullLevel(const std::vector<GDALRasterBand*>& bands);

/// The smallest overview that is at least `width` x `height` and that all bands and their
/// masks have; the bands themselves where there is none.
Level SmallestLevel(const std::vector<GDALRasterBand*>& bands, int width, int height);

}  // namespace host
