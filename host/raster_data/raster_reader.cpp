#include "raster_data/raster_reader.h"

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>

#include "raster_data/cell_means.h"
#include "raster_data/raster_block.h"
#include "raster_data/raster_levels.h"

namespace host {

namespace {

// The samples that one call to GDAL reads of one band.
constexpr int kSamplesPerRead = 1 << 20;

// What one row of blocks may take of GDAL's cache, so that no block is read twice.
constexpr double kBlockRowBytes = 32.0 * (1 << 20);

// With more pixels, or longer rows, averaging every pixel would take too long.
constexpr std::int64_t kMostAveragedPixels = std::int64_t{1} << 32;
constexpr int kMostAveragedColumns = 1 << 22;

/// The columns read, split into panels so narrow that GDAL's cache holds one row of a
/// panel's blocks for all bands; one panel when blocks are as wide as the raster.
std::vector<int> PanelEdges(const Level& level, int width) {
    GDALRasterBand* const band = level.bands.front();
    int blockWidth = 0;
    int blockHeight = 0;
    band->GetBlockSize(&blockWidth, &blockHeight);
    if (blockWidth >= level.Width()) {
        return {0, width};
    }
    const int bandsInFile =
        band->GetDataset() == nullptr ? 1 : band->GetDataset()->GetRasterCount();
    const double bytes = 1.0 * level.Width() * blockHeight * bandsInFile *
                         GDALGetDataTypeSizeBytes(band->GetRasterDataType());
    const double panels = std::ceil(bytes / kBlockRowBytes);
    return CellEdges(width, static_cast<int>(std::clamp(panels, 1.0, 1.0 * width)));
}

template <class T>
class Reader {
public:
    Reader(Level level, int width, int height, const Progress& progress,
           const TakeRow<T>& take)
        : m_level(std::move(level)),
          m_width(width),
          m_height(height),
          m_panels(PanelEdges(m_level, width)),
          m_progress(progress),
          m_take(take),
          m_block(m_level) {}

    void Read(Sampling sampling) {
        for (m_panel = 0; m_panel + 1 < m_panels.size(); ++m_panel) {
            if (sampling == Sampling::kAverage) {
                AveragePanel();
            } else {
                SamplePanel();
            }
        }
    }

private:
    int First() const { return m_panels[m_panel]; }
    int Last() const { return m_panels[m_panel + 1]; }

    void SamplePanel() {
        const int columns = Last() - First();
        const double xStep = 1.0 * m_level.Width() / m_width;
        const double yStep = 1.0 * m_level.Height() / m_height;
        const int most = RowsPerRead(columns);
        for (int y = 0; y < m_height; y += most) {
            const int rows = std::min(most, m_height - y);
            m_block.Fill({First() * xStep, y * yStep, columns * xStep, rows * yStep},
                         columns, rows);
            for (int row = 0; row < rows; ++row) {
                const std::size_t at =
                    static_cast<std::size_t>(row) * static_cast<std::size_t>(columns);
                SampleRow<T> samples;
                samples.x = First();
                samples.y = y + row;
                samples.count = columns;
                samples.alpha = m_block.Alpha(at);
                for (std::size_t b = 0; b < m_block.Bands(); ++b) {
                    samples.bands[b] = m_block.Values(b, at);
                }
                m_take(samples);
            }
            Tell(1.0 * (y + rows) / m_height);
        }
    }

    void AveragePanel() {
        const std::vector<int> columnEdges = CellEdges(m_level.Width(), m_width);
        const std::vector<int> rowEdges = CellEdges(m_level.Height(), m_height);
        std::vector<int> edges(columnEdges.begin() + First(),
                               columnEdges.begin() + Last() + 1);
        const int x = edges.front();
        const int columns = edges.back() - x;
        for (int& edge : edges) {
            edge -= x;
        }
        CellRow<T> cells(m_block.Bands(), std::move(edges));
        int cellRow = 0;
        const int most = RowsPerRead(columns);
        for (int y = 0; y < m_level.Height(); y += most) {
            const int rows = std::min(most, m_level.Height() - y);
            m_block.Fill({1.0 * x, 1.0 * y, 1.0 * columns, 1.0 * rows}, columns, rows);
            for (int row = 0; row < rows; ++row) {
                cells.Add(m_block, static_cast<std::size_t>(row) *
                                       static_cast<std::size_t>(columns));
                if (y + row + 1 == rowEdges[static_cast<std::size_t>(cellRow) + 1]) {
                    m_take(cells.Finish(First(), cellRow, m_block.HasAlpha()));
                    ++cellRow;
                }
            }
            Tell(1.0 * (y + rows) / m_level.Height());
        }
    }

    static int RowsPerRead(int columns) { return std::max(1, kSamplesPerRead / columns); }

    void Tell(double panelDone) const {
        const double done = (static_cast<double>(m_panel) + panelDone) /
                            static_cast<double>(m_panels.size() - 1);
        if (m_progress && !m_progress(done)) {
            throw std::runtime_error("stopped");
        }
    }

    Level m_level;
    int m_width;
    int m_height;
    std::vector<int> m_panels;
    const Progress& m_progress;
    const TakeRow<T>& m_take;
    Block<T> m_block;
    std::size_t m_panel = 0;
};

bool AllOf(const std::vector<GDALRasterBand*>& bands,
           std::initializer_list<GDALDataType> types) {
    return std::all_of(bands.begin(), bands.end(), [&](GDALRasterBand* band) {
        return std::find(types.begin(), types.end(), band->GetRasterDataType()) !=
               types.end();
    });
}

}  // namespace

SampleType SampleTypeOf(const std::vector<GDALRasterBand*>& bands) {
    if (AllOf(bands, {GDT_Byte})) {
        return SampleType::Byte;
    }
    return AllOf(bands,
                 {GDT_Byte, GDT_UInt16, GDT_Int16, GDT_CInt16, GDT_Float32, GDT_CFloat32})
               ? SampleType::Float
               : SampleType::Double;
}

template <class T>
void ReadRows(const std::vector<GDALRasterBand*>& bands, int width, int height,
              Sampling sampling, const Progress& progress, const TakeRow<T>& take) {
    Level level = sampling == Sampling::kAverage ? SmallestLevel(bands, width, height)
                                                 : FullLevel(bands);
    const bool isMeanOfOne = level.Width() == width && level.Height() == height;
    if (isMeanOfOne || level.Width() > kMostAveragedColumns ||
        std::int64_t{level.Width()} * level.Height() > kMostAveragedPixels) {
        sampling = Sampling::kNearest;
    }
    Reader<T>(std::move(level), width, height, progress, take).Read(sampling);
}

template void ReadRows<std::uint8_t>(const std::vector<GDALRasterBand*>&, int, int,
                                     Sampling, const Progress&,
                                     const TakeRow<std::uint8_t>&);
template void ReadRows<float>(const std::vector<GDALRasterBand*>&, int, int, Sampling,
                              const Progress&, const TakeRow<float>&);
template void ReadRows<double>(const std::vector<GDALRasterBand*>&, int, int, Sampling,
                               const Progress&, const TakeRow<double>&);

}  // namespace host
