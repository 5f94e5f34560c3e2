#pragma once

#include <functional>
#include <string>

#include "system/errors.h"
#include "system/progress.h"

namespace host {

/// What the work of a separate process threw, as its line.
class WorkFailed : public NamedError {
public:
    using NamedError::NamedError;
};

/// Work that makes bytes; it may report its progress.
using SeparateWork = std::function<std::string(const Progress&)>;

/// What a separate process may use; 0 is without limit.
struct WorkLimits {
    unsigned seconds = 0;    ///< of wall-clock time
    unsigned megabytes = 0;  ///< of its own memory, 1048576 bytes each
};

/// Does the work in a process of its own, so that a decoder that crashes on bad data
/// takes nothing else with it. Returns what the work returns; throws WorkFailed with the
/// work's own line when it threw, and std::runtime_error that names the signal when the
/// process was killed.
///
/// That process is terminated when this one ends, for whatever reason. It is a copy of
/// this one without the other threads: the work must not wait for them, nor take a lock
/// that one of them may hold. Files that are open here share their position with it: the
/// work opens for itself what it reads.
///
/// @param what the work, as messages name it: "drawing" for "drawing failed: ..."
/// @param progress called here with what the work reports there, and several times a
/// second while it reports nothing; when it returns false, the process is ended and
/// std::runtime_error thrown: "drawing was stopped"
/// @param limits a process that takes longer is ended: "drawing took longer than its
/// limit of 2 s"; work that is refused memory fails as when there is no more, and the
/// message names the limit
std::string InSeparateProcess(const std::string& what, const SeparateWork& work,
                              const Progress& progress = {},
                              const WorkLimits& limits = {});

}  // namespace host
