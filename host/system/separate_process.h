#pragma once

#include <functional>
#include <string>

#include "system/errors.h"
#include "system/progress.h"

namespace host {

/// What the work of a separate process threw, as its one line.
class WorkFailed : public NamedError {
public:
    using NamedError::NamedError;
};

/// Bytes that a piece of work makes; it may tell how far it has come.
using SeparateWork = std::function<std::string(const Progress&)>;

/// What a separate process may take; 0 is without limit.
struct WorkLimits {
    unsigned seconds = 0;    ///< by the clock on the wall
    unsigned megabytes = 0;  ///< of memory of its own, of 1048576 bytes each
};

/// Does the work in a process of its own, so that a decoder that crashes on what it was
/// given takes nothing else with it. Returns what the work returns; throws WorkFailed
/// with the work's own line when it threw, and std::runtime_error that names the signal
/// when the process was killed.
///
/// That process is terminated when this one is gone, however it went. It is a copy of
/// this one without the other threads: the work waits for none of them and takes no lock
/// that one may hold. Files that are open here are open there with the same position: the
/// work opens for itself what it reads.
///
/// @param what the work, as the message names it: "drawing" for "drawing failed: ..."
/// @param progress told here what the work tells there, and several times a second while
/// it tells nothing new; when it answers false, the process is ended and
/// std::runtime_error thrown: "drawing was stopped"
/// @param limits a process that takes longer is ended: "drawing took longer than its
/// limit of 2 s"; work that is refused memory ends as it does where there is no more, and
/// the message names the limit
std::string InSeparateProcess(const std::string& what, const SeparateWork& work,
                              const Progress& progress = {},
                              const WorkLimits& limits = {});

}  // namespace host
