#pragma once

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <vector>

#include "raster_data/raster_levels.h"

namespace host {

/// The part of a raster to read, in its pixels; fractional when decimated.
struct Window {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// Reads a window at `columns` x `rows` by nearest neighbour, from an overview where one
/// is fine enough. Throws std::runtime_error with GDAL's reason.
void ReadWindow(GDALRasterBand* band, const Window& window, int columns, int rows,
                void* to, GDALDataType type);

template <class T>
constexpr GDALDataType kGdalType = std::is_same_v<T, std::uint8_t> ? GDT_Byte
                                   : std::is_same_v<T, float>      ? GDT_Float32
                                                                   : GDT_Float64;

/// One panel's pixels for some rows: a plane for each band, and which pixels count.
template <class T>
class Block {
public:
    explicit Block(const Level& level)
        : m_level(level),
          m_planes(level.bands.size()),
          m_hasAlpha(!level.masks.empty() || std::is_floating_point_v<T>) {}

    void Fill(const Window& window, int columns, int rows) {
        const std::size_t size =
            static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
        for (std::size_t b = 0; b < m_planes.size(); ++b) {
            m_planes[b].resize(size);
            ReadWindow(m_level.bands[b], window, columns, rows, m_planes[b].data(),
                       kGdalType<T>);
        }
        if (m_hasAlpha || m_alpha.size() < size) {
            m_alpha.assign(size, 255);
        }
        for (GDALRasterBand* mask : m_level.masks) {
            m_mask.resize(size);
            ReadWindow(mask, window, columns, rows, m_mask.data(), GDT_Byte);
            std::transform(m_alpha.begin(), m_alpha.end(), m_mask.begin(),
                           m_alpha.begin(),
                           [](std::uint8_t a, std::uint8_t m) { return std::min(a, m); });
        }
        if constexpr (std::is_floating_point_v<T>) {
            for (const std::vector<T>& plane : m_planes) {
                for (std::size_t i = 0; i < size; ++i) {
                    m_alpha[i] = std::isfinite(plane[i]) ? m_alpha[i] : std::uint8_t{0};
                }
            }
        }
    }

    std::size_t Bands() const { return m_planes.size(); }
    const T* Values(std::size_t band, std::size_t at) const {
        return m_planes[band].data() + at;
    }
    const std::uint8_t* Alpha(std::size_t at) const { return m_alpha.data() + at; }

    /// False when every pixel counts in full.
    bool HasAlpha() const { return m_hasAlpha; }

private:
    const Level& m_level;
    std::vector<std::vector<T>> m_planes;
    std::vector<std::uint8_t> m_alpha;
    std::vector<std::uint8_t> m_mask;
    bool m_hasAlpha;
};

}  // namespace host
