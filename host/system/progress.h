#pragma once

#include <functional>

namespace host {

/// Told how far a long task has come, 0 to 1; returns false to stop it.
using Progress = std::function<bool(double)>;

}  // namespace host
