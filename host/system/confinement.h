#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

/// What a confined process keeps.
struct Kept {
    /// The files, and the folders with everything below them, that it may still open;
    /// without a value, whatever it may open already.
    std::optional<std::vector<std::string>> readable;
    bool network = false;  ///< whether it may still connect to anything
};

/// Takes from this process and its children, for good, what reading and drawing do not
/// need: making, writing, renaming and removing files by name, changing their owner or
/// mode, starting programs, sockets, signals to others, looking into other processes,
/// typing at the terminal. What is open stays open, and so do files that live in memory
/// and /dev/null.
///
/// Each restriction applies where the kernel supports it: files by Landlock (Linux 5.13),
/// the rest by seccomp. Threads that already run are not restricted.
/// @return whether the kernel supports all of it (see ConfinementHere)
bool Confine(const Kept& kept);

/// What Confine does on this machine, in one line: "no new files, no programs, no
/// network", or which part the kernel does not support.
std::string ConfinementHere();

}  // namespace host
