#pragma once

#include <filesystem>
#include <fstream>
#include <string>

/// A BMP file of 8 by 8 pixels, all of the same index into a palette of red shades.
inline void WriteIndexedBmp(const std::filesystem::path& file, unsigned bits,
                            unsigned colors, unsigned index) {
    std::string bytes = "BM";
    const auto append = [&bytes](unsigned value, int count) {
        for (int i = 0; i < count; ++i) {
            bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
        }
    };
    const unsigned headers = 14 + 40;
    for (const unsigned value : {0u, 0u, headers + 4 * colors, 40u, 8u, 8u}) {
        append(value, 4);
    }
    append(1, 2);
    append(bits, 2);
    for (const unsigned value : {0u, 0u, 2835u, 2835u, colors, 0u}) {
        append(value, 4);
    }
    for (unsigned i = 0; i < colors; ++i) {
        append((i + 1) << 16, 4);
    }
    const unsigned pair = bits == 4 ? index << 4 | index : index;
    bytes.append(8 * bits, static_cast<char>(pair));  // rows of 8 pixels, 4 or 8 bytes
    std::ofstream(file, std::ios::binary) << bytes;
}
