#include "system/same_file.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace host {

bool IsSameFile(const std::string& a, const std::string& b) {
    std::error_code error;
    const bool isSame = std::filesystem::equivalent(a, b, error);
    return isSame && !error;
}

std::optional<std::string> InputReplacedBy(const std::string& output,
                                           const std::vector<std::string>& inputs) {
    const auto found =
        std::find_if(inputs.begin(), inputs.end(),
                     [&](const std::string& input) { return IsSameFile(output, input); });
    return found == inputs.end() ? std::nullopt : std::optional<std::string>(*found);
}

}  // namespace host
