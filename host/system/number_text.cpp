#include "system/number_text.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <system_error>

namespace host {
namespace {

template <typename Number>
std::string TextOf(Number value) {
    char text[32];
    const std::to_chars_result end =
        std::to_chars(std::begin(text), std::end(text), value);
    return {std::begin(text), end.ptr};
}

}  // namespace

bool ParseNumber(std::string_view text, double& value) {
    double number = 0.0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(number)) {
        return false;
    }
    value = number;
    return true;
}

std::string NumberText(double value) { return TextOf(value); }

std::string NumberText(float value) { return TextOf(value); }

}  // namespace host
