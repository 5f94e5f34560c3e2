#include "hostile_files/png_checksums.h"

#include <zlib.h>

#include <cstddef>

namespace hostile_files {
namespace {

constexpr std::size_t kSignature = 8;
constexpr std::size_t kWord = 4;

std::size_t WordAt(const std::string& bytes, std::size_t at) {
    std::size_t word = 0;
    for (std::size_t i = at; i < at + kWord; ++i) {
        word = word << 8 | static_cast<unsigned char>(bytes[i]);
    }
    return word;
}

}  // namespace

std::string WithPngChecksums(std::string bytes) {
    std::size_t chunk = kSignature;
    // A chunk: the length of its data, its type, the data, a checksum of type and data.
    while (chunk + 3 * kWord <= bytes.size()) {
        const std::size_t covered = kWord + WordAt(bytes, chunk);
        if (covered > bytes.size() - chunk - 2 * kWord) {
            break;
        }
        const std::size_t sum = chunk + kWord + covered;
        const auto* const first = reinterpret_cast<const Bytef*>(&bytes[chunk + kWord]);
        const unsigned long value = crc32(0, first, static_cast<uInt>(covered));
        for (std::size_t i = 0; i < kWord; ++i) {
            bytes[sum + i] = static_cast<char>(value >> (24 - 8 * i));
        }
        chunk = sum + kWord;
    }
    return bytes;
}

}  // namespace hostile_files
