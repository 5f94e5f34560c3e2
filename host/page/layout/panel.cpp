#include <algorithm>
#include <utility>

#include "page/element_of.h"
#include "page/layout/steps.h"

namespace host {
namespace {

void Add(Page& page, std::unique_ptr<PlacedFrame> frame) {
    if (frame != nullptr) {
        page.Add(std::move(frame));
    }
}

double TopOf(const PlacedFrame* frame, double otherwise) {
    return frame == nullptr ? otherwise : frame->GetExtent().TopLeft().y;
}

/// The scale in figures above the bar at the bottom of a room, which is what is left
/// above both then.
std::unique_ptr<PlacedFrame> AboveWithScale(const PageDesign& design,
                                            const ShownMap& shown,
                                            const Measures& measures,
                                            const PlacedFrame* bar, Box& room,
                                            std::vector<std::string>& remarks) {
    double length = 0.0;
    if (const auto* const placed = dynamic_cast<const ScaleBarFrame*>(bar)) {
        const auto* const element = ElementOf<CScaleBarBase>(*placed);
        length = placed->DivisionLength() * element->GetMainDivCount();
        room.bottom = TopOf(placed, room.bottom) + measures.gap;
    }
    auto scale = PlaceNumericScale(design, shown, length, measures, room, remarks);
    room.bottom = TopOf(scale.get(), room.bottom - measures.gap) + measures.gap;
    return scale;
}

/// From the bottom: north arrow and picture side by side, the scale bar, the legend.
void FillHigh(Page& page, const PageDesign& design, const MapOnPage& map,
              const ShownMap& shown, const Measures& measures, const Box& panel,
              std::vector<std::string>& remarks) {
    const double half = (panel.Width() - measures.gap) / 2.0;
    const Box left = {panel.left, panel.bottom, panel.left + half, panel.top};
    const Box right = {panel.right - half, panel.bottom, panel.right, panel.top};
    auto picture =
        PlacePicture(design, measures, HasPanelTexts(design, map) ? right : panel);
    auto arrow = PlaceNorthArrow(design, map, shown, measures, left, remarks);

    Box rest = panel;
    const double rowTop =
        std::max(TopOf(picture.get(), panel.bottom), TopOf(arrow.get(), panel.bottom));
    if (picture != nullptr || arrow != nullptr) {
        rest.bottom = rowTop + measures.gap;
    }
    auto bar = PlaceScaleBar(design, map, shown, measures, rest, remarks);
    auto scale = AboveWithScale(design, shown, measures, bar.get(), rest, remarks);
    Add(page, PlaceLegend(design, map, measures, rest));
    Add(page, std::move(bar));
    Add(page, std::move(scale));
    Add(page, std::move(arrow));
    Add(page, std::move(picture));
}

/// The legend at the left, the picture at the right, north arrow over scale bar between.
void FillWide(Page& page, const PageDesign& design, const MapOnPage& map,
              const ShownMap& shown, const Measures& measures, const Box& panel,
              std::vector<std::string>& remarks) {
    Box rest = panel;
    auto picture = PlacePicture(design, measures, panel);
    if (picture != nullptr) {
        rest.right = picture->GetExtent().TopLeft().x - measures.gap;
    }
    Box legendRoom = rest;
    legendRoom.right = rest.left + rest.Width() / 2.0;
    auto legend = PlaceLegend(design, map, measures, legendRoom);
    if (legend != nullptr) {
        const CBoundingBox extent = legend->GetExtent();
        rest.left = extent.TopLeft().x + extent.GetWidth() + measures.gap;
    }
    rest.right = std::min(rest.right, rest.left + 1.5 * measures.panel);
    auto bar = PlaceScaleBar(design, map, shown, measures, rest, remarks);
    auto scale = AboveWithScale(design, shown, measures, bar.get(), rest, remarks);
    Add(page, std::move(legend));
    Add(page, PlaceNorthArrow(design, map, shown, measures, rest, remarks));
    Add(page, std::move(bar));
    Add(page, std::move(scale));
    Add(page, std::move(picture));
}

}  // namespace

bool HasPanelTexts(const PageDesign& design, const MapOnPage& map) {
    const bool hasLegend = design.legend.shown && !map.sources.empty();
    return hasLegend || ScaleBarStyleOn(design, map) != nullptr ||
           NorthArrowStyleOn(design, map) != nullptr;
}

bool HasPanel(const PageDesign& design, const MapOnPage& map) {
    return !design.picture.path.empty() || HasPanelTexts(design, map);
}

void FillPanel(Page& page, const PageDesign& design, const MapOnPage& map,
               const ShownMap& shown, const Measures& measures, const Box& panel,
               std::vector<std::string>& remarks) {
    if (!HasPanel(design, map)) {
        return;
    }
    const bool isHigh = panel.Height() >= panel.Width();
    (isHigh ? FillHigh : FillWide)(page, design, map, shown, measures, panel, remarks);
}

}  // namespace host
