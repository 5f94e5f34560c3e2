#pragma once

#include <sys/types.h>

#include <functional>

namespace host {

/// Starts a process that does the work and exits with the status that the work returns,
/// 0 to 255. It is terminated when the thread that started it is gone, however that went;
/// a program that the work becomes keeps to that.
///
/// It is a copy of this process without the other threads: the work waits for none of
/// them and takes no lock that one may hold.
/// @return its number, for WaitFor; -1, and errno, when there can be none
pid_t StartChild(const std::function<int()>& work);

/// Waits until a process that was started here ends.
/// @return its status, as waitpid gives it
int WaitFor(pid_t process);

}  // namespace host
