#include "page/layout/fit_to_map.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/ink.h"
#include "page/layout/bar_on_map.h"
#include "page/layout/map_on_page.h"
#include "page/layout/scale_division.h"
#include "page/map/map_geometry.h"
#include "page/map/shown_map.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"

namespace host {
namespace {

// Smaller differences in proportions and lengths count as none: nobody sees that a map is
// stretched by half a percent.
constexpr double kNearlyTheShape = 0.005;
constexpr double kNearlyTrue = 1.0e-9;

constexpr double kMetresInAKilometre = 1000.0;

/// The map that a page describes: the first that is open and has coordinates.
struct SpokenOf {
    const MapFrame* frame = nullptr;
    ShownMap shown;
};

std::optional<SpokenOf> MapOf(const Page& page) {
    for (const PageItem& item : page.Items()) {
        const std::shared_ptr<MapLayers> layers = LayersOf(item);
        const double width = FrameOf(item).GetExtent().GetWidth();
        if (layers != nullptr && layers->IsPlaced() && width > 0.0) {
            return SpokenOf{&std::get<MapFrame>(item),
                            {layers->Projection(), layers->Extent(), width}};
        }
    }
    return std::nullopt;
}

/// Bars of version 1 pages are not exact: their divisions have one digit, and their unit
/// is the type of the bar.
void FitAsInVersion1(ScaleBarFrame& frame, const CScaleBarBase& bar,
                     const ShownMap& map) {
    const bool isKilometre = bar.GetDestUnitType() == MeasureKilometer &&
                             frame.GetBarDistances() == BarDistances::Ground;
    double perPageUnit = map.MapUnitsPerPageUnit();
    if (frame.GetBarDistances() == BarDistances::Ground) {
        const std::optional<MapGround> ground = MapGround::Of(map.projection, map.extent);
        const double step = map.extent.Width() / 1000.0;
        const std::optional<double> metres = ground ? ground->Metres(step) : std::nullopt;
        if (!metres) {
            return;
        }
        perPageUnit *= *metres / step / (isKilometre ? kMetresInAKilometre : 1.0);
    }
    const double told = frame.DivisionValue();
    const double length = frame.DivisionLength();
    if (!(length > 0.0) || std::fabs(length * perPageUnit - told) <= kNearlyTrue * told) {
        return;
    }
    const Division division = DivisionOf(length, perPageUnit);
    frame.SetDivisionValue(division.value);
    frame.SetDivisionLength(division.length);
}

/// Whether the whole bar stands for the distance that it gives.
bool IsTrue(const ScaleBarFrame& frame, const CScaleBarBase& bar, const ShownMap& map,
            const BarMeasure& measure) {
    const int divisions = bar.GetMainDivCount();
    const double said = frame.DivisionValue() * FactsOf(CountedUnit(frame, bar)).size;
    const std::optional<double> length =
        measure.Length(frame.DivisionLength() * divisions * map.MapUnitsPerPageUnit());
    return length && divisions > 0 &&
           std::fabs(*length - said * divisions) <= kNearlyTrue * *length;
}

/// Whether the bar's ink ends within its frame, if the frame has a width.
bool EndsInFrame(ScaleBarFrame& frame) {
    constexpr double kLittle = 1.0;  // page units
    const double width = frame.GetExtent().GetWidth();
    return !(width > 0.0) || MeasureInk(frame).right <= width / 2.0 + kLittle;
}

/// Gives a bar true divisions that fit in its frame.
bool FitWithinFrame(ScaleBarFrame& frame, CScaleBarBase& bar, const ShownMap& map,
                    const BarMeasure& measure) {
    constexpr double kLess = 0.95;
    constexpr int kTries = 40;
    const double asItIs = frame.DivisionLength() * bar.GetMainDivCount();
    const DistanceUnit unit =
        frame.Fit() == BarFit::Value ? CountedUnit(frame, bar) : frame.Unit();
    const double value = frame.DivisionValue();
    const int count = bar.GetMainDivCount();
    const bool ended = EndsInFrame(frame);
    double longest = frame.Longest() > 0.0 ? frame.Longest() : asItIs;
    std::optional<BarOnMap> first;
    for (int i = 0; i < kTries; ++i, longest *= kLess) {
        const auto fitted =
            FitBar(map, measure, unit, frame.Fit(), value, count, longest);
        if (!fitted) {
            break;
        }
        first = first ? first : fitted;
        SetDivisions(frame, bar, *fitted);
        if (!ended || EndsInFrame(frame)) {
            return true;
        }
    }
    if (first) {
        SetDivisions(frame, bar, *first);
    }
    return first.has_value();
}

void FitBarToMap(ScaleBarFrame& frame, CScaleBarBase& bar, const ShownMap& map,
                 std::vector<std::string>& remarks) {
    if (frame.GetBarDistances() == BarDistances::Fixed) {
        return;
    }
    if (!frame.IsExact()) {
        FitAsInVersion1(frame, bar, map);
        return;
    }
    std::string why;
    const std::optional<BarMeasure> measure =
        MeasureFor(map, frame.GetBarDistances(), frame.Unit(), why);
    if (measure && IsTrue(frame, bar, map, *measure)) {
        return;
    }
    if (measure && FitWithinFrame(frame, bar, map, *measure)) {
        return;
    }
    remarks.push_back(frame.Name() + ": the scale bar is not true to the map: " +
                      (why.empty() ? "none fits within its width" : why));
}

void FitArrow(const NorthArrowFrame& frame, CNorthArrowBase& arrow, const ShownMap& map,
              std::vector<std::string>& remarks) {
    if (!frame.TrueNorth()) {
        return;
    }
    const std::optional<MapGround> ground = MapGround::Of(map.projection, map.extent);
    const std::optional<double> angle = ground ? ground->TrueNorth() : std::nullopt;
    if (angle) {
        arrow.SetAngle(static_cast<float>(*angle));
        return;
    }
    remarks.push_back(frame.Name() +
                      ": the north arrow is not turned to true north: the map's "
                      "coordinate system does not tell where that is");
}

/// The length of a page's first scale bar that is true to the map, page units; 0 for
/// none.
double BarLength(const Page& page) {
    for (const PageItem& item : page.Items()) {
        const auto* const frame = FrameAs<ScaleBarFrame>(item);
        const auto* const bar = ElementOf<CScaleBarBase>(item);
        if (frame != nullptr && bar != nullptr &&
            frame->GetBarDistances() == BarDistances::Ground) {
            return frame->DivisionLength() * bar->GetMainDivCount();
        }
    }
    return 0.0;
}

void FitNumericScale(const PlacedFrame& frame, NumericScale& text, const SpokenOf& map,
                     double barLength, std::vector<std::string>& remarks) {
    const std::optional<double> scale =
        DenominatorOf(map.shown, map.frame->scale, barLength);
    if (!scale) {
        remarks.push_back(frame.Name() +
                          ": the numeric scale is not that of the map, whose coordinate "
                          "system is not known");
        return;
    }
    if (*scale != text.Denominator()) {
        text.SetDenominator(*scale);
        text.ResetAspectRatio();
    }
}

/// What a page says of a map without coordinates.
std::vector<std::string> RemarksOfNoCoordinates(const Page& page) {
    const std::vector<PageItem>& items = page.Items();
    std::vector<std::string> remarks;
    if (std::none_of(items.begin(), items.end(), [](const PageItem& item) {
            const auto* const map = std::get_if<MapFrame>(&item);
            return map != nullptr && map->picture != nullptr;
        })) {
        return remarks;
    }
    const auto tell = [&remarks](const PageItem& item, const char* what) {
        remarks.push_back(NameOf(item) + ": " + what + ", which has no georeference");
    };
    for (const PageItem& item : items) {
        const auto* const bar = FrameAs<ScaleBarFrame>(item);
        const auto* const arrow = FrameAs<NorthArrowFrame>(item);
        if (bar != nullptr && bar->GetBarDistances() != BarDistances::Fixed) {
            tell(item, "the scale bar is not true to the map");
        } else if (arrow != nullptr && arrow->TrueNorth()) {
            tell(item, "the north arrow does not follow the map");
        } else if (ElementOf<NumericScale>(item) != nullptr) {
            tell(item, "the numeric scale is not that of the map");
        }
    }
    return remarks;
}

}  // namespace

std::optional<double> DenominatorOf(const ShownMap& map, double kept, double barLength) {
    if (kept > 0.0) {
        return kept;
    }
    const std::optional<double> scale = ScaleOf(map, barLength);
    return scale ? std::optional<double>(NumericScale::Rounded(*scale)) : std::nullopt;
}

std::optional<double> DenominatorOn(const Page& page) {
    const std::optional<SpokenOf> map = MapOf(page);
    return map ? DenominatorOf(map->shown, map->frame->scale, BarLength(page))
               : std::nullopt;
}

DistanceUnit CountedUnit(const ScaleBarFrame& frame, const CScaleBarBase& bar) {
    const std::optional<DistanceUnit> called =
        IsByLength(frame.Unit()) ? frame.GetLanguage().UnitCalled(bar.GetUnitsName())
                                 : std::nullopt;
    return called && IsLength(*called) ? *called : UnitFor(frame.Unit(), 0.0);
}

std::vector<std::string> FitToMap(Page& page) {
    std::vector<std::string> remarks;
    const std::optional<SpokenOf> map = MapOf(page);
    if (!map) {
        return RemarksOfNoCoordinates(page);
    }
    for (PageItem& item : page.Items()) {
        auto* const barFrame = FrameAs<ScaleBarFrame>(item);
        auto* const bar = ElementOf<CScaleBarBase>(item);
        if (barFrame != nullptr && bar != nullptr) {
            FitBarToMap(*barFrame, *bar, map->shown, remarks);
        }
        const auto* const arrowFrame = FrameAs<NorthArrowFrame>(item);
        auto* const arrow = ElementOf<CNorthArrowBase>(item);
        if (arrowFrame != nullptr && arrow != nullptr) {
            FitArrow(*arrowFrame, *arrow, map->shown, remarks);
        }
    }
    // Along the bar, which has its length by now.
    const double barLength = BarLength(page);
    for (PageItem& item : page.Items()) {
        const auto* const frame = FrameAs<PlacedFrame>(item);
        auto* const scale = ElementOf<NumericScale>(item);
        if (frame != nullptr && scale != nullptr) {
            FitNumericScale(*frame, *scale, *map, barLength, remarks);
        }
    }
    return remarks;
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
