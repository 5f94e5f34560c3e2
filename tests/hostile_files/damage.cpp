#include "hostile_files/damage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace hostile_files {
namespace {

/// Headers are short and matter most.
constexpr std::size_t kHeader = 512;

std::size_t UpTo(std::size_t highest, std::mt19937& random) {
    return std::uniform_int_distribution<std::size_t>(0, highest)(random);
}

template <typename Choices>
auto OneOf(const Choices& choices, std::mt19937& random) {
    return choices[UpTo(std::size(choices) - 1, random)];
}

/// A position in the file, every other time in its header.
std::size_t Place(const std::string& bytes, std::mt19937& random) {
    const std::size_t last = bytes.size() - 1;
    return UpTo(UpTo(1, random) == 0 ? std::min(last, kHeader) : last, random);
}

void FlipBits(std::string& bytes, std::mt19937& random) {
    for (std::size_t count = 1 + UpTo(15, random); count > 0; --count) {
        char& byte = bytes[Place(bytes, random)];
        byte = static_cast<char>(byte ^ (1 << UpTo(7, random)));
    }
}

void Overwrite(std::string& bytes, std::mt19937& random) {
    const std::size_t from = Place(bytes, random);
    const std::size_t length = std::min(bytes.size() - from, 1 + UpTo(63, random));
    const int filling = OneOf(std::array{0x00, 0xFF, -1}, random);
    for (std::size_t i = from; i < from + length; ++i) {
        bytes[i] = static_cast<char>(filling < 0 ? UpTo(255, random)
                                                 : static_cast<std::size_t>(filling));
    }
}

void ReplaceField(std::string& bytes, std::mt19937& random) {
    constexpr std::array<std::uint32_t, 9> kValues = {
        0, 1, 2, 0x7F, 0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
    const std::uint32_t value = OneOf(kValues, random);
    const std::size_t width = OneOf(std::array<std::size_t, 3>{1, 2, 4}, random);
    const bool bigEndian = UpTo(1, random) == 0;
    const std::size_t from = Place(bytes, random);
    for (std::size_t i = 0; i < width && from + i < bytes.size(); ++i) {
        const std::size_t shift = 8 * (bigEndian ? width - 1 - i : i);
        bytes[from + i] = static_cast<char>(value >> shift);
    }
}

void Truncate(std::string& bytes, std::mt19937& random) {
    bytes.resize(Place(bytes, random));
}

void Splice(std::string& bytes, std::mt19937& random) {
    const std::string part = bytes.substr(Place(bytes, random), 1 + UpTo(255, random));
    const std::size_t at = Place(bytes, random);
    if (UpTo(1, random) == 0) {
        bytes.insert(at, part);
    } else {
        bytes.replace(at, part.size(), part);
    }
}

void ReplaceNumber(std::string& text, std::mt19937& random) {
    static const std::vector<std::string> kValues = {"0",
                                                     "-1",
                                                     "1",
                                                     "nan",
                                                     "inf",
                                                     "-inf",
                                                     "2147483647",
                                                     "2147483648",
                                                     "4294967296",
                                                     "1e30",
                                                     "1e-30",
                                                     "1e308",
                                                     "99999999999999999999",
                                                     "",
                                                     "0x10",
                                                     "1,5"};
    const std::string digits = "0123456789";
    const std::size_t from = text.find_first_of(digits, Place(text, random));
    if (from == std::string::npos) {
        return;
    }
    const std::size_t to = text.find_first_not_of(digits + ".", from);
    text.replace(from, (to == std::string::npos ? text.size() : to) - from,
                 OneOf(kValues, random));
}

}  // namespace

std::string Damage(std::string bytes, std::mt19937& random) {
    constexpr std::array kKinds = {FlipBits, Overwrite, ReplaceField, Truncate, Splice};
    if (!bytes.empty()) {
        OneOf(kKinds, random)(bytes, random);
    }
    return bytes;
}

std::string DamageText(std::string text, std::mt19937& random) {
    if (text.empty() || UpTo(2, random) == 0) {
        return Damage(std::move(text), random);
    }
    for (std::size_t count = 1 + UpTo(2, random); count > 0; --count) {
        ReplaceNumber(text, random);
    }
    return text;
}

}  // namespace hostile_files
