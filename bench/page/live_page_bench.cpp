// A page with a map and twelve elements at 1600 x 1131 pixels, of which one is dragged.

#include <benchmark/benchmark.h>

#include <memory>
#include <variant>

#include "page/live_page.h"
#include "page/twelve_elements.h"
#include "run_benchmarks.h"

namespace {

constexpr double kDpi = 1600.0 * 96.0 / 1123.0;

/// Back and forth, so that the element stays where it is.
void Drag(const host::Page& page, std::size_t item, int move) {
    const double step = move % 2 == 0 ? 3.0 : -3.0;
    std::get<std::unique_ptr<CSurroundFrame>>(page.Items()[item])->SetOffset(step, step);
}

void RedrawAll(benchmark::State& state) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, kDpi);
    int move = 0;
    while (state.KeepRunning()) {
        Drag(page, static_cast<std::size_t>(state.range(0)), move++);
        live.DrawAll();
    }
}

void RedrawWhatMoved(benchmark::State& state) {
    const host::Page page = host_tests::TwelveElements();
    host::LivePage live(page, kDpi);
    const auto item = static_cast<std::size_t>(state.range(0));
    int move = 0;
    while (state.KeepRunning()) {
        Drag(page, item, move++);
        live.DrawMoved(item);
    }
}

void Repeat(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly();
}

void EachElement(benchmark::internal::Benchmark* bench) {
    Repeat(bench);
    bench->ArgName("item")->DenseRange(1, 12);
}

BENCHMARK(RedrawAll)->Apply(Repeat)->Arg(1);
BENCHMARK(RedrawWhatMoved)->Apply(EachElement);

}  // namespace

int main(int argc, char** argv) { return bench::RunBenchmarks(argc, argv); }
