#include "raster_data/raster_stretch.h"

#include <gdal_priv.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include "raster_data/raster_reader.h"

namespace host {
namespace {

// Percentiles need all values in memory.
constexpr int kRankedSide = 1 << 11;

// More would take too long.
constexpr int kMostSide = 1 << 16;

/// Summarises a band's values, one after the other.
class Summary {
public:
    void Add(double value) {
        m_first = m_count == 0.0 ? value : m_first;
        m_least = std::min(m_least, value);
        m_most = std::max(m_most, value);
        // Relative to the first value, so that small differences between large numbers
        // are not lost.
        const double difference = value - m_first;
        m_sum += difference;
        m_squares += difference * difference;
        m_count += 1.0;
    }

    std::optional<ShadeRange> Of(const Stretch& stretch) const {
        if (m_count == 0.0) {
            return std::nullopt;
        }
        const double mean = m_sum / m_count;
        const double variance = m_squares / m_count - mean * mean;
        const double reach = stretch.deviations * std::sqrt(std::max(variance, 0.0));
        // Squares beyond the range of a double reach everywhere.
        if (stretch.kind != Stretch::Kind::Deviations || !std::isfinite(reach)) {
            return ShadeRange{m_least, m_most};
        }
        return ShadeRange{std::max(m_least, m_first + mean - reach),
                          std::min(m_most, m_first + mean + reach)};
    }

private:
    double m_first = 0.0;
    double m_least = std::numeric_limits<double>::infinity();
    double m_most = -std::numeric_limits<double>::infinity();
    double m_sum = 0.0;
    double m_squares = 0.0;
    double m_count = 0.0;
};

/// Passes each pixel that has a value in all bands to `add(band, value)`.
template <class T, class Add>
void ReadValues(const std::vector<GDALRasterBand*>& bands, const LookedAt& size,
                const Progress& progress, Add add) {
    ReadRows<T>(bands, size.width, size.height, Sampling::kNearest, progress,
                [&](const SampleRow<T>& row) {
                    for (std::size_t b = 0; b < bands.size(); ++b) {
                        for (int i = 0; i < row.count; ++i) {
                            if (row.alpha[i] != 0) {
                                add(b, row.bands[b][i]);
                            }
                        }
                    }
                });
}

std::vector<std::optional<ShadeRange>> CountedRanges(
    const std::vector<GDALRasterBand*>& bands, const Stretch& stretch, int mostASide,
    const Progress& progress) {
    std::vector<Summary> summaries(bands.size());
    ReadValues<double>(
        bands, LookedAt(*bands.front(), mostASide), progress,
        [&](std::size_t band, double value) { summaries[band].Add(value); });
    std::vector<std::optional<ShadeRange>> ranges;
    ranges.reserve(bands.size());
    for (const Summary& summary : summaries) {
        ranges.push_back(summary.Of(stretch));
    }
    return ranges;
}

/// The value that a share of the values do not exceed, 2 % of 101 being the third;
/// reorders the values.
template <class T>
double Ranked(std::vector<T>& values, double percent) {
    const auto at =
        values.begin() + static_cast<std::ptrdiff_t>(std::llround(
                             percent / 100.0 * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), at, values.end());
    return static_cast<double>(*at);
}

/// Reorders the values. Where nearly all are one value, the others can still be told
/// apart.
template <class T>
std::optional<ShadeRange> RankedRange(std::vector<T>& values, const Stretch& stretch) {
    if (values.empty()) {
        return std::nullopt;
    }
    const ShadeRange range = {Ranked(values, stretch.low), Ranked(values, stretch.high)};
    if (range.black < range.white) {
        return range;
    }
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return ShadeRange{static_cast<double>(*least), static_cast<double>(*most)};
}

template <class T>
std::vector<std::optional<ShadeRange>> RankedRanges(
    const std::vector<GDALRasterBand*>& bands, const Stretch& stretch,
    const Progress& progress) {
    std::vector<std::vector<T>> values(bands.size());
    ReadValues<T>(bands, LookedAt(*bands.front(), kRankedSide), progress,
                  [&](std::size_t band, T value) { values[band].push_back(value); });
    std::vector<std::optional<ShadeRange>> ranges;
    ranges.reserve(bands.size());
    for (std::vector<T>& ofBand : values) {
        ranges.push_back(RankedRange(ofBand, stretch));
    }
    return ranges;
}

}  // namespace

std::uint8_t ShadeRange::Shade(double value) const {
    if (!(black < white)) {
        return 128;
    }
    // Halved, since the difference of two doubles may overflow.
    const double t = (value / 2 - black / 2) / (white / 2 - black / 2);
    if (!(t > 0.0)) {
        return 0;
    }
    return t < 1.0 ? static_cast<std::uint8_t>(std::lround(t * 255.0))
                   : std::uint8_t{255};
}

LookedAt::LookedAt(GDALRasterBand& band, int most)
    : width(band.GetXSize()), height(band.GetYSize()) {
    if (std::int64_t{width} * height > std::int64_t{most} * most) {
        width = std::min(width, most);
        height = std::min(height, most);
    }
}

std::vector<std::optional<ShadeRange>> RangesOf(const std::vector<GDALRasterBand*>& bands,
                                                const Stretch& stretch,
                                                const Progress& progress) {
    using Ranges = std::vector<std::optional<ShadeRange>>;
    if (stretch.kind == Stretch::Kind::None) {
        return Ranges(bands.size(), ShadeRange{0.0, 255.0});
    }
    const Ranges ranges = stretch.kind == Stretch::Kind::Percent
                              ? WithSampleType(bands,
                                               [&](auto type) {
                                                   return RankedRanges<decltype(type)>(
                                                       bands, stretch, progress);
                                               })
                              : CountedRanges(bands, stretch, kCountedSide, progress);
    // A sample may hit nothing but no-data.
    return ranges.front() ? ranges : CountedRanges(bands, stretch, kMostSide, progress);
}

}  // namespace host
