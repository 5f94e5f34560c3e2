#include <algorithm>
#include <cmath>

#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/layout/bar_on_map.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"
#include "page/layout/type_scale.h"

namespace host {
namespace {

constexpr int kUsualDivisions = 4;
constexpr double kLongest = 4.5;  // columns of the layout's grid

// The least difference in scale between directions that is remarked; maps in degrees
// differ more.
constexpr double kNearlyConformal = 0.01;

/// What a bar is made with, and how the map is measured for it.
struct Plan {
    std::unique_ptr<ScaleBarFrame> frame;
    CScaleBarBase* bar = nullptr;
    BarMeasure measure;
};

std::optional<Plan> PlanBar(const CatalogueEntry& style, const ScaleBarDesign& design,
                            const Language& language, const ShownMap& map,
                            std::vector<std::string>& remarks) {
    const DistanceUnit unit =
        design.unit.value_or(UsualUnit(map.projection, design.distances));
    std::string why;
    const std::optional<BarMeasure> measure =
        MeasureFor(map, design.distances, unit, why);
    if (!measure) {
        remarks.push_back("the scale bar is left out: it cannot be in " +
                          std::string(FactsOf(unit).about) + ": " + why);
        return std::nullopt;
    }
    auto bar = NewElement<CScaleBarBase>(style);
    bar->SetFrontColor(Gdiplus::Color(kInkColor));
    bar->SetMainDivCount(design.divisions.value_or(kUsualDivisions));
    bar->SetSubDivCount(design.subdivisions);
    bar->SetUnitPos(design.unitPosition);
    bar->SetUnitsNameVerbatim(design.unitName.value_or(language.Unit(unit)));
    auto frame = std::make_unique<ScaleBarFrame>(std::move(bar));
    frame->SetUnit(unit);
    frame->SetLanguage(language);
    frame->SetFit(design.fit);
    frame->SetBarDistances(IsLength(unit) ? design.distances : BarDistances::Map);
    auto* const placed = ElementOf<CScaleBarBase>(*frame);
    return Plan{std::move(frame), placed, *measure};
}

/// Gives a bar a number of divisions, as long as there is room for them.
/// @return its ink; empty where there is no room
InkBox Fit(Plan& plan, const ScaleBarDesign& design, const ShownMap& map, int count,
           double most) {
    constexpr double kLess = 0.95;
    constexpr int kTries = 60;
    // Labels and unit name stand out beyond the divisions, so make these smaller until
    // everything fits.
    double longest = most;
    for (int i = 0; i < kTries; ++i, longest *= kLess) {
        const std::optional<BarOnMap> divisions = FitBar(
            map, plan.measure, plan.frame->Unit(), BarFit::Count, 0.0, count, longest);
        if (!divisions || !NumbersAreApart(plan.bar->GetSize() * kBarNumbers,
                                           divisions->value, divisions->length, count)) {
            return {};
        }
        SetDivisions(*plan.frame, *plan.bar, *divisions);
        plan.bar->ResetAspectRatio();
        const InkBox ink = MeasureInk(*plan.frame);
        if (ink.Width() <= most) {
            if (design.unitName && IsByLength(plan.frame->Unit())) {
                plan.frame->SetUnit(divisions->unit);  // a name belongs to one unit
                plan.bar->SetUnitsNameVerbatim(*design.unitName);
            }
            plan.frame->SetLongest(longest);
            return ink;
        }
    }
    return {};
}

/// The size of a bar whose numbers have a size, in points.
int BarSize(double points) {
    return static_cast<int>(std::ceil(UnitsFromPoints(points) / kBarNumbers));
}

/// Gives a bar as many divisions as fit, up to a number, with its numbers in the usual
/// type size, or in the smallest.
InkBox FitLegibly(Plan& plan, const ScaleBarDesign& design, const ShownMap& map,
                  const Measures& measures, double most) {
    for (const double points : {measures.body, kLeastSetPoints}) {
        plan.bar->SetSize(BarSize(points));
        for (int count = design.divisions.value_or(kUsualDivisions); count > 0; --count) {
            const InkBox ink = Fit(plan, design, map, count, most);
            if (!ink.IsEmpty()) {
                return ink;
            }
        }
    }
    return {};
}

/// Remarks on a scale that does not hold in other directions.
void TellDirection(const ShownMap& map, std::vector<std::string>& remarks) {
    const std::optional<MapGround> ground = MapGround::Of(map.projection, map.extent);
    const std::optional<double> stretch = ground ? ground->UpwardStretch() : std::nullopt;
    if (stretch && std::fabs(*stretch - 1.0) > kNearlyConformal) {
        remarks.push_back(
            "the scale is that from left to right in the middle of the map; upwards the "
            "map is drawn " +
            std::to_string(std::lround(*stretch * 100.0)) + " % as long");
    }
}

}  // namespace

const CatalogueEntry* ScaleBarStyleOn(const PageDesign& design, const MapOnPage& map) {
    return map.extent ? design.scaleBar.style.value_or(UsualStyle(SurroundScaleBar))
                      : nullptr;
}

double ScaleBarHeight(const PageDesign& design, const MapOnPage& map,
                      const Measures& measures) {
    const CatalogueEntry* const style = ScaleBarStyleOn(design, map);
    std::vector<std::string> notTold;
    std::optional<Plan> plan;
    if (style != nullptr) {
        plan = PlanBar(*style, design.scaleBar, *design.language,
                       {map.projection, *map.extent, 1.0}, notTold);
    }
    if (!plan) {
        return 0.0;
    }
    plan->bar->SetSize(BarSize(measures.body));
    plan->bar->SetMainDivCount(1);
    plan->frame->SetDivisionLength(measures.column);
    plan->bar->ResetAspectRatio();
    return MeasureInk(*plan->frame).Height() + 2.0 * measures.space;
}

std::unique_ptr<PlacedFrame> PlaceScaleBar(const PageDesign& design, const MapOnPage& map,
                                           const ShownMap& shown,
                                           const Measures& measures, const Box& cell,
                                           std::vector<std::string>& remarks) {
    const CatalogueEntry* const style = ScaleBarStyleOn(design, map);
    if (style == nullptr) {
        return nullptr;
    }
    std::optional<Plan> plan =
        PlanBar(*style, design.scaleBar, *design.language, shown, remarks);
    if (!plan) {
        return nullptr;
    }
    const InkBox ink = FitLegibly(
        *plan, design.scaleBar, shown, measures,
        std::min(cell.Width(), kLongest * measures.column) - 2.0 * measures.space);
    if (ink.IsEmpty()) {
        remarks.emplace_back("the scale bar is left out: there is no room for it");
        return nullptr;
    }
    const int count = plan->bar->GetMainDivCount();
    if (count < design.scaleBar.divisions.value_or(1)) {
        remarks.push_back("the scale bar has fewer divisions than were asked for, " +
                          std::to_string(count) +
                          ": the numbers of more would run into one another");
    }
    TellDirection(shown, remarks);
    FrameInk(*plan->frame, ink, cell, Stands::InTheMiddle, design.frames, measures);
    plan->frame->SetName("scale bar");
    return std::move(plan->frame);
}

}  // namespace host
