#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

#include "host/common_functions.h"

namespace {

// No double has more decimal places than this.
constexpr int kMostDigits = 1074;
// The largest double has 309 digits before the point.
constexpr int kMostCharacters = 1 + 309 + 1 + kMostDigits;
constexpr int kMostIntCharacters = 1 + std::numeric_limits<int>::digits10 + 1;

constexpr double kPowersOfTen[] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
constexpr int kMostUnitPlaces = static_cast<int>(std::size(kPowersOfTen)) - 1;
// 2^52: doubles below it can still hold halves.
constexpr double kMostUnits = 4503599627370496.0;

/// A count of units of the last decimal place: 15 with one place is 1.5.
std::wstring TextOfUnits(std::int64_t units, int places) {
    wchar_t text[32];
    wchar_t* const end = text + std::size(text);
    wchar_t* first = end;
    for (int place = 0; place <= places || units > 0; ++place) {
        if (place == places && places > 0) {
            *--first = L'.';
        }
        *--first = static_cast<wchar_t>(L'0' + units % 10);
        units /= 10;
    }
    return {first, end};
}

std::wstring Widen(const char* begin, const char* end) { return {begin, end}; }

bool IsZero(const char* begin, const char* end) {
    return std::all_of(begin, end, [](char c) { return c == '0' || c == '.'; });
}

}  // namespace

std::wstring CommonFun::double2wstring(double value, int digits) {
    if (std::isnan(value)) {
        return L"nan";  // without the sign that a NaN has
    }
    const int places = std::clamp(digits, 0, kMostDigits);
    if (value >= 0.0 && places <= kMostUnitPlaces) {
        // Most labels are whole. The product is off by a quarter of a unit at most, so
        // rounding the full digits would give the same number.
        const double units = value * kPowersOfTen[places];
        if (units < kMostUnits) {
            const auto whole = static_cast<std::int64_t>(units);
            if (static_cast<double>(whole) == units) {
                return TextOfUnits(whole, places);
            }
        }
    }
    char buffer[kMostCharacters];
    const std::to_chars_result result = std::to_chars(
        buffer, buffer + sizeof buffer, value, std::chars_format::fixed, places);
    const bool negativeZero = buffer[0] == '-' && IsZero(buffer + 1, result.ptr);
    return Widen(buffer + (negativeZero ? 1 : 0), result.ptr);
}

std::wstring CommonFun::int2wstring(int value) {
    char buffer[kMostIntCharacters];
    const std::to_chars_result result =
        std::to_chars(buffer, buffer + sizeof buffer, value);
    return Widen(buffer, result.ptr);
}
