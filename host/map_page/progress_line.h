#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace map_page {

/// One line on a terminal that says what is being done and how far it has come:
/// `map_page: reading the rasters 40 %`. It shows itself when the work takes longer than
/// a second, and is gone when the object is.
class ProgressLine {
public:
    /// @param descriptor of standard error; where that is no terminal nothing is shown
    explicit ProgressLine(int descriptor);
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Begins a step whose progress is not known, or not yet.
    void Begin(const std::string& step);

    /// @param part of the step that is done, 0 to 1
    void Show(double part);

    /// Removes the line of a process that was killed and could not do so itself.
    static void Erase(int descriptor);

private:
    void Run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_step;
    int m_percent = -1;  // unknown
    bool m_done = false;
    int m_terminal;  // none for no terminal
    std::thread m_thread;
};

}  // namespace map_page
