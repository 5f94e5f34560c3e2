#include "page/output/image_resolution.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "page/units.h"

namespace host {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::uint8_t ByteOf(std::uint32_t value, unsigned index) {
    return static_cast<std::uint8_t>(value >> (8 * index));
}

void RecordInJpeg(Bytes& file, double dpi) {
    constexpr std::size_t kDensity = 13;  // unit, across, down
    constexpr std::uint8_t kInch = 1;
    const auto density = static_cast<std::uint32_t>(std::lround(dpi));
    const std::uint8_t record[] = {kInch, ByteOf(density, 1), ByteOf(density, 0),
                                   ByteOf(density, 1), ByteOf(density, 0)};
    std::copy(std::begin(record), std::end(record), file.begin() + kDensity);
}

void RecordInBmp(Bytes& file, std::uint32_t pixelsPerMetre) {
    constexpr std::size_t kDensity = 38;  // across, down, little-endian
    for (unsigned i = 0; i < 8; ++i) {
        file[kDensity + i] = ByteOf(pixelsPerMetre, i % 4);
    }
}

bool BeginsWith(const Bytes& file, std::initializer_list<std::uint8_t> magic) {
    constexpr std::size_t kLongestHeader = 64;
    return file.size() >= kLongestHeader &&
           std::equal(magic.begin(), magic.end(), file.begin());
}

}  // namespace

void RecordResolution(std::vector<std::uint8_t>& file, OutputFormat format, double dpi) {
    const auto pixelsPerMetre =
        static_cast<std::uint32_t>(std::lround(dpi * kInchesPerMetre));
    if (format == OutputFormat::Jpeg &&
        BeginsWith(file, {0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F'})) {
        RecordInJpeg(file, dpi);
    } else if (format == OutputFormat::Bmp && BeginsWith(file, {'B', 'M'})) {
        RecordInBmp(file, pixelsPerMetre);
    }
}

}  // namespace host
