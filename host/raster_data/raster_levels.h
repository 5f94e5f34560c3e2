#pragma once

#include <vector>

class GDALRasterBand;

namespace host {

/// Bands that are read together, or one overview of each, with the masks that tell which
/// of their pixels count. All of one size; all owned by the dataset.
struct Level {
    std::vector<GDALRasterBand*> bands;
    std::vector<GDALRasterBand*> masks;  ///< none when every pixel counts

    int Width() const;
    int Height() const;
};

/// The bands themselves.
Level FullLevel(const std::vector<GDALRasterBand*>& bands);

/// The smallest overview of at least `width` x `height` that all bands and their masks
/// have; without one, the bands themselves.
Level SmallestLevel(const std::vector<GDALRasterBand*>& bands, int width, int height);

}  // namespace host
