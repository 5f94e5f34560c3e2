#pragma once

#include <functional>

namespace host {

/// Told how far long work has come, 0 to 1; answers false to stop it.
using Progress = std::function<bool(double)>;

}  // namespace host
