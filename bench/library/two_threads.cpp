// Two threads that draw, each on a surface of its own, against one that draws both.

#include <algorithm>
#include <array>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "flat_calls.h"
#include "scenes.h"
#include "side_by_side.h"
#include "tables.h"

namespace bench {
namespace {

using Task = std::function<void()>;

/// A thread that lives on from task to task, as a host's does: what GDI+ sets up for a
/// thread is set up once.
class Worker {
public:
    Worker() : m_thread([this] { Work(); }) {}
    ~Worker() {
        Start(nullptr);
        m_thread.join();
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    /// @param task none for the last time
    void Start(Task task) {
        const std::lock_guard lock(m_mutex);
        m_task = std::move(task);
        m_busy = true;
        m_changed.notify_all();
    }
    void Wait() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_busy; });
    }

private:
    void Work() {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return m_busy; });
            if (!m_task) {
                return;
            }
            lock.unlock();
            m_task();
            lock.lock();
            m_busy = false;
            m_changed.notify_all();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    Task m_task;
    bool m_busy = false;
    std::thread m_thread;
};

/// The same task twice, for a thread each, and how they are carried out.
class Pair {
public:
    Pair(Task first, Task second, int times)
        : m_first(Repeated(std::move(first), times)),
          m_second(Repeated(std::move(second), times)) {}

    void OneAfterTheOther() {
        m_workers[0].Start([this] {
            m_first();
            m_second();
        });
        m_workers[0].Wait();
    }
    void AtOnce() {
        m_workers[0].Start(m_first);
        m_workers[1].Start(m_second);
        m_workers[0].Wait();
        m_workers[1].Wait();
    }

    /// Adds both ways; the second over the first is what two threads save.
    void AddTo(SideBySide& turns) {
        turns.Add([this] { OneAfterTheOther(); }, 1);
        turns.Add([this] { AtOnce(); }, 1);
    }

private:
    static Task Repeated(Task task, int times) {
        return [task = std::move(task), times] {
            for (int i = 0; i < times; ++i) {
                task();
            }
        };
    }

    Task m_first;
    Task m_second;
    std::array<Worker, 2> m_workers;
};

/// How often a scene is drawn in a turn: for so long that the system gives each thread a
/// processor of its own.
int TimesOfTurn(const Scene& scene) {
    constexpr double kSecondsOfTurn = 0.05;
    SideBySide once;
    once.Add(scene.run);
    once.Round();
    return 1 + static_cast<int>(kSecondsOfTurn / once.Seconds(0));
}

struct Row {
    std::string scene;
    std::string name;
    Carry carry;
};

const Row kRows[] = {
    {"frame", "frame", Carry::HandOn},
    {"picture", "picture", Carry::HandOn},
    {"north arrow, eight angles", "north arrow, texts in turn", Carry::TextsInTurn},
    {"scale bar, line", "scale bar, texts in turn", Carry::TextsInTurn},
    {"a whole page", "a whole page, texts in turn", Carry::TextsInTurn},
    {"a whole page", "a whole page, the library alone", Carry::Drop},
};

void Measure(benchmark::State& state, const Scene& first, const Scene& second,
             Carry carry) {
    Trace firstTrace(first.run);
    Trace secondTrace(second.run);
    const FlatCalls carried(carry);
    const int times = TimesOfTurn(first);
    Pair drawn(first.run, second.run, times);
    Pair bare([&] { firstTrace.Repeat(); }, [&] { secondTrace.Repeat(); }, times);

    SideBySide turns(SideBySide::Clock::OnTheWall);
    drawn.AddTo(turns);
    bare.AddTo(turns);
    while (state.KeepRunning()) {
        state.SetIterationTime(turns.Round());
    }
    state.counters["one"] = turns.Seconds(0) / times * 1e6;
    state.counters["two"] = turns.Seconds(1) / times * 1e6;
    state.counters["speed-up"] = turns.Ratio(0, 1);
    state.counters["bare"] = turns.Ratio(2, 3);
}

}  // namespace

Table AddTwoThreads() {
    Table table;
    table.name = "threads";
    table.title = "Two threads that draw one picture each, against one that draws both";
    table.columns = {{"one", "one, us", 1},
                     {"two", "two, us", 1},
                     {"speed-up", "speed-up", 2},
                     {"bare", "of bare calls", 2}};
    const std::vector<std::shared_ptr<Scene>> firsts = Scenes(1.0);
    const std::vector<std::shared_ptr<Scene>> seconds = Scenes(1.0);
    for (const Row& row : kRows) {
        const auto named = [&](const std::shared_ptr<Scene>& scene) {
            return scene->name == row.scene;
        };
        const auto first = *std::find_if(firsts.begin(), firsts.end(), named);
        const auto second = *std::find_if(seconds.begin(), seconds.end(), named);
        benchmark::RegisterBenchmark((table.name + "/" + row.name).c_str(),
                                     [=, carry = row.carry](benchmark::State& state) {
                                         Measure(state, *first, *second, carry);
                                     })
            ->UseManualTime()
            ->Iterations(11);
    }
    return table;
}

}  // namespace bench
