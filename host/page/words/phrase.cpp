#include "page/words/phrase.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "system/number_text.h"

namespace host {

std::wstring Filled(const wchar_t* phrase, std::initializer_list<std::wstring> values) {
    std::wstring filled;
    for (std::wstring rest = phrase; !rest.empty();) {
        const std::size_t place = rest[0] == L'{' && rest.size() > 2 && rest[2] == L'}'
                                      ? static_cast<std::size_t>(rest[1] - L'0')
                                      : values.size();
        const bool isValue = place < values.size();
        filled += isValue ? values.begin()[place] : rest.substr(0, 1);
        rest.erase(0, isValue ? 3 : 1);
    }
    return filled;
}

std::wstring RoundedText(double value, int decimals) {
    const double power = std::pow(10.0, decimals);
    const double rounded = std::round(value * power) / power;
    // A number too large for rounding has no decimals anyway.
    const std::string text = NumberText(std::isfinite(rounded) ? rounded + 0.0 : value);
    return {text.begin(), text.end()};
}

std::wstring DigitsText(double value, int digits) {
    constexpr int kMostDecimals = 17;
    const double size = std::fabs(value);
    const int decimals = size > 0.0 && std::isfinite(size)
                             ? digits - 1 - static_cast<int>(std::floor(std::log10(size)))
                             : 0;
    return RoundedText(value, std::clamp(decimals, 0, kMostDecimals));
}

}  // namespace host
