#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "cairo/codecs/codecs.h"

namespace engine {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr UINT kCoreHeader = 12;
constexpr UINT kInfoHeader = 40;

enum Compression : UINT { Plain = 0, Runs8 = 1, Runs4 = 2, Masks = 3, AlphaMasks = 6 };

/// The little-endian numbers of a file; 0 past its end.
struct Numbers {
    FileBytes file;

    UINT At(std::size_t place, int bytes) const {
        UINT value = 0;
        for (int i = 0; i < bytes; ++i) {
            const std::size_t at = place + static_cast<std::size_t>(i);
            value |= (at < file.size ? UINT{file.data[at]} : 0U) << (8 * i);
        }
        return value;
    }
};

struct BmpHeader {
    INT width = 0;
    INT height = 0;
    bool upwards = true;
    UINT bits = 0;
    UINT compression = Plain;
    std::size_t pixels = 0;  ///< where they start
    UINT masks[4] = {0, 0, 0, 0};
    std::vector<ARGB> palette;
};

bool ReadBmpHeader(const Numbers& numbers, BmpHeader& header, Bitmap& resolution) {
    const UINT size = numbers.At(kFileHeader, 4);
    if (numbers.At(0, 2) != 0x4D42 || (size != kCoreHeader && size < kInfoHeader) ||
        size > 1024) {
        return false;
    }
    header.pixels = numbers.At(10, 4);
    std::size_t palette = kFileHeader + size;
    UINT colors = 0;
    if (size == kCoreHeader) {
        header.width = static_cast<INT>(numbers.At(18, 2));
        header.height = static_cast<INT>(numbers.At(20, 2));
        header.bits = numbers.At(24, 2);
    } else {
        header.width = static_cast<INT>(numbers.At(18, 4));
        const auto height = static_cast<INT>(numbers.At(22, 4));
        header.upwards = height > 0;
        header.height = height == INT32_MIN ? 0 : std::abs(height);
        header.bits = numbers.At(28, 2);
        header.compression = numbers.At(30, 4);
        const UINT x = numbers.At(38, 4);
        const UINT y = numbers.At(42, 4);
        if (x > 0 && y > 0 && x < 10000000 && y < 10000000) {
            resolution.xdpi = static_cast<REAL>(x * kMetresPerInch);
            resolution.ydpi = static_cast<REAL>(y * kMetresPerInch);
        }
        colors = numbers.At(46, 4);
    }
    const bool masked = header.compression == Masks || header.compression == AlphaMasks;
    if (masked) {
        const int count = header.compression == AlphaMasks || size >= 56 ? 4 : 3;
        for (int i = 0; i < count; ++i) {
            header.masks[i] = numbers.At(
                kFileHeader + kInfoHeader + 4 * static_cast<std::size_t>(i), 4);
        }
        palette += size == kInfoHeader ? 4 * static_cast<std::size_t>(count) : 0;
    } else if (header.bits == 16) {
        header.masks[0] = 0x7C00;
        header.masks[1] = 0x03E0;
        header.masks[2] = 0x001F;
    }
    if (header.bits <= 8) {
        const UINT most = 1U << header.bits;
        const UINT entry = size == kCoreHeader ? 3 : 4;
        colors = colors == 0 || colors > most ? most : colors;
        for (UINT i = 0; i < colors && palette < header.pixels; ++i, palette += entry) {
            header.palette.push_back(0xFF000000 | numbers.At(palette, 3));
        }
    }
    const bool known = header.compression == Plain
                           ? header.bits == 1 || header.bits == 4 || header.bits == 8 ||
                                 header.bits == 16 || header.bits == 24 ||
                                 header.bits == 32
                       : header.compression == Runs8 ? header.bits == 8
                       : header.compression == Runs4
                           ? header.bits == 4
                           : masked && (header.bits == 16 || header.bits == 32);
    return known && IsDecodable(header.width, header.height);
}

/// The masked part of a pixel, scaled to 8 bits.
UINT Part(UINT pixel, UINT mask) {
    if (mask == 0) {
        return 0;
    }
    int shift = 0;
    while ((mask >> shift & 1) == 0) {
        ++shift;
    }
    const std::uint64_t most = mask >> shift;
    return static_cast<UINT>(std::uint64_t{(pixel & mask) >> shift} * 255 / most);
}

bool ReadPlain(const Numbers& numbers, const BmpHeader& header, const Pixels& pixels) {
    const auto stride = static_cast<std::size_t>(
        (std::int64_t{header.width} * header.bits + 31) / 32 * 4);
    const auto height = static_cast<std::size_t>(header.height);
    if (header.pixels > numbers.file.size ||
        (numbers.file.size - header.pixels) / stride < height) {
        return false;
    }
    const bool masked =
        header.masks[0] != 0 || header.masks[1] != 0 || header.masks[2] != 0;
    for (INT y = 0; y < header.height; ++y) {
        const std::size_t row = header.pixels + static_cast<std::size_t>(y) * stride;
        const INT to = header.upwards ? header.height - 1 - y : y;
        auto* const colors = reinterpret_cast<ARGB*>(pixels.Row(to));
        if (header.bits <= 8) {
            ReadColors(header.bits == 1   ? PixelFormat1bppIndexed
                       : header.bits == 4 ? PixelFormat4bppIndexed
                                          : PixelFormat8bppIndexed,
                       header.palette, numbers.file.data + row, 0, header.width, colors);
            continue;
        }
        const std::size_t bytes = header.bits / 8;
        for (INT x = 0; x < header.width; ++x) {
            const UINT pixel = numbers.At(row + static_cast<std::size_t>(x) * bytes,
                                          static_cast<int>(bytes));
            colors[x] = !masked
                            ? 0xFF000000 | (pixel & 0xFFFFFF)
                            : (header.masks[3] == 0 ? 255U : Part(pixel, header.masks[3]))
                                      << 24 |
                                  Part(pixel, header.masks[0]) << 16 |
                                  Part(pixel, header.masks[1]) << 8 |
                                  Part(pixel, header.masks[2]);
        }
    }
    return true;
}

/// Pixels as runs of one colour, or of listed colours, with jumps between. Skipped pixels
/// have the palette's first colour.
bool ReadRuns(const Numbers& numbers, const BmpHeader& header, const Pixels& pixels) {
    const auto color = [&](UINT index) {
        return index < header.palette.size() ? header.palette[index] : 0xFF000000;
    };
    for (INT y = 0; y < header.height; ++y) {
        auto* const colors = reinterpret_cast<ARGB*>(pixels.Row(y));
        std::fill(colors, colors + header.width, color(0));
    }
    const bool halves = header.compression == Runs4;
    std::int64_t x = 0;
    std::int64_t y = 0;
    const auto put = [&](UINT byte, UINT i) {
        const UINT index = !halves ? byte : i % 2 == 0 ? byte >> 4 : byte & 15;
        if (x < header.width && y < header.height) {
            const auto row = static_cast<INT>(header.upwards ? header.height - 1 - y : y);
            reinterpret_cast<ARGB*>(pixels.Row(row))[x] = color(index);
        }
        ++x;
    };
    for (std::size_t at = header.pixels; at + 1 < numbers.file.size;) {
        const UINT count = numbers.At(at, 1);
        const UINT value = numbers.At(at + 1, 1);
        at += 2;
        if (count > 0) {
            for (UINT i = 0; i < count; ++i) {
                put(value, i);
            }
        } else if (value == 0) {  // the next row
            x = 0;
            ++y;
        } else if (value == 1) {  // the end
            return true;
        } else if (value == 2) {  // a jump
            x += numbers.At(at, 1);
            y += numbers.At(at + 1, 1);
            at += 2;
        } else {
            const std::size_t bytes = halves ? (value + 1) / 2 : value;
            for (UINT i = 0; i < value; ++i) {
                put(numbers.At(at + (halves ? i / 2 : i), 1), i);
            }
            at += (bytes + 1) / 2 * 2;
        }
        if (y >= header.height) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::unique_ptr<Bitmap> DecodeBmp(FileBytes file) {
    const Numbers numbers = {file};
    BmpHeader header;
    Bitmap resolution;
    if (!ReadBmpHeader(numbers, header, resolution)) {
        return nullptr;
    }
    const bool runs = header.compression == Runs8 || header.compression == Runs4;
    auto bitmap =
        MakeBitmap(header.width, header.height,
                   header.masks[3] != 0 ? PixelFormat32bppARGB : PixelFormat24bppRGB);
    if (bitmap == nullptr || !(runs ? ReadRuns(numbers, header, *bitmap->pixels)
                                    : ReadPlain(numbers, header, *bitmap->pixels))) {
        return nullptr;
    }
    bitmap->xdpi = resolution.xdpi;
    bitmap->ydpi = resolution.ydpi;
    return bitmap;
}

bool EncodeBmp(const Source& source, std::vector<BYTE>& file) {
    const bool alpha = source.HasAlpha();
    const UINT bytes = alpha ? 4 : 3;
    const auto width = static_cast<std::size_t>(source.Width());
    const std::size_t stride = (width * bytes + 3) / 4 * 4;
    const std::size_t size = stride * static_cast<std::size_t>(source.Height());
    if (size > 0x7FFFFFFF) {
        return false;
    }
    const auto append = [&](UINT value, int count) {
        for (int i = 0; i < count; ++i) {
            file.push_back(static_cast<BYTE>(value >> (8 * i)));
        }
    };
    const auto perMetre = [](REAL dpi) {
        return static_cast<UINT>(std::lround(dpi / kMetresPerInch));
    };
    constexpr UINT headers = kFileHeader + kInfoHeader;
    append(0x4D42, 2);
    append(static_cast<UINT>(headers + size), 4);
    append(0, 4);
    append(headers, 4);
    append(kInfoHeader, 4);
    append(static_cast<UINT>(source.Width()), 4);
    append(static_cast<UINT>(source.Height()), 4);
    append(1, 2);
    append(bytes * 8, 2);
    append(Plain, 4);
    append(static_cast<UINT>(size), 4);
    append(perMetre(source.Xdpi()), 4);
    append(perMetre(source.Ydpi()), 4);
    append(0, 4);
    append(0, 4);
    std::vector<ARGB> colors(width);
    std::vector<BYTE> row(stride);
    for (INT y = source.Height(); y-- > 0;) {
        source.Read(y, colors.data());
        WriteColors(alpha ? PixelFormat32bppARGB : PixelFormat24bppRGB, row.data(), 0,
                    source.Width(), colors.data());
        file.insert(file.end(), row.begin(), row.end());
    }
    return true;
}

}  // namespace engine
