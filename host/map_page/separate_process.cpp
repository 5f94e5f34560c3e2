#include "map_page/separate_process.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <system_error>

#include "map_page/error.h"

namespace map_page {
namespace {

// The first byte of a report. A process that ends without a report has crashed, whatever
// status it ended with: some decoders call exit.
constexpr char kDone = '+';
constexpr char kFailed = '-';

[[noreturn]] void FailWith(const std::string& why) {
    throw std::runtime_error("drawing failed: " + why);
}

void WriteAll(int descriptor, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t count = write(descriptor, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR) {
            return;
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

std::string ReadAll(int descriptor) {
    std::string text;
    std::array<char, 4096> part{};
    for (;;) {
        const ssize_t count = read(descriptor, part.data(), part.size());
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return text;
        }
        text.append(part.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
}

std::string Report(const std::function<std::string()>& work) {
    try {
        return kDone + work();
    } catch (const std::exception& error) {
        return kFailed + LineFor(error);
    }
}

[[noreturn]] void BeTheSeparateProcess(pid_t parent, int reports,
                                       const std::function<std::string()>& work) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) {
        std::raise(SIGTERM);
    }
    WriteAll(reports, Report(work));
    _exit(0);  // what the libraries tidy up at the end takes longer than the fork
}

int WaitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

}  // namespace

std::string InSeparateProcess(const std::function<std::string()>& work) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        FailWith(std::generic_category().message(errno));
    }
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process == 0) {
        close(ends[0]);
        BeTheSeparateProcess(parent, ends[1], work);
    }
    const int error = errno;
    close(ends[1]);
    const std::string report = ReadAll(ends[0]);
    close(ends[0]);
    if (process < 0) {
        FailWith(std::generic_category().message(error));
    }
    const int status = WaitFor(process);
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        FailWith(strsignal(signal) + (" (signal " + std::to_string(signal)) + ")");
    }
    if (report.empty() || WEXITSTATUS(status) != 0) {
        FailWith("ended with status " + std::to_string(WEXITSTATUS(status)));
    }
    if (report.front() == kFailed) {
        throw Error(report.substr(1));
    }
    return report.substr(1);
}

}  // namespace map_page
