#pragma once

#include <map>
#include <string>

#include "system/separate_process.h"

namespace host {

/// A piece of work that a helper can do: bytes in, bytes out.
using Job = std::string (*)(const std::string& input, const Progress& progress);

/// Jobs by their names.
using Jobs = std::map<std::string, Job>;

/// Starts this process's helper, once: it is what InHelper has jobs started from. A copy
/// of a process with threads has their locks in whatever state they were, and may wait
/// for one for ever; so may a program with a window, once it has drawn text. The helper
/// has no threads, so call this early in main(), before anything starts one or draws.
///
/// The helper ends with this process. Throws std::runtime_error when it cannot be
/// started.
void StartHelper(const Jobs& jobs);

/// Does a job in a process of its own that the helper starts. Returns and throws as
/// InSeparateProcess does.
/// @param job one of those given to StartHelper
std::string InHelper(const std::string& what, const std::string& job,
                     const std::string& input, const Progress& progress = {});

}  // namespace host
