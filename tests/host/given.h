#pragma once

#include <cstdint>
#include <cstdlib>

namespace host_tests {

/// The number that a variable of the environment says: how much of a trial is asked for.
inline std::uint32_t Given(const char* name, std::uint32_t otherwise) {
    const char* const text = std::getenv(name);
    return text == nullptr ? otherwise
                           : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

}  // namespace host_tests
