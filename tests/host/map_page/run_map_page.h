#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "scratch_folder.h"

namespace host_tests {

using Arguments = std::vector<std::string>;

struct Result {
    int status = -1;  ///< 128 and the signal when it was killed
    std::string out;
    std::string err;
};

std::string ContentsOf(const std::string& path);
void WriteFile(const std::string& path, const std::string& contents);

/// map_page, started in a folder.
class RunningMapPage {
public:
    /// @param prepare done in the new process, before the program takes over
    RunningMapPage(const ScratchFolder& folder, const Arguments& arguments,
                   const std::function<void()>& prepare = {});
    RunningMapPage(const RunningMapPage&) = delete;
    RunningMapPage& operator=(const RunningMapPage&) = delete;

    pid_t Process() const { return m_process; }

    /// The process in which it draws; waits until there is one.
    pid_t DrawingProcess() const;

    /// Call it once.
    Result Wait() const;

private:
    std::string m_out;
    std::string m_err;
    pid_t m_process;
};

/// What a command of the shell prints; it has to succeed.
std::string Said(const std::string& command);

inline Result RunMapPage(const ScratchFolder& folder, const Arguments& arguments) {
    return RunningMapPage(folder, arguments).Wait();
}

}  // namespace host_tests
