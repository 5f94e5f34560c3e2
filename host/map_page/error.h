#pragma once

#include "system/errors.h"

namespace map_page {

using Error = host::NamedError;

/// The program was called in a way that it does not know.
class UsageError : public Error {
public:
    using Error::Error;
};

}  // namespace map_page
