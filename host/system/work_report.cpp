#include "system/work_report.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace host {
namespace {

constexpr int kPatience = 100;  // milliseconds between two polls

}  // namespace

std::string PartMessage(double part) {
    std::string message(1 + sizeof(part), kPart);
    std::memcpy(&message[1], &part, sizeof(part));
    return message;
}

bool ReportReader::Next() {
    pollfd descriptor = {m_descriptor, POLLIN, 0};
    if (poll(&descriptor, 1, kPatience) <= 0) {
        m_isWorthTelling = true;
        return true;
    }
    std::array<char, 65536> some{};
    const ssize_t count = read(m_descriptor, some.data(), some.size());
    const bool goesOn = count > 0 || (count < 0 && errno == EINTR);
    m_sent.append(some.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    m_isWorthTelling = TakeParts();
    return goesOn;
}

bool ReportReader::IsReport() const {
    return !m_sent.empty() && (m_sent.front() == kDone || m_sent.front() == kFailed ||
                               m_sent.front() == kDied);
}

/// Removes the progress messages at the front; the last one counts.
bool ReportReader::TakeParts() {
    constexpr std::size_t kLength = 1 + sizeof(m_part);
    std::size_t taken = 0;
    while (m_sent.size() - taken >= kLength && m_sent[taken] == kPart) {
        std::memcpy(&m_part, &m_sent[taken + 1], sizeof(m_part));
        taken += kLength;
    }
    m_sent.erase(0, taken);
    return taken > 0;
}

}  // namespace host
