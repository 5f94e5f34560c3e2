#include "page/image_resolution.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace host {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr double kInchesPerMetre = 1.0 / 0.0254;

std::uint8_t ByteOf(std::uint32_t value, unsigned index) {
    return static_cast<std::uint8_t>(value >> (8 * index));
}

std::array<std::uint8_t, 4> BigEndian(std::uint32_t value) {
    return {ByteOf(value, 3), ByteOf(value, 2), ByteOf(value, 1), ByteOf(value, 0)};
}

/// The checksum that ends each PNG chunk (CRC-32, reflected).
std::uint32_t Checksum(const std::uint8_t* begin, const std::uint8_t* end) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t* byte = begin; byte != end; ++byte) {
        sum ^= *byte;
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~sum;
}

void RecordInPng(Bytes& file, std::uint32_t pixelsPerMetre) {
    constexpr std::size_t kSignatureAndHeader = 8 + 25;
    constexpr std::uint8_t kMetre = 1;
    const std::array<std::uint8_t, 4> density = BigEndian(pixelsPerMetre);
    Bytes chunk = {0, 0, 0, 9, 'p', 'H', 'Y', 's'};
    chunk.insert(chunk.end(), density.begin(), density.end());
    chunk.insert(chunk.end(), density.begin(), density.end());
    chunk.push_back(kMetre);
    const std::array<std::uint8_t, 4> sum =
        BigEndian(Checksum(chunk.data() + 4, chunk.data() + chunk.size()));
    chunk.insert(chunk.end(), sum.begin(), sum.end());
    file.insert(file.begin() + kSignatureAndHeader, chunk.begin(), chunk.end());
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

void RecordResolution(std::vector<std::uint8_t>& file, ImageFormat format, double dpi) {
    const auto pixelsPerMetre =
        static_cast<std::uint32_t>(std::lround(dpi * kInchesPerMetre));
    if (format == ImageFormat::Png && BeginsWith(file, {0x89, 'P', 'N', 'G'})) {
        RecordInPng(file, pixelsPerMetre);
    } else if (format == ImageFormat::Jpeg &&
               BeginsWith(file, {0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F'})) {
        RecordInJpeg(file, dpi);
    } else if (format == ImageFormat::Bmp && BeginsWith(file, {'B', 'M'})) {
        RecordInBmp(file, pixelsPerMetre);
    }
}

}  // namespace host
