#pragma once

#include <functional>
#include <string>

namespace map_page {

/// Does the work in a process of its own, so that a decoder that crashes on what it was
/// given takes nothing else with it. Returns what the work returns; throws Error with the
/// work's own line when it threw, and std::runtime_error that names the signal when the
/// process was killed.
///
/// That process is terminated when this one is gone, however it went. Call it while there
/// is one thread.
std::string InSeparateProcess(const std::function<std::string()>& work);

}  // namespace map_page
