#include "system/numbers_from_text.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace host {

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

}  // namespace host
