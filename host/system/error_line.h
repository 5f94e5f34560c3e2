#pragma once

#include <exception>
#include <new>
#include <string>

namespace host {

/// What a person is told of an exception, in one line.
inline std::string LineFor(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) != nullptr
               ? "memory: the page needs more than there is"
               : error.what();
}

}  // namespace host
