#pragma once

#include <stdexcept>
#include <string>

namespace map_page {

/// What a person is told in one line: what is wrong, and why.
class Error : public std::runtime_error {
public:
    Error(const std::string& what, const std::string& why)
        : std::runtime_error(what + ": " + why) {}
};

/// The program was called in a way that it does not know.
class UsageError : public Error {
public:
    using Error::Error;
};

}  // namespace map_page
