#include <algorithm>
#include <cmath>

#include "map_surround/legend.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"

namespace host {
namespace {

std::unique_ptr<CMapLegend> MakeLegend(const LegendDesign& design,
                                       const Language& language, const MapOnPage& map,
                                       const Measures& measures) {
    auto legend = std::make_unique<CMapLegend>();
    legend->SetDataSouce(map.sources);
    SetCaptions(*legend, language);
    legend->SetTitleValue(design.title.value_or(language.legend));
    legend->SetTitle(design.family);
    legend->SetFileName(design.family);
    // It is drawn in the height of the ink of these, three quarters of them or more.
    constexpr double kSmallest = kSmallestEm / 0.75;
    legend->SetTitleSize(static_cast<float>(std::max(kSmallest, 0.95 * measures.module)));
    legend->SetFileNameSize(
        static_cast<float>(std::max(kSmallest, 0.7 * measures.module)));
    legend->ResetAspectRatio();
    return legend;
}

/// Makes the legend as small as it must be for its ink, and space around it, to fit.
InkBox Fit(CMapLegend& legend, double width, double height) {
    InkBox ink = MeasureInk(legend);
    // Text does not shrink quite as evenly as the layout: so look again.
    for (int i = 0; i < 4 && (ink.Width() > width || ink.Height() > height); ++i) {
        const double factor = std::min(width / ink.Width(), height / ink.Height());
        const int size = std::max(1, static_cast<int>(legend.GetSize() * factor));
        legend.SetSize(std::min(size, legend.GetSize() - 1));
        ink = MeasureInk(legend);
    }
    return ink;
}

}  // namespace

std::unique_ptr<LegendFrame> PlaceLegend(const PageDesign& design, const MapOnPage& map,
                                         const Measures& measures, const Box& room) {
    if (!design.legend.shown || map.sources.empty()) {
        return nullptr;
    }
    auto legend = MakeLegend(design.legend, *design.language, map, measures);
    const double space = 1.2 * measures.module;
    if (room.Width() <= space || room.Height() <= space) {
        return nullptr;
    }
    const InkBox ink = Fit(*legend, room.Width() - space, room.Height() - space);
    if (ink.IsEmpty()) {
        return nullptr;
    }
    auto frame = std::make_unique<LegendFrame>(std::move(legend));
    frame->SetSources(map.sources);
    FrameInk(*frame, ink, room, At::Top, design.frames, measures);
    frame->SetName("legend");
    return frame;
}

}  // namespace host
