// Elements of all kinds in several threads at once. Built with ThreadSanitizer, this
// tells whether the library shares anything between them.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "recording/expect.h"
#include "subjects/stage.h"
#include "subjects/subjects.h"

namespace {

/// The calls of a subject from its making to its end.
std::vector<std::string> LifeOf(const subjects::Row& row, Gdiplus::Graphics* graphics) {
    const subjects::Stage stage;
    {
        const std::unique_ptr<subjects::Subject> subject = row.make();
        subject->Measure();
        subject->Draw(graphics);
    }
    std::vector<std::string> lines;
    for (const recording::Call& call : stage.Calls()) {
        lines.push_back(call.line);
    }
    return lines;
}

/// A thread with a surface of its own, in which all subjects live, one after the other.
struct Worker {
    recording::Surface surface{120, 80};
    std::vector<std::string> wrong;  ///< the subjects that were not drawn as they must be
    std::vector<std::string> leftOver;
    std::thread thread;
};

TEST(Threads, DrawEachOnASurfaceOfItsOwn) {
    constexpr int kRounds = 5;
    const std::vector<subjects::Row>& rows = subjects::Rows();
    std::vector<std::vector<std::string>> expected;
    {
        recording::Surface surface(120, 80);
        for (const subjects::Row& row : rows) {
            expected.push_back(LifeOf(row, surface.Graphics()));
        }
    }

    std::promise<void> start;
    const std::shared_future<void> started = start.get_future().share();
    std::array<Worker, 4> workers;
    for (std::size_t w = 0; w < workers.size(); ++w) {
        workers[w].thread =
            std::thread([&rows, &expected, w, &worker = workers[w], started] {
                started.wait();
                for (int round = 0; round < kRounds; ++round) {
                    for (std::size_t i = 0; i < rows.size(); ++i) {
                        // At any time the threads are busy with different subjects, and
                        // in the course of the rounds with the same ones.
                        const std::size_t at =
                            (i + w * static_cast<std::size_t>(round)) % rows.size();
                        if (LifeOf(rows[at], worker.surface.Graphics()) != expected[at]) {
                            worker.wrong.push_back(rows[at].family + " " + rows[at].name);
                        }
                    }
                }
                worker.leftOver = recording::LiveObjects();
            });
    }
    start.set_value();
    for (Worker& worker : workers) {
        worker.thread.join();
        EXPECT_EQ(worker.wrong, std::vector<std::string>());
        EXPECT_EQ(worker.leftOver, std::vector<std::string>());
    }
}

}  // namespace
