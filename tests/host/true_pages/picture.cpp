#include "true_pages/picture.h"

#include <gdal_priv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdlib>
#include <memory>

namespace true_pages {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kHarmonics = 9;

using Harmonics = std::vector<std::complex<double>>;

double Darkness(const Pixel& pixel) {
    return (765.0 - pixel.red - pixel.green - pixel.blue) / 765.0;
}

/// The ink's content of each angular frequency, what is far out counting most.
Harmonics HarmonicsOf(const Drawing& drawing) {
    const auto& [picture, given, x, y] = drawing;
    const Area area = picture.Clipped(given);
    Harmonics sums(kHarmonics);
    for (int row = area.top; row < area.bottom; ++row) {
        for (int column = area.left; column < area.right; ++column) {
            const double across = column + 0.5 - x;
            const double down = row + 0.5 - y;
            const double distance = std::hypot(across, down);
            const double ink = Darkness(picture.At(column, row)) * distance;
            const double angle = std::atan2(across, -down);  // clockwise from up
            for (int k = 1; k < kHarmonics; ++k) {
                sums[static_cast<std::size_t>(k)] += std::polar(ink, k * angle);
            }
        }
    }
    return sums;
}

double Degrees(double radians) { return radians * 180.0 / kPi; }

}  // namespace

Picture::Picture(const std::string& path) {
    GDALAllRegister();
    const std::unique_ptr<GDALDataset> file(GDALDataset::Open(
        path.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY, nullptr, nullptr, nullptr));
    if (file == nullptr || file->GetRasterCount() < 3) {
        ADD_FAILURE() << path << " is no picture";
        return;
    }
    m_width = file->GetRasterXSize();
    m_height = file->GetRasterYSize();
    m_rgb.resize(std::size_t{3} * static_cast<std::size_t>(m_width) *
                 static_cast<std::size_t>(m_height));
    EXPECT_EQ(
        file->RasterIO(GF_Read, 0, 0, m_width, m_height, m_rgb.data(), m_width, m_height,
                       GDT_Byte, 3, nullptr, 3, GSpacing{3} * m_width, 1, nullptr),
        CE_None);
}

Pixel Picture::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return {255, 255, 255};
    }
    const std::uint8_t* const pixel =
        m_rgb.data() +
        3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
             static_cast<std::size_t>(x));
    return {pixel[0], pixel[1], pixel[2]};
}

Area Picture::Clipped(const Area& area) const {
    return {std::max(area.left, 0), std::max(area.top, 0), std::min(area.right, m_width),
            std::min(area.bottom, m_height)};
}

bool IsNear(const Pixel& pixel, const Pixel& colour, int tolerance) {
    return std::abs(pixel.red - colour.red) <= tolerance &&
           std::abs(pixel.green - colour.green) <= tolerance &&
           std::abs(pixel.blue - colour.blue) <= tolerance;
}

Run LongestRun(const Picture& picture, const Area& area, const Pixel& colour,
               int tolerance) {
    const Area inside = picture.Clipped(area);
    Run longest;
    for (int y = inside.top; y < inside.bottom; ++y) {
        int first = inside.left;
        for (int x = inside.left; x <= inside.right; ++x) {
            if (x < inside.right && IsNear(picture.At(x, y), colour, tolerance)) {
                continue;
            }
            if (x - first > longest.Length()) {
                longest = {first, x, y};
            }
            first = x + 1;
        }
    }
    return longest;
}

namespace {

/// Whether all of a column between two rows is ink.
bool IsInked(const Picture& picture, int x, int from, int to, const Pixel& colour,
             int tolerance) {
    for (int y = std::min(from, to); y <= std::max(from, to); ++y) {
        if (!IsNear(picture.At(x, y), colour, tolerance)) {
            return false;
        }
    }
    return true;
}

}  // namespace

double BetweenEndTicks(const Picture& picture, const Area& area, const Run& line,
                       const Pixel& colour, int tolerance) {
    constexpr int kEnd = 1;     // pixels from the line's end
    constexpr int kNear = 20;   // pixels from the line
    constexpr int kWidest = 6;  // of a tick
    const Area inside = picture.Clipped(area);
    for (int y = inside.top; y < inside.bottom; ++y) {
        std::vector<Run> runs;
        for (int x = line.first - kEnd; x < line.end + kEnd; ++x) {
            if (!IsNear(picture.At(x, y), colour, tolerance)) {
                continue;
            }
            if (runs.empty() || runs.back().end != x) {
                runs.push_back({x, x, y});
            }
            runs.back().end = x + 1;
        }
        if (runs.size() < 2) {
            continue;
        }
        const Run& first = runs.front();
        const Run& last = runs.back();
        if (IsInked(picture, (first.first + first.end) / 2, y, line.y, colour,
                    tolerance) &&
            IsInked(picture, (last.first + last.end) / 2, y, line.y, colour, tolerance) &&
            std::abs(first.first - line.first) <= kEnd && first.Length() <= kWidest &&
            std::abs(last.end - line.end) <= kEnd && last.Length() <= kWidest &&
            std::abs(y - line.y) < kNear) {
            return (last.first + last.end - first.first - first.end) / 2.0;
        }
    }
    return 0.0;
}

Turn TurnBetween(const Drawing& unturned, const Drawing& turned) {
    const Harmonics before = HarmonicsOf(unturned);
    const Harmonics after = HarmonicsOf(turned);
    std::size_t k = 1;
    for (std::size_t i = 1; i < before.size(); ++i) {
        if (std::abs(before[i]) > std::abs(before[k])) {
            k = i;
        }
    }
    const auto order = static_cast<double>(k);
    return {Degrees(std::arg(after[k] * std::conj(before[k]))) / order, 360.0 / order};
}

}  // namespace true_pages
