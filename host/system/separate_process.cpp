#include "system/separate_process.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstring>
#include <exception>
#include <new>
#include <system_error>
#include <utility>

#include "system/child_process.h"
#include "system/descriptor.h"
#include "system/errors.h"
#include "system/work_report.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr double kSmallestStep = 1.0 / 256.0;  // the least progress worth reporting

/// A failed write is ignored: the reader is gone, and this process ends next.
void Send(int descriptor, const std::string& message) {
    WriteAll(descriptor, message.data(), message.size());
}

std::string NameOfLimit(const WorkLimits& limits) {
    return "its limit of " + std::to_string(limits.megabytes) + " MB of memory";
}

/// Counts private, writable memory; the shared files of programs and fonts do not count.
void LimitMemory(unsigned megabytes) {
    rlimit most = {};
    if (megabytes > 0 && getrlimit(RLIMIT_DATA, &most) == 0) {
        most.rlim_max = std::min(most.rlim_max, rlim_t{megabytes} << 20);
        most.rlim_cur = most.rlim_max;
        setrlimit(RLIMIT_DATA, &most);
    }
}

std::string Report(int descriptor, const SeparateWork& work, const WorkLimits& limits) {
    double told = 0.0;
    const Progress tell = [descriptor, &told](double part) {
        if (std::fabs(part - told) >= kSmallestStep) {  // each map starts again at 0
            told = part;
            Send(descriptor, PartMessage(part));
        }
        return true;
    };
    try {
        LimitMemory(limits.megabytes);
        return kDone + work(tell);
    } catch (const std::bad_alloc& error) {
        return kFailed + (limits.megabytes == 0
                              ? LineFor(error)
                              : "the page needs more than " + NameOfLimit(limits));
    } catch (const std::exception& error) {
        return kFailed + LineFor(error);
    }
}

/// The separate process, seen from this one.
class Worker {
public:
    Worker(std::string what, pid_t process, int descriptor, const WorkLimits& limits)
        : m_what(std::move(what)),
          m_process(process),
          m_descriptor(descriptor),
          m_limits(limits) {}
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    ~Worker() {
        close(m_descriptor);
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            WaitFor(m_process);
        }
    }

    std::string Result(const Progress& progress) {
        ReportReader reader(m_descriptor);
        while (reader.Next()) {
            CheckTime();
            if (reader.IsWorthTelling()) {
                Tell(progress, reader.Part());
            }
        }
        const int status = WaitFor(m_process);
        m_process = -1;
        CheckEnd(status, reader);
        return reader.Report().substr(1);
    }

private:
    void Tell(const Progress& progress, double part) const {
        if (progress && !progress(part)) {
            throw std::runtime_error(m_what + " was stopped");
        }
    }

    void CheckTime() const {
        if (m_limits.seconds > 0 &&
            Clock::now() - m_begin > std::chrono::seconds(m_limits.seconds)) {
            throw std::runtime_error(m_what + " took longer than its limit of " +
                                     std::to_string(m_limits.seconds) + " s");
        }
    }

    void CheckEnd(int status, const ReportReader& reader) const {
        if (WIFSIGNALED(status)) {
            const int signal = WTERMSIG(status);
            throw std::runtime_error(
                m_what + " failed: " + strsignal(signal) + " (signal " +
                std::to_string(signal) + ")" +
                (m_limits.megabytes == 0 ? "" : " within " + NameOfLimit(m_limits)));
        }
        if (!reader.IsReport() || WEXITSTATUS(status) != 0) {
            throw std::runtime_error(m_what + " failed: ended with status " +
                                     std::to_string(WEXITSTATUS(status)));
        }
        if (reader.Report().front() == kFailed) {
            throw WorkFailed(reader.Report().substr(1));
        }
    }

    std::string m_what;
    pid_t m_process;
    int m_descriptor;
    WorkLimits m_limits;
    Clock::time_point m_begin = Clock::now();
};

}  // namespace

std::string InSeparateProcess(const std::string& what, const SeparateWork& work,
                              const Progress& progress, const WorkLimits& limits) {
    const auto fail = [&what](int error) {
        throw std::runtime_error(what +
                                 " failed: " + std::generic_category().message(error));
    };
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        fail(errno);
    }
    const pid_t process = StartChild([&] {
        close(ends[0]);
        Send(ends[1], Report(ends[1], work, limits));
        return 0;
    });
    const int error = errno;
    close(ends[1]);
    Worker worker(what, process, ends[0], limits);
    if (process < 0) {
        fail(error);
    }
    return worker.Result(progress);
}

}  // namespace host
