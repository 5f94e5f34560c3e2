#include "raster_data/sample_terrain.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 450;
constexpr double kPixelSize = 30.0;

/// A value in [0, 1) for each point of the integer grid.
double GridNoise(std::int32_t x, std::int32_t y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x8da6b343U +
                      static_cast<std::uint32_t>(y) * 0xd8163841U + seed * 0xcb1ab31fU;
    h = (h ^ (h >> 16U)) * 0x7feb352dU;
    h = (h ^ (h >> 15U)) * 0x846ca68bU;
    h ^= h >> 16U;
    return h / 4294967296.0;
}

double Mix(double from, double to, double share) { return from + (to - from) * share; }

double Smooth(double t) { return t * t * (3.0 - 2.0 * t); }

/// The grid's values, joined smoothly.
double Noise(double x, double y, std::uint32_t seed) {
    const double left = std::floor(x);
    const double top = std::floor(y);
    const auto column = static_cast<std::int32_t>(left);
    const auto row = static_cast<std::int32_t>(top);
    const double right = Smooth(x - left);
    const double down = Smooth(y - top);
    return Mix(Mix(GridNoise(column, row, seed), GridNoise(column + 1, row, seed), right),
               Mix(GridNoise(column, row + 1, seed), GridNoise(column + 1, row + 1, seed),
                   right),
               down);
}

/// Noise at seven scales, each half as wide and half as high as the one before; 0 to 1.
double Rough(double x, double y, std::uint32_t seed) {
    double sum = 0.0;
    double most = 0.0;
    double weight = 1.0;
    for (std::uint32_t octave = 0; octave < 7; ++octave) {
        sum += weight * Noise(x, y, seed + octave);
        most += weight;
        weight *= 0.5;
        x *= 2.0;
        y *= 2.0;
    }
    return sum / most;
}

/// Hills in the north-west that fall to a sea in the south-east, cut by valleys.
double Elevation(int x, int y) {
    const double u = 1.0 * x / kWidth;
    const double v = 1.0 * y / kHeight;
    const double bend = 0.35 * (Rough(3.0 * u, 3.0 * v, 11) - 0.5);
    const double inland = 0.98 - 0.75 * u - 0.65 * v + bend;
    const double crest = 1.0 - std::abs(2.0 * Rough(4.5 * u, 4.5 * v, 23) - 1.0);
    const double relief = Rough(7.0 * u, 7.0 * v, 37) - 0.5;
    const double land = std::max(inland, 0.0);
    return 260.0 * inland + 1350.0 * land * land * crest * crest + 260.0 * land * relief;
}

/// The slope towards east and south, in metres per metre.
struct Slope {
    double east = 0.0;
    double south = 0.0;

    double Steepness() const { return std::sqrt(east * east + south * south); }

    /// Light from the north-west, 1 on level ground.
    double Light() const {
        return std::clamp(1.0 - 0.9 * (-east - south) / (1.0 + Steepness()), 0.45, 1.5);
    }
};

Slope SlopeAt(const SampleTerrain& terrain, int x, int y) {
    const auto height = [&](int column, int row) {
        return double{terrain.elevation[terrain.At(std::clamp(column, 0, kWidth - 1),
                                                   std::clamp(row, 0, kHeight - 1))]};
    };
    const double span = 2.0 * terrain.pixelSize;
    return {(height(x + 1, y) - height(x - 1, y)) / span,
            (height(x, y + 1) - height(x, y - 1)) / span};
}

LandCover CoverOf(double elevation, double steepness, double moisture,
                  double settlement) {
    if (elevation <= 0.0) {
        return LandCover::kWater;
    }
    if (elevation > 1050.0 + 300.0 * moisture) {
        return LandCover::kSnow;
    }
    if (steepness > 0.62 || elevation > 780.0 + 200.0 * moisture) {
        return LandCover::kBareRock;
    }
    if (elevation < 4.0) {
        return moisture > 0.5 ? LandCover::kWetland : LandCover::kBeach;
    }
    if (settlement > 0.62 && elevation < 130.0 && steepness < 0.3) {
        return LandCover::kBuiltUp;
    }
    if (moisture > 0.5) {
        return LandCover::kForest;
    }
    return elevation < 140.0 && steepness < 0.25 ? LandCover::kCropland
                                                 : LandCover::kGrassland;
}

std::array<double, 3> Ground(LandCover cover, int x, int y, double elevation) {
    switch (cover) {
        case LandCover::kWater: {
            const double depth = std::min(1.0, -elevation / 90.0);
            return {Mix(70.0, 14.0, depth), Mix(124.0, 44.0, depth),
                    Mix(138.0, 84.0, depth)};
        }
        case LandCover::kBeach:
            return {214.0, 200.0, 160.0};
        case LandCover::kWetland:
            return {84.0, 104.0, 76.0};
        case LandCover::kCropland: {
            // Fields of nine by six pixels, ploughed or green.
            const double field = GridNoise(x / 9, y / 6, 71);
            return {Mix(118.0, 190.0, field), Mix(134.0, 168.0, field),
                    Mix(66.0, 104.0, field)};
        }
        case LandCover::kGrassland:
            return {136.0, 148.0, 88.0};
        case LandCover::kForest:
            return {42.0, 74.0, 40.0};
        case LandCover::kBareRock:
            return {132.0, 124.0, 116.0};
        case LandCover::kSnow:
            return {232.0, 236.0, 242.0};
        case LandCover::kBuiltUp: {
            const double block = GridNoise(x / 2, y / 2, 83);
            return {Mix(128.0, 200.0, block), Mix(122.0, 186.0, block),
                    Mix(120.0, 178.0, block)};
        }
    }
    return {};
}

std::array<std::uint8_t, 3> Lit(const std::array<double, 3>& ground, double light) {
    std::array<std::uint8_t, 3> colour{};
    std::transform(ground.begin(), ground.end(), colour.begin(), [&](double component) {
        return static_cast<std::uint8_t>(std::clamp(component * light, 0.0, 255.0));
    });
    return colour;
}

}  // namespace

SampleTerrain MakeSampleTerrain() {
    SampleTerrain terrain;
    terrain.width = kWidth;
    terrain.height = kHeight;
    terrain.pixelSize = kPixelSize;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            // As surveyed: to the decimetre.
            terrain.elevation.push_back(
                static_cast<float>(std::round(Elevation(x, y) * 10.0) / 10.0));
        }
    }
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double elevation = terrain.elevation[terrain.At(x, y)];
            const Slope slope = SlopeAt(terrain, x, y);
            const LandCover cover =
                CoverOf(elevation, slope.Steepness(), Rough(x / 60.0, y / 60.0, 51),
                        Rough(x / 90.0, y / 90.0, 61));
            const bool isWater = cover == LandCover::kWater;
            const double grain =
                1.0 + (isWater ? 0.03 : 0.16) * (GridNoise(x, y, 97) - 0.5);
            terrain.cover.push_back(cover);
            terrain.appearance.push_back(Lit(Ground(cover, x, y, elevation),
                                             grain * (isWater ? 1.0 : slope.Light())));
        }
    }
    return terrain;
}

}  // namespace host
