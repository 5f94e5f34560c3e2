#include "raster_data/raster_picture.h"

#include <gdal_priv.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <set>

#include "raster_data/raster_reader.h"

namespace host {

namespace {

// Integer codes up to here are looked up, other values searched for.
constexpr int kCodes = 1 << 16;

constexpr std::size_t kMostClasses = 10'000;

// The order of a pixel's components in memory.
constexpr std::size_t kBlue = 0;
constexpr std::size_t kGreen = 1;
constexpr std::size_t kRed = 2;
constexpr std::size_t kAlpha = 3;
constexpr std::size_t kPixelBytes = 4;

PixelImage MakeImage(int width, int height) {
    PixelImage image;
    image.width = width;
    image.height = height;
    image.bgra.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                      kPixelBytes);
    return image;
}

std::size_t Offset(int width, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
}

/// Which of `pixels` contains the centre of one of `drawn`.
int NearestOf(int index, int drawn, int pixels) {
    return static_cast<int>((2 * std::int64_t{index} + 1) * pixels /
                            (2 * std::int64_t{drawn}));
}

/// The shades of a band's values.
template <class T>
class Shades {
public:
    explicit Shades(const ShadeRange& range) : m_range(range) {}
    std::uint8_t Of(T value) const { return m_range.Shade(static_cast<double>(value)); }

private:
    ShadeRange m_range;
};

/// For bytes, worked out beforehand.
template <>
class Shades<std::uint8_t> {
public:
    explicit Shades(const ShadeRange& range) {
        for (std::size_t value = 0; value < m_shades.size(); ++value) {
            m_shades[value] = range.Shade(static_cast<double>(value));
        }
    }
    std::uint8_t Of(std::uint8_t value) const { return m_shades[value]; }

private:
    std::array<std::uint8_t, 256> m_shades{};
};

template <class T>
PixelImage DrawShadesAs(const std::vector<GDALRasterBand*>& bands,
                        const std::vector<ShadeRange>& ranges, int width, int height,
                        const Progress& progress) {
    constexpr std::array<std::size_t, 3> kChannels{kRed, kGreen, kBlue};
    const std::vector<Shades<T>> shades(ranges.begin(), ranges.end());
    PixelImage image = MakeImage(width, height);
    ReadRows<T>(bands, width, height, Sampling::kAverage, progress,
                [&](const SampleRow<T>& row) {
                    std::uint8_t* pixel =
                        image.bgra.data() + Offset(width, row.x, row.y) * kPixelBytes;
                    for (int i = 0; i < row.count; ++i, pixel += kPixelBytes) {
                        if (row.alpha[i] == 0) {
                            continue;
                        }
                        for (std::size_t b = 0; b < bands.size(); ++b) {
                            pixel[kChannels[b]] = shades[b].Of(row.bands[b][i]);
                        }
                        if (bands.size() == 1) {
                            pixel[kGreen] = pixel[kBlue] = pixel[kRed];
                        }
                        pixel[kAlpha] = row.alpha[i];
                    }
                });
    return image;
}

/// The code of a value that is looked up in a table, else -1.
int Code(double value) {
    return value >= 0.0 && value < kCodes && value == std::floor(value)
               ? static_cast<int>(value)
               : -1;
}

/// The classes of the values seen; for a class of many values that are not codes, only
/// the lowest.
class SeenClasses {
public:
    explicit SeenClasses(const RasterClasses& classes)
        : m_classes(classes), m_codes(kCodes) {}

    void Add(double value) {
        if (const int code = Code(value); code >= 0) {
            m_codes[static_cast<std::size_t>(code)] = true;
            return;
        }
        const double classValue = m_classes.ClassOf(value);
        if (m_others.size() >= kMostClasses && classValue > *m_others.rbegin()) {
            return;
        }
        m_others.insert(classValue);
        if (m_others.size() > kMostClasses) {
            m_others.erase(std::prev(m_others.end()));
        }
    }

    /// In ascending order.
    std::set<double> Values() const {
        std::set<double> values = m_others;
        for (int code = 0; code < kCodes; ++code) {
            if (m_codes[static_cast<std::size_t>(code)]) {
                values.insert(m_classes.ClassOf(code));
            }
        }
        return values;
    }

private:
    const RasterClasses& m_classes;
    std::vector<bool> m_codes;
    std::set<double> m_others;
};

/// The colour of each value; the classes are asked once for each code.
class ClassColours {
public:
    explicit ClassColours(const RasterClasses& classes)
        : m_classes(classes), m_known(kCodes), m_colours(kCodes) {}

    ClassColour Of(double value) {
        const int code = Code(value);
        if (code < 0) {
            return m_classes.Colour(m_classes.ClassOf(value));
        }
        const auto at = static_cast<std::size_t>(code);
        if (!m_known[at]) {
            m_colours[at] = m_classes.Colour(m_classes.ClassOf(value));
            m_known[at] = true;
        }
        return m_colours[at];
    }

private:
    const RasterClasses& m_classes;
    std::vector<bool> m_known;
    std::vector<ClassColour> m_colours;
};

}  // namespace

PixelImage DrawShades(const std::vector<GDALRasterBand*>& bands,
                      const std::vector<ShadeRange>& ranges, int width, int height,
                      const Progress& progress) {
    return WithSampleType(bands, [&](auto type) {
        return DrawShadesAs<decltype(type)>(bands, ranges, width, height, progress);
    });
}

PixelImage DrawClasses(GDALRasterBand* band, const RasterClasses& classes, int width,
                       int height, const Progress& progress) {
    PixelImage image = MakeImage(width, height);
    ClassColours colours(classes);
    ReadRows<double>({band}, width, height, Sampling::kNearest, progress,
                     [&](const SampleRow<double>& row) {
                         std::uint8_t* pixel = image.bgra.data() +
                                               Offset(width, row.x, row.y) * kPixelBytes;
                         for (int i = 0; i < row.count; ++i, pixel += kPixelBytes) {
                             if (row.alpha[i] == 0) {
                                 continue;
                             }
                             const ClassColour colour = colours.Of(row.bands[0][i]);
                             pixel[kBlue] = colour.blue;
                             pixel[kGreen] = colour.green;
                             pixel[kRed] = colour.red;
                             pixel[kAlpha] = std::min(colour.alpha, row.alpha[i]);
                         }
                     });
    return image;
}

std::unique_ptr<ClassificationTable> OccurringClasses(GDALRasterBand* band,
                                                      const RasterClasses& classes) {
    const LookedAt size(*band, kCountedSide);
    SeenClasses seen(classes);
    ReadRows<double>({band}, size.width, size.height, Sampling::kNearest, {},
                     [&](const SampleRow<double>& row) {
                         for (int i = 0; i < row.count; ++i) {
                             if (row.alpha[i] != 0) {
                                 seen.Add(row.bands[0][i]);
                             }
                         }
                     });

    auto table = std::make_unique<ClassificationTable>();
    for (const double value : seen.Values()) {
        const ClassColour colour = classes.Colour(value);
        if (colour.alpha != 0 &&
            table->GetClassesCount() < static_cast<int>(kMostClasses)) {
            table->Add(classes.Name(value), colour);
        }
    }
    return table;
}

PixelImage Enlarge(PixelImage image, int width, int height) {
    if (width == image.width && height == image.height) {
        return image;
    }
    PixelImage large = MakeImage(width, height);
    std::vector<std::size_t> columns;
    columns.reserve(static_cast<std::size_t>(width));
    for (int x = 0; x < width; ++x) {
        columns.push_back(static_cast<std::size_t>(NearestOf(x, width, image.width)));
    }
    std::uint8_t* to = large.bgra.data();
    for (int y = 0; y < height; ++y) {
        const int row = NearestOf(y, height, image.height);
        const std::uint8_t* const from =
            image.bgra.data() + Offset(image.width, 0, row) * kPixelBytes;
        for (const std::size_t column : columns) {
            to = std::copy_n(from + column * kPixelBytes, kPixelBytes, to);
        }
    }
    return large;
}

}  // namespace host
