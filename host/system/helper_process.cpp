#include "system/helper_process.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <system_error>

#include "system/child_process.h"
#include "system/errors.h"
#include "system/work_report.h"

namespace host {
namespace {

/// The socket on which the helper takes requests; -1 without a helper.
int g_helper = -1;

/// The buffer for a descriptor, sent along with a message of one byte.
struct Parcel {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> room{};
    char byte = 0;
    iovec bytes = {&byte, 1};
    msghdr message = {nullptr, 0, &bytes, 1, room.data(), room.size(), 0};
};

bool SendDescriptor(int to, int descriptor) {
    Parcel parcel;
    cmsghdr* const header = CMSG_FIRSTHDR(&parcel.message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof(int));
    return sendmsg(to, &parcel.message, MSG_NOSIGNAL) == 1;
}

/// @return -1 at the end
int ReceiveDescriptor(int from) {
    Parcel parcel;
    ssize_t count = 0;
    do {
        count = recvmsg(from, &parcel.message, MSG_CMSG_CLOEXEC);
    } while (count < 0 && errno == EINTR);
    const cmsghdr* const header = CMSG_FIRSTHDR(&parcel.message);
    int descriptor = -1;
    if (count == 1 && header != nullptr) {
        std::memcpy(&descriptor, CMSG_DATA(header), sizeof(int));
    }
    return descriptor;
}

/// @return false when nobody listens any more, which must not kill this process
bool SendText(int to, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count =
            send(to, text.data() + done, text.size() - done, MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

/// A text preceded by its length.
std::string Measured(const std::string& text) {
    const std::uint64_t size = text.size();
    std::string measured(sizeof(size), '\0');
    std::memcpy(measured.data(), &size, sizeof(size));
    return measured + text;
}

/// @return false at the end
bool Receive(int from, char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t count = recv(from, bytes, size, 0);
        if (count == 0 || (count < 0 && errno != EINTR)) {
            return false;
        }
        bytes += count > 0 ? count : 0;
        size -= count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

std::string ReceiveMeasured(int from) {
    std::uint64_t size = 0;
    std::string text;
    if (Receive(from, reinterpret_cast<char*>(&size), sizeof(size))) {
        text.resize(size);
        Receive(from, text.data(), text.size());
    }
    return text;
}

bool IsGivenUp(int asker) {
    pollfd descriptor = {asker, POLLRDHUP, 0};
    return poll(&descriptor, 1, 0) > 0;
}

/// Does what is asked for in a process of its own, and waits for it.
std::string Answer(int asker, const Jobs& jobs) {
    const std::string what = ReceiveMeasured(asker);
    const std::string name = ReceiveMeasured(asker);
    const std::string input = ReceiveMeasured(asker);
    double told = 0.0;
    const auto tell = [&](double part) {
        if (part != told) {
            told = part;
            SendText(asker, PartMessage(part));
        }
        return !IsGivenUp(asker);
    };
    try {
        const auto work = [&](const Progress& progress) {
            close(asker);
            return jobs.at(name)(input, progress);
        };
        return kDone + InSeparateProcess(what, work, tell);
    } catch (const WorkFailed& error) {
        return kFailed + std::string(error.what());
    } catch (const std::exception& error) {
        return kDied + LineFor(error);
    }
}

/// Serves until nobody can ask any more.
int Serve(int askers, const Jobs& jobs) {
    std::signal(SIGCHLD, SIG_IGN);  // their exit statuses are not collected
    for (int asker = 0; (asker = ReceiveDescriptor(askers)) >= 0; close(asker)) {
        StartChild([&] {
            std::signal(SIGCHLD, SIG_DFL);
            close(askers);
            SendText(asker, Answer(asker, jobs));
            return 0;
        });
    }
    return 0;
}

using Ends = std::array<int, 2>;

Ends Connected(const std::string& forWhat) {
    Ends ends = {-1, -1};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        throw std::runtime_error(forWhat +
                                 " failed: " + std::generic_category().message(errno));
    }
    return ends;
}

/// The end at which the answer arrives; closing it abandons the work.
class Asking {
public:
    explicit Asking(const std::string& what) {
        const Ends ends = Connected(what);
        m_descriptor = ends[0];
        SendDescriptor(g_helper, ends[1]);  // a lost helper shows as no answer
        close(ends[1]);
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
    ~Asking() { close(m_descriptor); }

    int Descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

}  // namespace

void StartHelper(const Jobs& jobs) {
    if (g_helper >= 0) {
        throw std::logic_error("the helper has already been started");
    }
    const Ends ends = Connected("starting the helper");
    const pid_t process = StartChild([&] {
        close(ends[0]);
        return Serve(ends[1], jobs);
    });
    close(ends[1]);
    if (process < 0) {
        close(ends[0]);
        throw std::runtime_error("starting the helper failed: " +
                                 std::generic_category().message(errno));
    }
    g_helper = ends[0];
}

std::string InHelper(const std::string& what, const std::string& job,
                     const std::string& input, const Progress& progress) {
    const Asking asking(what);
    SendText(asking.Descriptor(), Measured(what) + Measured(job) + Measured(input));
    ReportReader reader(asking.Descriptor());
    while (reader.Next()) {
        if (reader.IsWorthTelling() && progress && !progress(reader.Part())) {
            throw std::runtime_error(what + " was stopped");
        }
    }
    if (!reader.IsReport()) {
        throw std::runtime_error(what + " failed: there is no helper process any more");
    }
    std::string told = reader.Report().substr(1);
    switch (reader.Report().front()) {
        case kDone:
            return told;
        case kFailed:
            throw WorkFailed(told);
        default:
            throw std::runtime_error(told);
    }
}

}  // namespace host
