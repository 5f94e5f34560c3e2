#include <algorithm>
#include <cmath>

#include "map_surround/north_arrow.h"
#include "page/layout/steps.h"
#include "page/map/map_geometry.h"

namespace host {
namespace {

double AngleOf(const NorthArrowDesign& design, const MapOnPage& map,
               std::vector<std::string>& remarks) {
    if (!design.trueNorth) {
        return design.angle;
    }
    const std::optional<double> angle =
        map.extent ? TrueNorthAt(map.projection, *map.extent) : std::nullopt;
    if (!angle) {
        remarks.emplace_back(
            "the direction of true north is unknown, for the map has no coordinate "
            "system");
    }
    return angle.value_or(0.0);
}

}  // namespace

const CatalogueEntry* NorthArrowStyleOn(const PageDesign& design, const MapOnPage& map) {
    return design.northArrow.style.value_or(map.extent ? UsualStyle(SurroundNorthArrow)
                                                       : nullptr);
}

std::unique_ptr<PlacedFrame> PlaceNorthArrow(const PageDesign& design,
                                             const MapOnPage& map,
                                             const Measures& measures, const Box& room,
                                             std::vector<std::string>& remarks) {
    const CatalogueEntry* const style = NorthArrowStyleOn(design, map);
    auto arrow = style == nullptr ? nullptr : NewElement<CNorthArrowBase>(*style);
    const double side = std::min(room.Width(), room.Height());
    const double space = 0.6 * measures.module;
    if (arrow == nullptr || side <= 2.0 * space) {
        return nullptr;
    }
    // All styles keep within a square of their size, and a turned one within its
    // diagonal.
    arrow->SetSize(static_cast<int>(side - 2.0 * space));
    arrow->SetFrontColor(Gdiplus::Color(kInkColor));
    arrow->SetAngle(static_cast<float>(AngleOf(design.northArrow, map, remarks)));
    const Box extent = {room.left, room.bottom, room.left + side, room.bottom + side};
    const InkBox ink = MeasureInk(*arrow);
    auto frame = std::make_unique<NorthArrowFrame>(std::move(arrow));
    Decorate(*frame, extent, design.frames, measures);
    frame->SetName("north arrow");
    frame->SetTrueNorth(design.northArrow.trueNorth);
    frame->SetElementOffset((ink.left - ink.right) / 2.0, (ink.down - ink.up) / 2.0);
    return frame;
}

}  // namespace host
