#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "scratch_folder.h"

namespace host_tests {

/// The arguments of a call; from one text, what stands between its blanks.
struct Arguments : std::vector<std::string> {
    using vector::vector;
    Arguments(const char* call);
};
Arguments operator+(Arguments first, const Arguments& second);

struct Result {
    int status = -1;  ///< 128 and the signal when it was killed
    std::string out;
    std::string err;
};

/// Done in a new process, before the program takes over.
using Preparation = std::function<void()>;

/// Has the program's input be a pipe that nobody writes to.
void GiveEndlessInput();

/// Has every file that grows beyond so many bytes be too large.
void LimitFilesTo(unsigned long bytes);

/// map_page, started in a folder.
class RunningMapPage {
public:
    RunningMapPage(const ScratchFolder& folder, const Arguments& arguments,
                   const Preparation& prepare = {});
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

inline Result RunMapPage(const ScratchFolder& folder, const Arguments& arguments,
                         const Preparation& prepare = {}) {
    return RunningMapPage(folder, arguments, prepare).Wait();
}

/// A folder in which map_page runs, with files by their names there.
class MapPageTest : public ::testing::Test {
protected:
    Result Run(const Arguments& arguments, const Preparation& prepare = {}) const {
        return RunMapPage(folder, arguments, prepare);
    }

    /// Fails unless it ends well.
    Result RunWell(const Arguments& arguments) const;

    /// Fails unless it ends so, says nothing but that line, and leaves the folder and its
    /// page.png as they are.
    /// @param line after "map_page: "; a "*" at its end stands for anything
    void ExpectError(int status, const std::string& line, const Arguments& arguments,
                     const Preparation& prepare = {}) const;

    std::string Contents(const std::string& name) const { return folder.Contents(name); }
    void Write(const std::string& name, const std::string& contents) const {
        folder.Write(name, contents);
    }

    ScratchFolder folder;
};

}  // namespace host_tests
