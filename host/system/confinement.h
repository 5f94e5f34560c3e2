#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

/// What a process keeps when it gives up the rest.
struct Kept {
    /// The files, and the folders with all below them, that it may still open; none:
    /// whatever it may open now.
    std::optional<std::vector<std::string>> readable;
    bool network = false;  ///< whether it may still connect to anything
    /// Whether it may still make files without a name in /tmp, with tmpfile(): Cairo does
    /// for PostScript. Where /tmp has no such files, files are not taken at all.
    bool temporaryFiles = false;
};

/// Takes from this process and its children, for good, what reading and drawing do not
/// need: making, writing, renaming and removing files by name, changing their owner or
/// mode, starting programs, sockets, signals to others, looking into other processes,
/// typing at the terminal.
/// What is open stays open, and so do files that live in memory and /dev/null.
///
/// Each part is taken where the kernel can: files by Landlock (Linux 5.13), the rest by
/// seccomp. A thread that runs already keeps what it had.
/// @return whether the kernel could do all of it (see ConfinementHere)
bool Confine(const Kept& kept);

/// What Confine does on this machine, in one line for people: "no new files, no programs,
/// no network", or which part the kernel does not have.
std::string ConfinementHere();

}  // namespace host
