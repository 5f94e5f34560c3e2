#include "raster_data/raster_reader.h"

#include <gdal_priv.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "raster_data/gdal_session.h"

namespace {

using host::ReadRows;
using host::SampleRow;
using host::Sampling;

/// A band without a file that counts how often each of its blocks is read. Its value at
/// column x and row y is (x + 2 y) modulo 251.
class CountingBand : public GDALRasterBand {
public:
    CountingBand(GDALDataset* dataset, int band, int blockWidth, int blockHeight) {
        poDS = dataset;
        nBand = band;
        eDataType = GDT_Byte;
        nBlockXSize = blockWidth;
        nBlockYSize = blockHeight;
        nRasterXSize = dataset->GetRasterXSize();
        nRasterYSize = dataset->GetRasterYSize();
        m_columns = (nRasterXSize + blockWidth - 1) / blockWidth;
        const int rows = (nRasterYSize + blockHeight - 1) / blockHeight;
        reads.resize(static_cast<std::size_t>(m_columns) *
                     static_cast<std::size_t>(rows));
    }

    CPLErr IReadBlock(int column, int row, void* block) override {
        ++reads[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                static_cast<std::size_t>(column)];
        auto* value = static_cast<unsigned char*>(block);
        for (int y = 0; y < nBlockYSize; ++y) {
            for (int x = 0; x < nBlockXSize; ++x) {
                *value++ = static_cast<unsigned char>(
                    (column * nBlockXSize + x + 2 * (row * nBlockYSize + y)) % 251);
            }
        }
        return CE_None;
    }

    std::vector<int> reads;

private:
    int m_columns;
};

class CountingDataset : public GDALDataset {
public:
    CountingDataset(int width, int height, int bandCount, int blockWidth,
                    int blockHeight) {
        host::StartGdal();
        nRasterXSize = width;
        nRasterYSize = height;
        for (int band = 1; band <= bandCount; ++band) {
            SetBand(band, new CountingBand(this, band, blockWidth, blockHeight));
        }
    }

    std::vector<GDALRasterBand*> Bands(int count) {
        std::vector<GDALRasterBand*> bands;
        for (int band = 1; band <= count; ++band) {
            bands.push_back(GetRasterBand(band));
        }
        return bands;
    }

    const std::vector<int>& Reads(int band) {
        return static_cast<CountingBand*>(GetRasterBand(band))->reads;
    }
};

/// The mean, as a byte, of the counting band's cell of a decimated raster.
int MeanOfCell(int column, int row, int width, int height, int rasterWidth,
               int rasterHeight) {
    const auto edge = [](int i, int cells, int pixels) {
        return static_cast<int>(std::int64_t{i} * pixels / cells);
    };
    std::int64_t sum = 0;
    std::int64_t count = 0;
    for (int y = edge(row, height, rasterHeight); y < edge(row + 1, height, rasterHeight);
         ++y) {
        for (int x = edge(column, width, rasterWidth);
             x < edge(column + 1, width, rasterWidth); ++x) {
            sum += (x + 2 * y) % 251;
            ++count;
        }
    }
    return static_cast<int>((2 * sum + count) / (2 * count));
}

const struct {
    const char* name;
    int width, height, bands, blockWidth, blockHeight;
    int drawnWidth, drawnHeight;
    double mostReads;  ///< of a block, on average
} kPasses[] = {
    {"rows of pixels", 5000, 3000, 3, 5000, 1, 300, 200, 1.0},
    {"strips", 5000, 3000, 3, 5000, 16, 300, 200, 1.0},
    {"tiles", 5000, 3000, 3, 256, 256, 300, 200, 1.0},
    {"large tiles", 5000, 3000, 4, 1024, 1024, 77, 50, 1.0},
    {"one block", 1500, 1500, 3, 1500, 1500, 100, 100, 1.0},
    {"not smaller", 700, 500, 3, 256, 256, 700, 500, 1.0},
    // A row of these tiles, of all eight bands, is four times GDAL's cache: it is read in
    // panels, and only the tiles that two panels share are read twice.
    {"tiles wider than the cache", 64000, 1024, 8, 512, 512, 500, 8, 1.2},
};

TEST(ReadRows, ReadsEveryBlockOnceAndTakesTheMeanOfAllPixels) {
    for (const auto& row : kPasses) {
        SCOPED_TRACE(row.name);
        CountingDataset dataset(row.width, row.height, row.bands, row.blockWidth,
                                row.blockHeight);
        std::vector<int> covered(static_cast<std::size_t>(row.drawnHeight));
        int wrong = 0;
        ReadRows<std::uint8_t>(
            dataset.Bands(3), row.drawnWidth, row.drawnHeight, Sampling::kAverage, {},
            [&](const SampleRow<std::uint8_t>& samples) {
                covered[static_cast<std::size_t>(samples.y)] += samples.count;
                // Every 37th cell; all would take longer than reading them.
                for (int i = samples.y % 37; i < samples.count; i += 37) {
                    const int mean = MeanOfCell(samples.x + i, samples.y, row.drawnWidth,
                                                row.drawnHeight, row.width, row.height);
                    wrong +=
                        samples.bands[2][i] == mean && samples.alpha[i] == 255 ? 0 : 1;
                }
            });
        EXPECT_EQ(wrong, 0);
        EXPECT_EQ(covered, std::vector<int>(covered.size(), row.drawnWidth));
        for (int band = 1; band <= 3; ++band) {
            const std::vector<int>& reads = dataset.Reads(band);
            EXPECT_EQ(*std::min_element(reads.begin(), reads.end()), 1);
            EXPECT_LE(std::accumulate(reads.begin(), reads.end(), 0.0) /
                          static_cast<double>(reads.size()),
                      row.mostReads);
        }
    }
}

TEST(ReadRows, NearestTakesThePixelAtTheCentre) {
    CountingDataset dataset(700, 500, 1, 256, 256);
    int wrong = 0;
    ReadRows<double>(dataset.Bands(1), 90, 70, Sampling::kNearest, {},
                     [&](const SampleRow<double>& samples) {
                         for (int i = 0; i < samples.count; ++i) {
                             const int x = (2 * (samples.x + i) + 1) * 700 / (2 * 90);
                             const int y = (2 * samples.y + 1) * 500 / (2 * 70);
                             wrong += samples.bands[0][i] == (x + 2 * y) % 251 ? 0 : 1;
                         }
                     });
    EXPECT_EQ(wrong, 0);
}

TEST(ReadRows, OfMorePixelsThanCanBeReadTakesASample) {
    // Four million million pixels.
    CountingDataset dataset(2000000, 2000000, 3, 512, 512);
    int rows = 0;
    ReadRows<std::uint8_t>(
        dataset.Bands(3), 5, 4, Sampling::kAverage, {},
        [&](const SampleRow<std::uint8_t>& samples) { rows += samples.count; });
    EXPECT_EQ(rows, 20);
}

}  // namespace
