#pragma once

#include <stdexcept>
#include <string>

#include "system/separate_process.h"

namespace map_page {

/// What a person is told in one line: what is wrong, and why.
class Error : public std::runtime_error {
public:
    Error(const std::string& what, const std::string& why)
        : std::runtime_error(what + ": " + why) {}
    explicit Error(const std::string& line) : std::runtime_error(line) {}
};

/// The program was called in a way that it does not know.
class UsageError : public Error {
public:
    using Error::Error;
};

/// Runs a step whose exception has the reason but not the thing.
template <typename Step>
auto Naming(const std::string& thing, Step step) {
    try {
        return step();
    } catch (const Error&) {
        throw;
    } catch (const host::WorkFailed&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw Error(thing, error.what());
    }
}

}  // namespace map_page
