#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "host/common_functions.h"

namespace {

// No double has more decimal places than this; more would only be zeros.
constexpr int kMostDigits = 1074;
// The largest double has 309 digits before the point.
constexpr int kMostCharacters = 1 + 309 + 1 + kMostDigits;

std::wstring Widen(const char* begin, const char* end) { return {begin, end}; }

bool IsZero(const char* begin, const char* end) {
    return std::all_of(begin, end, [](char c) { return c == '0' || c == '.'; });
}

}  // namespace

std::wstring CommonFun::double2wstring(double value, int digits) {
    if (std::isnan(value)) {
        return L"nan";  // a NaN has a sign, which means nothing to a reader
    }
    char buffer[kMostCharacters];
    const int places = std::clamp(digits, 0, kMostDigits);
    const std::to_chars_result result = std::to_chars(
        buffer, buffer + sizeof buffer, value, std::chars_format::fixed, places);
    const bool negativeZero = buffer[0] == '-' && IsZero(buffer + 1, result.ptr);
    return Widen(buffer + (negativeZero ? 1 : 0), result.ptr);
}

std::wstring CommonFun::int2wstring(int value) { return std::to_wstring(value); }
