#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

#include "system/one_line.h"

namespace host {

/// What is wrong with what, in one line: "page.png: Permission denied".
class NamedError : public std::runtime_error {
public:
    NamedError(const std::string& thing, const std::string& why)
        : std::runtime_error(thing + ": " + why) {}
    /// @param line names the thing
    explicit NamedError(const std::string& line) : std::runtime_error(line) {}
};

/// Runs a step whose std::runtime_error gives the reason but not the thing, and adds its
/// name; a NamedError stays as it is.
template <typename Step>
auto Naming(const std::string& thing, Step step) {
    try {
        return step();
    } catch (const NamedError&) {
        throw;
    } catch (const std::runtime_error& error) {
        throw NamedError(thing, error.what());
    }
}

/// An exception's message on one line.
inline std::string LineFor(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) != nullptr
               ? "memory: the page needs more than there is"
               : OneLine(error.what());
}

}  // namespace host
