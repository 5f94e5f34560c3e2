// A legend takes time in proportion to its classes, however many they are.

#include <benchmark/benchmark.h>
#include <gdiplus.h>

#include <algorithm>
#include <string>
#include <vector>

#include "flat_calls.h"
#include "legend/fake_sources.h"
#include "map_surround/legend.h"

namespace {

/// A source with that many classes, of labels of one length.
fakes::Raster Classified(int classes) {
    fakes::Raster raster(L"land cover.tif", DisplayClassified);
    for (int i = 0; i < classes; ++i) {
        const auto shade = static_cast<unsigned char>(i);
        raster.table.items.emplace_back(L"class " + std::to_wstring(10000 + i), shade,
                                        shade, shade);
    }
    return raster;
}

void CountClasses(benchmark::State& state) {
    state.counters["per_class"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void LayOut(benchmark::State& state) {
    fakes::Raster raster = Classified(static_cast<int>(state.range(0)));
    CMapLegend legend;
    legend.SetDataSouce({&raster});
    const std::shared_ptr<void> calls = HoldFlatCalls();
    while (state.KeepRunning()) {
        legend.ResetAspectRatio();
    }
    CountClasses(state);
}

/// Small enough for the largest legend to fit on a surface; the others are drawn as
/// small, each on a surface of its own height.
constexpr double kScale = 0.15;

void Draw(benchmark::State& state) {
    fakes::Raster raster = Classified(static_cast<int>(state.range(0)));
    CMapLegend legend;
    legend.SetDataSouce({&raster});
    legend.ResetAspectRatio();
    const int height = static_cast<int>(legend.GetSize() * kScale);
    Gdiplus::Bitmap bitmap(100, height, PixelFormat32bppARGB);
    Gdiplus::Graphics graphics(&bitmap);
    const std::shared_ptr<void> calls = HoldFlatCalls();
    while (state.KeepRunning()) {
        legend.Draw(&graphics, CPoint(50, height / 2), kScale);
    }
    CountClasses(state);
}

/// The least of the repetitions is the one that other programs disturbed least.
double Least(const std::vector<double>& times) {
    return *std::min_element(times.begin(), times.end());
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1000)->Arg(10000);
    bench->Unit(benchmark::kMicrosecond)->Repetitions(7)->MinTime(0.1);
    bench->ComputeStatistics("least", Least)->ReportAggregatesOnly();
}

BENCHMARK(LayOut)->Apply(Sizes);
BENCHMARK(Draw)->Apply(Sizes);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    Gdiplus::GdiplusShutdown(token);
    return 0;
}
