#include <algorithm>
#include <cmath>

#include "map_surround/legend.h"
#include "page/element_of.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"

namespace host {
namespace {

/// @param width that it has, page units
std::unique_ptr<LegendFrame> MakeLegend(const PageDesign& design, const MapOnPage& map,
                                        const Measures& measures, double width) {
    auto frame = std::make_unique<LegendFrame>(std::make_unique<CMapLegend>());
    frame->SetJoinsTiles(true);
    frame->SetExplainsRamps(true);
    frame->SetSources(map.sources);
    auto* const legend = ElementOf<CMapLegend>(*frame);
    DressLegend(*legend, design);
    // It is drawn in the height of the ink of these, three quarters of them or more.
    constexpr double kSmallest = kSmallestEm / 0.75;
    const double size = std::max(kSmallest, 0.7 * measures.module);
    legend->SetTitleSize(static_cast<float>(std::max(kSmallest, 0.95 * measures.module)));
    legend->SetFileNameSize(static_cast<float>(size));
    // Type shrinks by a fifth before names are cut.
    legend->SetMostWidth(static_cast<float>(width / std::max(0.8, kSmallest / size)));
    legend->ResetAspectRatio();
    return frame;
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

void DressLegend(CMapLegend& legend, const PageDesign& design) {
    constexpr float kGap = 0.8f;  // rows
    SetCaptions(legend, *design.language);
    legend.SetTitleValue(design.legend.title.value_or(design.language->legend));
    legend.SetTitle(design.legend.family);
    legend.SetFileName(design.legend.family);
    legend.SetAlignedLabels(true);
    legend.SetGap(kGap);
}

std::unique_ptr<LegendFrame> PlaceLegend(const PageDesign& design, const MapOnPage& map,
                                         const Measures& measures, const Box& room) {
    if (!design.legend.shown || map.sources.empty()) {
        return nullptr;
    }
    const double space = 1.2 * measures.module;
    if (room.Width() <= space || room.Height() <= space) {
        return nullptr;
    }
    auto frame = MakeLegend(design, map, measures, room.Width() - space);
    const InkBox ink =
        Fit(*ElementOf<CMapLegend>(*frame), room.Width() - space, room.Height() - space);
    if (ink.IsEmpty()) {
        return nullptr;
    }
    FrameInk(*frame, ink, room, At::Top, design.frames, measures);
    frame->SetName("legend");
    return frame;
}

}  // namespace host
