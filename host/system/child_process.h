#pragma once

#include <sys/types.h>

#include <functional>

namespace host {

/// Starts a process that does the work and exits with the status that the work returns, 0
/// to 255. It is terminated when the thread that started it ends, for whatever reason; so
/// is a program that the work executes.
///
/// It is a copy of this process without the other threads: the work must not wait for
/// them, nor take a lock that one of them may hold.
/// @return its number, for WaitFor; -1, with errno set, when it cannot be started
pid_t StartChild(const std::function<int()>& work);

/// Waits until a process that was started here ends.
/// @return its status, as waitpid gives it
int WaitFor(pid_t process);

}  // namespace host
