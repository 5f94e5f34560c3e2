#include "page/layout/fit_to_map.h"

#include <cmath>
#include <memory>

#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/layout/scale_division.h"
#include "page/map/map_geometry.h"
#include "page/map/map_layers.h"
#include "page/placed_frame.h"

namespace host {
namespace {

// Proportions and lengths that differ by less count as the same: of half a percent nobody
// sees that a map is stretched.
constexpr double kNearlyTheShape = 0.005;
constexpr double kNearlyTrue = 1.0e-9;

constexpr double kMetresInAKilometre = 1000.0;

/// The map that a page speaks of.
struct ShownMap {
    const MapLayers* layers = nullptr;
    double perPageUnit = 0.0;  // map units
};

ShownMap MapOf(const Page& page) {
    for (const PageItem& item : page.Items()) {
        const auto* const map = std::get_if<MapFrame>(&item);
        const auto* const layers =
            map == nullptr ? nullptr : dynamic_cast<const MapLayers*>(map->picture.get());
        const double width = map == nullptr ? 0.0 : map->frame.GetExtent().GetWidth();
        if (layers != nullptr && layers->IsPlaced() && width > 0.0) {
            return {layers, layers->Extent().Width() / width};
        }
    }
    return {};
}

/// How much of the bar's unit one page unit is; none where that is not known.
std::optional<double> UnitsPerPageUnit(const ScaleBarFrame& frame,
                                       const CScaleBarBase& bar, const ShownMap& map) {
    if (frame.GetBarDistances() == BarDistances::Map) {
        return map.perPageUnit;
    }
    const std::optional<double> metres =
        GroundMetresPerUnit(map.layers->Projection(), map.layers->Extent());
    if (!metres) {
        return std::nullopt;
    }
    const double unit =
        bar.GetDestUnitType() == MeasureKilometer ? kMetresInAKilometre : 1.0;
    return map.perPageUnit * *metres / unit;
}

void FitBar(ScaleBarFrame& frame, const CScaleBarBase& bar, const ShownMap& map) {
    if (frame.GetBarDistances() == BarDistances::Fixed) {
        return;
    }
    const std::optional<double> perPageUnit = UnitsPerPageUnit(frame, bar, map);
    const double told = frame.DivisionValue();
    const double length = frame.DivisionLength();
    if (!perPageUnit || !(length > 0.0) ||
        std::fabs(length * *perPageUnit - told) <= kNearlyTrue * told) {
        return;
    }
    const Division division = DivisionOf(length, *perPageUnit);
    frame.SetDivisionValue(division.value);
    frame.SetDivisionLength(division.length);
}

void FitArrow(const NorthArrowFrame& frame, CNorthArrowBase& arrow, const ShownMap& map) {
    const std::optional<double> angle =
        frame.TrueNorth() ? TrueNorthAt(map.layers->Projection(), map.layers->Extent())
                          : std::nullopt;
    if (angle) {
        arrow.SetAngle(static_cast<float>(*angle));
    }
}

}  // namespace

void FitToMap(Page& page) {
    const ShownMap map = MapOf(page);
    if (map.layers == nullptr) {
        return;
    }
    for (PageItem& item : page.Items()) {
        auto* const barFrame = FrameAs<ScaleBarFrame>(item);
        const auto* const bar = ElementOf<CScaleBarBase>(item);
        if (barFrame != nullptr && bar != nullptr) {
            FitBar(*barFrame, *bar, map);
        }
        const auto* const arrowFrame = FrameAs<NorthArrowFrame>(item);
        auto* const arrow = ElementOf<CNorthArrowBase>(item);
        if (arrowFrame != nullptr && arrow != nullptr) {
            FitArrow(*arrowFrame, *arrow, map);
        }
    }
}

Box Widened(const Box& extent, double aspectRatio) {
    const double own = extent.Width() / extent.Height();
    if (!(aspectRatio > 0.0) || !std::isfinite(aspectRatio) ||
        std::fabs(own / aspectRatio - 1.0) <= kNearlyTheShape) {
        return extent;
    }
    const double width =
        own < aspectRatio ? extent.Height() * aspectRatio : extent.Width();
    const double height =
        own < aspectRatio ? extent.Height() : extent.Width() / aspectRatio;
    const double left = extent.MiddleX() - width / 2.0;
    const double bottom = extent.MiddleY() - height / 2.0;
    return {left, bottom, left + width, bottom + height};
}

}  // namespace host
