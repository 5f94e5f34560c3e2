#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "map_surround/north_arrow.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"
#include "page/layout/type_scale.h"
#include "page/map/map_geometry.h"

namespace host {
namespace {

std::optional<double> TrueNorthOf(const ShownMap& shown) {
    const std::optional<MapGround> ground = MapGround::Of(shown.projection, shown.extent);
    return ground ? ground->TrueNorth() : std::nullopt;
}

/// The direction of north, where it is known.
std::optional<double> AngleOf(const NorthArrowDesign& design, const ShownMap& shown,
                              std::vector<std::string>& remarks) {
    if (design.angle) {
        return design.angle;
    }
    const std::optional<double> angle = TrueNorthOf(shown);
    if (!angle) {
        remarks.emplace_back(
            shown.projection.empty()
                ? "the north arrow is left out: the map has no coordinate system that "
                  "tells where north is"
                : "the north arrow is left out: the coordinate system does not tell "
                  "where "
                  "north is in the middle of the map");
    }
    return angle;
}

/// The usual style, or on a small sheet, where its letters would be illegible, one with
/// larger letters.
std::unique_ptr<CNorthArrowBase> LegibleArrow(std::unique_ptr<CNorthArrowBase> usual,
                                              double size) {
    const std::vector<const CatalogueEntry*> styles = StylesOf(SurroundNorthArrow);
    for (auto style = styles.rbegin(); style != styles.rend(); ++style) {
        if (LettersOf(*usual) * size >= UnitsFromPoints(kLeastSetPoints)) {
            break;
        }
        usual = NewElement<CNorthArrowBase>(**style);
    }
    return usual;
}

}  // namespace

const CatalogueEntry* NorthArrowStyleOn(const PageDesign& design, const MapOnPage& map) {
    return design.northArrow.style.value_or(map.extent ? UsualStyle(SurroundNorthArrow)
                                                       : nullptr);
}

bool HasNorthArrow(const PageDesign& design, const MapOnPage& map) {
    return NorthArrowStyleOn(design, map) != nullptr &&
           (design.northArrow.angle ||
            TrueNorthOf({map.projection, map.extent.value_or(Box()), 1.0}));
}

std::unique_ptr<PlacedFrame> PlaceNorthArrow(const PageDesign& design,
                                             const MapOnPage& map, const ShownMap& shown,
                                             const Measures& measures, const Box& cell,
                                             std::vector<std::string>& remarks) {
    const CatalogueEntry* const style = NorthArrowStyleOn(design, map);
    auto arrow = style == nullptr ? nullptr : NewElement<CNorthArrowBase>(*style);
    if (arrow == nullptr) {
        return nullptr;
    }
    const std::optional<double> angle = AngleOf(design.northArrow, shown, remarks);
    if (!angle) {
        return nullptr;
    }
    const double size =
        std::min({cell.Width(), cell.Height(), measures.column}) - 2.0 * measures.space;
    if (size <= 0.0) {
        remarks.emplace_back("the north arrow is left out: there is no room for it");
        return nullptr;
    }
    if (!design.northArrow.style) {
        arrow = LegibleArrow(std::move(arrow), size);
    }
    // Every style stays within a square of its size; a rotated one stays within the
    // diagonal.
    arrow->SetSize(static_cast<int>(size));
    arrow->SetFrontColor(Gdiplus::Color(kInkColor));
    arrow->SetAngle(static_cast<float>(*angle));
    auto frame = std::make_unique<NorthArrowFrame>(std::move(arrow));
    FrameInk(*frame, MeasureInk(*frame), cell, Stands::InTheMiddle, design.frames,
             measures);
    frame->SetName("north arrow");
    frame->SetTrueNorth(!design.northArrow.angle);
    return frame;
}

}  // namespace host
