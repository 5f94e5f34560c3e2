#include "page/map/layered_pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace host {
namespace {

std::size_t OffsetOf(const PixelImage& image, int row, int column) {
    return 4 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(image.width) +
                static_cast<std::size_t>(column));
}

const std::uint8_t* PixelOf(const PixelImage& image, int row, int column) {
    return image.bgra.data() + OffsetOf(image, row, column);
}

std::uint8_t* PixelOf(PixelImage& image, int row, int column) {
    return image.bgra.data() + OffsetOf(image, row, column);
}

/// Lays one pixel over another; colours are not premultiplied by alpha.
void LayOver(const std::uint8_t* above, std::uint8_t* below) {
    const unsigned alpha = above[3];
    if (alpha == 255 || below[3] == 0) {
        std::copy_n(above, 4, below);
        return;
    }
    if (alpha == 0) {
        return;
    }
    const unsigned rest = below[3] * (255 - alpha) / 255;
    const unsigned total = alpha + rest;
    for (int channel = 0; channel < 3; ++channel) {
        below[channel] = static_cast<std::uint8_t>(
            (above[channel] * alpha + below[channel] * rest + total / 2) / total);
    }
    below[3] = static_cast<std::uint8_t>(total);
}

}  // namespace

bool IsBlank(const PixelImage& image) {
    for (std::size_t i = 3; i < image.bgra.size(); i += 4) {
        if (image.bgra[i] != 0) {
            return false;
        }
    }
    return true;
}

void MirrorRows(PixelImage& image) {
    for (int row = 0; row < image.height; ++row) {
        for (int left = 0, right = image.width - 1; left < right; ++left, --right) {
            std::uint8_t* const pixel = PixelOf(image, row, left);
            std::swap_ranges(pixel, pixel + 4, PixelOf(image, row, right));
        }
    }
}

void TurnUpsideDown(PixelImage& image) {
    for (int top = 0, bottom = image.height - 1; top < bottom; ++top, --bottom) {
        std::swap_ranges(PixelOf(image, top, 0), PixelOf(image, top, image.width),
                         PixelOf(image, bottom, 0));
    }
}

void LayOver(const PixelImage& above, int left, int top, PixelImage& below) {
    const int firstRow = std::max(0, -top);
    const int lastRow = std::min(above.height, below.height - top);
    const int firstColumn = std::max(0, -left);
    const int lastColumn = std::min(above.width, below.width - left);
    for (int row = firstRow; row < lastRow; ++row) {
        for (int column = firstColumn; column < lastColumn; ++column) {
            LayOver(PixelOf(above, row, column),
                    PixelOf(below, top + row, left + column));
        }
    }
}

PixelSpan PixelsBetween(double from, double to, int size) {
    // Far outside the picture, yet small enough that differences stay within 32 bits.
    static constexpr double kFarthest = 1.0e9;
    const auto edge = [size](double fraction) {
        return static_cast<int>(std::lround(
            std::clamp(fraction * static_cast<double>(size), -kFarthest, kFarthest)));
    };
    const int first = edge(from);
    return {first, std::max(1, edge(to) - first)};
}

}  // namespace host
