#include "true_pages/picture.h"

#include <gdal_priv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace true_pages {
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

}  // namespace true_pages
