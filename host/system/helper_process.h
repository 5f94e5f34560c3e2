#pragma once

#include <map>
#include <string>

#include "system/separate_process.h"

namespace host {

/// A piece of work that a helper knows: it makes bytes of bytes.
using Job = std::string (*)(const std::string& input, const Progress& progress);

/// Jobs by their names.
using Jobs = std::map<std::string, Job>;

/// Starts the helper of this process, once: a process from which InHelper starts those
/// that do a job. A copy of a process with threads has their locks as they were, and may
/// wait for one for ever, as a program with a window is once it has drawn text; the
/// helper has none of them. So call it early in main(), before anything starts a thread
/// or draws.
///
/// The helper ends with this process. Throws std::runtime_error when it cannot be
/// started.
void StartHelper(const Jobs& jobs);

/// Does a job in a process of its own that the helper starts. Returns and throws as
/// InSeparateProcess does.
/// @param job one that StartHelper was given
std::string InHelper(const std::string& what, const std::string& job,
                     const std::string& input, const Progress& progress = {});

}  // namespace host
