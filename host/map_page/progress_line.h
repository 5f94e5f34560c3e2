#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace map_page {

/// A line on the terminal that says what is being done, and how much of it is: `map_page:
/// reading the rasters 40 %`. It appears when the work takes longer than a second, and
/// disappears with the object.
class ProgressLine {
public:
    /// @param descriptor of standard error; nothing is shown unless it is a terminal
    explicit ProgressLine(int descriptor);
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Begins a step whose progress is unknown, at least for now.
    void Begin(const std::string& step);

    /// @param part of the step that is done, 0 to 1
    void Show(double part);

    /// Removes the line left by a process that was killed.
    static void Erase(int descriptor);

private:
    void Run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_step;
    int m_percent = -1;  // unknown
    bool m_done = false;
    int m_terminal;  // -1 when it is not a terminal
    std::thread m_thread;
};

}  // namespace map_page
