#pragma once

#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>
#include <vector>

#include "raster_data/raster_block.h"
#include "raster_data/raster_reader.h"

namespace host {

/// Where the cells of a decimated axis begin, in pixels of the file: every pixel belongs
/// to exactly one cell. 10 pixels in 4 cells begin at 0, 2, 5, 7, and end at 10.
inline std::vector<int> CellEdges(int pixels, int cells) {
    std::vector<int> edges;
    edges.reserve(static_cast<std::size_t>(cells) + 1);
    for (int i = 0; i <= cells; ++i) {
        edges.push_back(static_cast<int>(std::int64_t{i} * pixels / cells));
    }
    return edges;
}

/// The type in which the pixels of one row of a cell are summed; four million bytes fit.
template <class T>
using RowSum = std::conditional_t<std::is_same_v<T, std::uint8_t>, std::uint32_t, double>;

/// The sums of one row of cells, and their means.
///
/// GDAL averages too (GRIORA_Average), but otherwise: a cell with some pixels without
/// data comes out as opaque as a full one, a single NaN or infinite pixel spoils its
/// whole cell, and 32-bit integers and doubles are summed as floats, so that 1e9 and 1e9
/// + 0.5 average to 1e9. In memory it is as fast as this on bytes, and takes about a
/// third of the time on floats.
template <class T>
class CellRow {
public:
    /// @param edges where the cells begin, counted from the first pixel of a row
    CellRow(std::size_t bands, std::vector<int> edges)
        : m_edges(std::move(edges)),
          m_sums(bands, std::vector<double>(Count())),
          m_valid(Count()),
          m_alphaSum(Count()),
          m_means(bands, std::vector<T>(Count())),
          m_alpha(Count()) {}

    void Add(const Block<T>& block, std::size_t at) {
        ++m_rows;
        if (!block.HasAlpha()) {
            for (std::size_t b = 0; b < m_sums.size(); ++b) {
                AddAll(m_sums[b], block.Values(b, at));
            }
            return;
        }
        const std::uint8_t* const alpha = block.Alpha(at);
        for (std::size_t b = 0; b < m_sums.size(); ++b) {
            AddValid(m_sums[b], block.Values(b, at), alpha);
        }
        for (std::size_t c = 0; c < Count(); ++c) {
            for (int i = m_edges[c]; i < m_edges[c + 1]; ++i) {
                m_valid[c] += alpha[i] != 0 ? 1 : 0;
                m_alphaSum[c] += alpha[i];
            }
        }
    }

    /// The means of what has been added since the last call.
    SampleRow<T> Finish(int x, int y, bool hasAlpha) {
        SampleRow<T> row;
        row.x = x;
        row.y = y;
        row.count = static_cast<int>(Count());
        row.alpha = m_alpha.data();
        for (std::size_t c = 0; c < Count(); ++c) {
            const std::int64_t pixels =
                m_rows * (std::int64_t{m_edges[c + 1]} - m_edges[c]);
            const std::int64_t valid = hasAlpha ? m_valid[c] : pixels;
            m_alpha[c] =
                hasAlpha
                    ? static_cast<std::uint8_t>((m_alphaSum[c] + pixels / 2) / pixels)
                    : std::uint8_t{255};
            for (std::size_t b = 0; b < m_means.size(); ++b) {
                m_means[b][c] = Mean(m_sums[b][c], valid, m_alpha[c]);
            }
        }
        for (std::size_t b = 0; b < m_means.size(); ++b) {
            row.bands[b] = m_means[b].data();
            std::fill(m_sums[b].begin(), m_sums[b].end(), 0.0);
        }
        std::fill(m_valid.begin(), m_valid.end(), 0);
        std::fill(m_alphaSum.begin(), m_alphaSum.end(), 0);
        m_rows = 0;
        return row;
    }

private:
    std::size_t Count() const { return m_edges.size() - 1; }

    void AddAll(std::vector<double>& sums, const T* values) const {
        for (std::size_t c = 0; c < sums.size(); ++c) {
            RowSum<T> sum = 0;
            for (int i = m_edges[c]; i < m_edges[c + 1]; ++i) {
                sum += values[i];
            }
            sums[c] += sum;
        }
    }

    void AddValid(std::vector<double>& sums, const T* values,
                  const std::uint8_t* alpha) const {
        for (std::size_t c = 0; c < sums.size(); ++c) {
            RowSum<T> sum = 0;
            for (int i = m_edges[c]; i < m_edges[c + 1]; ++i) {
                sum += alpha[i] != 0 ? RowSum<T>{values[i]} : RowSum<T>{0};
            }
            sums[c] += sum;
        }
    }

    /// A sum beyond the range of a double has no mean: the cell is transparent then.
    static T Mean(double sum, std::int64_t valid, std::uint8_t& alpha) {
        const double mean = valid > 0 ? sum / static_cast<double>(valid) : 0.0;
        if (!std::isfinite(mean)) {
            alpha = 0;
            return 0;
        }
        return static_cast<T>(std::is_floating_point_v<T> ? mean : mean + 0.5);
    }

    std::vector<int> m_edges;
    std::vector<std::vector<double>> m_sums;
    std::vector<std::int64_t> m_valid;
    std::vector<std::int64_t> m_alphaSum;
    std::vector<std::vector<T>> m_means;
    std::vector<std::uint8_t> m_alpha;
    std::int64_t m_rows = 0;
};

}  // namespace host
