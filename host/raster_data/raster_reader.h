#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "raster_data/gdal_raster.h"

class GDALRasterBand;

namespace host {

/// How pixels of the file become one that is read.
enum class Sampling {
    kNearest,  ///< the file's pixel at the centre; for class codes, which have no mean
    kAverage,  ///< the mean of all that have a value
};

/// At most this many bands are read together: red, green and blue.
constexpr std::size_t kMostBands = 3;

/// The types that values are read as.
enum class SampleType { Byte, Float, Double };

/// The first of them that holds every value of the bands exactly.
SampleType SampleTypeOf(const std::vector<GDALRasterBand*>& bands);

/// What `work` returns, given a zero of that type.
template <class Work>
auto WithSampleType(const std::vector<GDALRasterBand*>& bands, Work work) {
    switch (SampleTypeOf(bands)) {
        case SampleType::Byte:
            return work(std::uint8_t{0});
        case SampleType::Float:
            return work(0.0f);
        case SampleType::Double:
            break;
    }
    return work(0.0);
}

/// A piece of one row that is read. The pointers are valid during the call that receives
/// it.
template <class T>
struct SampleRow {
    int x = 0;                                 ///< first column
    int y = 0;                                 ///< row, from the top
    int count = 0;                             ///< columns
    std::array<const T*, kMostBands> bands{};  ///< null beyond the bands asked for

    /// 255 where every band has a value, 0 where one has none (no-data, masked out,
    /// transparent, NaN or infinite), between the two at edges and by the alpha band.
    const std::uint8_t* alpha = nullptr;
};

template <class T>
using TakeRow = std::function<void(const SampleRow<T>&)>;

/// Reads one to three bands of a dataset, all of one size, at `width` x `height`, both at
/// most the bands' own: each row in one piece or in several, from the top in each column.
///
/// Memory follows the width of the file, not its size. Averages are taken from the
/// smallest overview that is large enough, else in one pass over the file; rasters of
/// more than four thousand million pixels are sampled instead. Values of another type are
/// converted to T, complex ones by their real part. T is std::uint8_t, float or double.
///
/// Throws std::runtime_error when the file cannot be read or `progress` returns false.
template <class T>
void ReadRows(const std::vector<GDALRasterBand*>& bands, int width, int height,
              Sampling sampling, const Progress& progress, const TakeRow<T>& take);

}  // namespace host
