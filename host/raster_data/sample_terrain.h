#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// The land cover of a pixel of the sample terrain; the codes of its land-cover raster.
enum class LandCover : std::uint8_t {
    kWater = 1,
    kBeach,
    kWetland,
    kCropland,
    kGrassland,
    kForest,
    kBareRock,
    kSnow,
    kBuiltUp,
};

/// A stretch of coast with hills behind it, the same on every machine.
struct SampleTerrain {
    int width = 0;
    int height = 0;
    double pixelSize = 0.0;        ///< metres
    std::vector<float> elevation;  ///< metres; the sea bed is below 0
    std::vector<LandCover> cover;  ///< one a pixel
    std::vector<std::array<std::uint8_t, 3>> appearance;  ///< red, green, blue from above

    std::size_t At(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
};

SampleTerrain MakeSampleTerrain();

}  // namespace host
