// What drawing costs over the flat calls that it comes to, made bare.

#include <functional>
#include <memory>
#include <string>

#include "elements.h"
#include "flat_calls.h"
#include "framed_page.h"
#include "scenes.h"
#include "side_by_side.h"
#include "surface.h"
#include "tables.h"

namespace bench {
namespace {

// The aim is 1.03. Where memory happens to lie moves a row by up to 0.01 between runs.
constexpr double kMost = 1.05;
constexpr double kSecondsOfRow = 0.4;

/// Whether a drawing and the repetition of its flat calls give the same picture.
bool IsSamePicture(Scene& scene, Trace& trace) {
    const auto pixelsOf = [&](const std::function<void()>& draw) {
        scene.surface->Clear();
        draw();
        return scene.surface->Pixels();
    };
    const auto blank = pixelsOf([] {});
    const auto drawn = pixelsOf(scene.run);
    return drawn == pixelsOf([&] { trace.Repeat(); }) && (drawn != blank) == scene.draws;
}

void Measure(benchmark::State& state, Scene& scene) {
    Trace trace(scene.run);
    if (!trace.RepeatsAnswers() || !IsSamePicture(scene, trace)) {
        state.SkipWithError("the flat calls alone do not draw the same");
        return;
    }
    SideBySide turns;
    turns.Add(scene.run);
    turns.Add([&] { trace.Repeat(); });
    while (state.KeepRunning()) {
        state.SetIterationTime(turns.Round());
    }
    state.counters["library"] = turns.Seconds(0) * 1e6;
    state.counters["bare"] = turns.Seconds(1) * 1e6;
    state.counters["ratio"] = turns.Ratio(0, 1);
}

}  // namespace

Table AddAgainstLimit() {
    Table table;
    table.name = "limit";
    table.title =
        "Against the limit: the library, and the same flat calls to GDI+ made bare";
    table.columns = {
        {"library", "library, us", 1}, {"bare", "bare, us", 1}, {"ratio", "ratio", 3}};
    table.judged = "ratio";
    table.most = kMost;
    for (const int dpi : {96, 300}) {
        for (const std::shared_ptr<Scene>& scene : Scenes(dpi / 96.0)) {
            const std::string row = scene->name + ", " + std::to_string(dpi) + " dpi";
            benchmark::RegisterBenchmark(
                (table.name + "/" + row).c_str(),
                [scene](benchmark::State& state) { Measure(state, *scene); })
                ->UseManualTime()
                ->MinTime(kSecondsOfRow);
        }
    }
    return table;
}

}  // namespace bench
