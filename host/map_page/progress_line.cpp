#include "map_page/progress_line.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace map_page {
namespace {

constexpr std::chrono::milliseconds kFirst(1000);
constexpr std::chrono::milliseconds kNext(100);

}  // namespace

ProgressLine::ProgressLine(int descriptor)
    : m_terminal(isatty(descriptor) != 0 ? descriptor : -1) {
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
    Erase(m_terminal);
}

void ProgressLine::Erase(int descriptor) {
    if (isatty(descriptor) != 0) {
        dprintf(descriptor, "\r\033[K");
    }
}

}  // namespace map_page
