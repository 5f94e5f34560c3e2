#pragma once

#include "system/errors.h"

namespace map_page {

using Error = host::NamedError;

/// The command line is wrong.
class UsageError : public Error {
public:
    using Error::Error;
};

}  // namespace map_page
