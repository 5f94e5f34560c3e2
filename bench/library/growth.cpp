// The time of one item, among few and among many.

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "elements.h"
#include "flat_calls.h"
#include "framed_page.h"
#include "side_by_side.h"
#include "surface.h"
#include "tables.h"

namespace bench {
namespace {

using Run = std::function<void()>;

constexpr double kMostGrowth = 1.2;
constexpr int kFew = 10;               // from so many on, items are compared
constexpr int kItemsOfTurn = 1000;     // so that few take as long a turn as many
constexpr double kLegendScale = 0.15;  // the longest legend fits on a surface

/// A bar whose ticks stand as close and whose labels are as long however many there are.
template <typename Bar>
Run DrawBar(int divisions, int subDivisions) {
    constexpr int kPixelsBetweenTicks = 25;
    constexpr int kHeight = 60;
    const int division = kPixelsBetweenTicks * subDivisions;
    const auto bar = std::make_shared<Bar>();
    bar->SetMainDivCount(divisions);
    bar->SetSubDivCount(subDivisions - 1);
    bar->SetPaper2DataScale(0.00001);
    bar->SetPaper2ScreenScale(division);
    bar->SetScreen2PaperByOneScale(division);
    bar->ResetAspectRatio();
    const auto surface =
        std::make_shared<Surface>(divisions * division + 2 * kHeight, kHeight);
    const CPoint centre(divisions * division / 2 + kHeight, kHeight / 2);
    return [=] { bar->Draw(&surface->Graphics(), centre, 1.0); };
}

template <typename Bar>
Run DrawDivisions(int count) {
    return DrawBar<Bar>(count, 1);
}

template <typename Bar>
Run DrawSubDivisions(int count) {
    return DrawBar<Bar>(1, count);
}

Run DrawLegend(std::vector<fakes::Raster> rasters) {
    const auto legend = std::make_shared<LegendOfRasters>(std::move(rasters));
    const int height = static_cast<int>(legend->GetSize() * kLegendScale);
    const auto surface = std::make_shared<Surface>(100, height);
    const CPoint centre(50, height / 2);
    return [=] { legend->Draw(&surface->Graphics(), centre, kLegendScale); };
}

Run MeasureLegend(std::vector<fakes::Raster> rasters) {
    const auto legend = std::make_shared<LegendOfRasters>(std::move(rasters));
    return [=] { legend->ResetAspectRatio(); };
}

std::vector<fakes::Raster> OneOf(int classes) { return {ClassifiedRaster(classes)}; }

std::vector<fakes::Raster> Many(int sources) {
    return std::vector<fakes::Raster>(static_cast<std::size_t>(sources), RgbRaster());
}

Run DrawPage(int elements) {
    const auto page = std::make_shared<FramedPage>(794, 1123, 1.0);
    for (int i = 0; i < elements; ++i) {
        page->Place(NewTitle(), {250 + i % 7 * 50, 30 + i % 31 * 34});
    }
    return [=] { page->Draw(); };
}

struct Row {
    std::string name;
    int most;
    std::function<Run(int count)> of;
};

const std::vector<Row>& Rows() {
    static const std::vector<Row> rows{
        {"divisions, line", 1000, DrawDivisions<CScaleLine>},
        {"divisions, alternating", 1000, DrawDivisions<CScaleAlternate>},
        {"divisions, equal boxes", 1000, DrawDivisions<CScaleEquAltenate>},
        {"sub-divisions, line", 1000, DrawSubDivisions<CScaleLine>},
        {"sub-divisions, alternating", 1000, DrawSubDivisions<CScaleAlternate>},
        {"classes", 10000, [](int count) { return DrawLegend(OneOf(count)); }},
        {"classes, measured", 10000,
         [](int count) { return MeasureLegend(OneOf(count)); }},
        {"sources", 1000, [](int count) { return DrawLegend(Many(count)); }},
        {"sources, measured", 1000, [](int count) { return MeasureLegend(Many(count)); }},
        {"elements on a page", 1000, DrawPage},
    };
    return rows;
}

void Measure(benchmark::State& state, const Row& row, bool alone) {
    std::vector<int> counts;
    SideBySide turns;
    for (int count = 1; count <= row.most; count *= 10) {
        counts.push_back(count);
        turns.Add(row.of(count), std::max(1, kItemsOfTurn / count));
    }
    std::optional<FlatCalls> dropped;
    if (alone) {
        dropped.emplace(Carry::Drop);
    }
    while (state.KeepRunning()) {
        state.SetIterationTime(turns.Round());
    }
    for (std::size_t i = 0; i < counts.size(); ++i) {
        state.counters[std::to_string(counts[i])] = turns.Seconds(i) / counts[i] * 1e6;
    }
    // Beside the cheapest, for where few items carry what is done once a drawing they
    // would hide that more of them cost more.
    const std::size_t most = counts.size() - 1;
    double growth = 1.0;
    for (std::size_t i = 0; i < most; ++i) {
        if (counts[i] >= kFew) {
            growth = std::max(growth, turns.Ratio(most, i) * counts[i] / counts[most]);
        }
    }
    state.counters["growth"] = growth;
}

Table AddTable(bool alone) {
    Table table;
    table.name = alone ? "growth_alone" : "growth";
    table.title = alone ? "How the library's own share grows: us per item"
                        : "How drawing grows: us per item";
    for (const char* count : {"1", "10", "100", "1000", "10000"}) {
        table.columns.push_back({count, std::string("of ") + count, 3});
    }
    table.columns.push_back({"growth", "growth", 2});
    table.judged = "growth";
    table.most = kMostGrowth;
    for (const Row& row : Rows()) {
        benchmark::RegisterBenchmark(
            (table.name + "/" + row.name).c_str(),
            [&row, alone](benchmark::State& state) { Measure(state, row, alone); })
            ->UseManualTime()
            ->Iterations(alone ? 101 : 7);
    }
    return table;
}

}  // namespace

Table AddGrowth() { return AddTable(false); }
Table AddGrowthAlone() { return AddTable(true); }

}  // namespace bench
