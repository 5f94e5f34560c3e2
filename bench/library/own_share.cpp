// The library's own share of a drawing: flat calls do nothing meanwhile.

#include <memory>
#include <string>

#include "flat_calls.h"
#include "scenes.h"
#include "side_by_side.h"
#include "tables.h"

namespace bench {
namespace {

constexpr double kSecondsOfRow = 0.2;

// Far from every row, and near enough for one to pass it that allocates or formats more.
constexpr double kMost = 5.0;

void Measure(benchmark::State& state, Scene& scene) {
    Trace trace(scene.run);
    const auto calls = static_cast<double>(trace.Size());
    const FlatCalls dropped(Carry::Drop);
    SideBySide turns;
    turns.Add(scene.run);
    turns.Add([&] { trace.Repeat(); });
    while (state.KeepRunning()) {
        state.SetIterationTime(turns.Round());
    }
    state.counters["calls"] = calls;
    state.counters["library"] = turns.Seconds(0) / calls * 1e9;
    state.counters["bare"] = turns.Seconds(1) / calls * 1e9;
    state.counters["ratio"] = turns.Ratio(0, 1);
}

}  // namespace

Table AddOwnShare() {
    Table table;
    table.name = "own";
    table.title =
        "The library's own share: ns per flat call, where a flat call does nothing";
    table.columns = {{"calls", "calls", 0},
                     {"library", "library, ns", 1},
                     {"bare", "bare, ns", 1},
                     {"ratio", "ratio", 2}};
    table.judged = "ratio";
    table.most = kMost;
    for (const std::shared_ptr<Scene>& scene : Scenes(1.0)) {
        benchmark::RegisterBenchmark(
            (table.name + "/" + scene->name).c_str(),
            [scene](benchmark::State& state) { Measure(state, *scene); })
            ->UseManualTime()
            ->MinTime(kSecondsOfRow);
    }
    return table;
}

}  // namespace bench
