#pragma once

#include <stdexcept>
#include <string>

namespace host {

/// What is wrong in a page file, and where: "elements[2].size: must be a number", "line
/// 3, column 7: ...".
class PageError : public std::runtime_error {
public:
    PageError(const std::string& place, const std::string& why)
        : std::runtime_error(place.empty() ? why : place + ": " + why) {}
};

}  // namespace host
