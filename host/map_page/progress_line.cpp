#include "map_page/progress_line.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace map_page {
namespace {

constexpr std::chrono::milliseconds kFirst(1000);
constexpr std::chrono::milliseconds kNext(100);

}  // namespace

ProgressLine::ProgressLine() {
    if (isatty(STDERR_FILENO) != 0) {
        m_terminal = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    }
    if (m_terminal >= 0) {
        m_thread = std::thread([this] { Run(); });
    }
}

ProgressLine::~ProgressLine() {
    if (m_terminal < 0) {
        return;
    }
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
    }
    m_changed.notify_one();
    m_thread.join();
    close(m_terminal);
}

void ProgressLine::Begin(const std::string& step) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_step = step;
    m_percent = -1;
}

void ProgressLine::Show(double part) {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_percent = static_cast<int>(std::clamp(part, 0.0, 1.0) * 100.0);
}

void ProgressLine::Run() {
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_changed.wait_for(lock, kFirst, [this] { return m_done; })) {
        return;
    }
    do {
        if (m_percent < 0) {
            dprintf(m_terminal, "\rmap_page: %s\033[K", m_step.c_str());
        } else {
            dprintf(m_terminal, "\rmap_page: %s %d %%\033[K", m_step.c_str(), m_percent);
        }
    } while (!m_changed.wait_for(lock, kNext, [this] { return m_done; }));
    dprintf(m_terminal, "\r\033[K");
}

}  // namespace map_page
