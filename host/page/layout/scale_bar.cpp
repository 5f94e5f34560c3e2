#include <algorithm>
#include <cmath>

#include "map_surround/scale_bar.h"
#include "page/layout/scale_division.h"
#include "page/layout/steps.h"
#include "page/map/map_geometry.h"

namespace host {
namespace {

/// What the bar counts: how much of its unit one page unit is, and the unit's name.
struct Measurement {
    double perPageUnit;
    std::wstring unit;
    CommonMeasureUnits type;
    bool isGround = false;
};

constexpr double kKilometresFrom = 10'000.0;  // metres that the whole bar stands for

CommonMeasureUnits TypeOf(MapUnit unit) {
    switch (unit) {
        case MapUnit::Metre:
            return MeasureMeter;
        case MapUnit::Degree:
            return MeasureDegree;
        case MapUnit::Unknown:
            break;
    }
    return MeasureUnknown;
}

const wchar_t* NameOf(MapUnit unit) {
    switch (unit) {
        case MapUnit::Metre:
            return L"meter";
        case MapUnit::Degree:
            return L"degree";
        case MapUnit::Unknown:
            break;
    }
    return L"unknown";
}

/// @param barLength page units, about
Measurement Measure(const ScaleBarDesign& design, const MapOnPage& map,
                    const Box& mapRoom, double barLength,
                    std::vector<std::string>& remarks) {
    const MapUnit mapUnit = UnitOf(map.projection);
    Measurement result{map.extent->Width() / mapRoom.Width(), NameOf(mapUnit),
                       TypeOf(mapUnit)};
    if (design.ground) {
        const std::optional<double> metres =
            GroundMetresPerUnit(map.projection, *map.extent);
        if (metres) {
            result = {result.perPageUnit * *metres, L"meter", MeasureMeter, true};
            if (result.perPageUnit * barLength >= kKilometresFrom) {
                result = {result.perPageUnit / 1000.0, L"Kilometer", MeasureKilometer,
                          true};
            }
        } else {
            remarks.emplace_back(
                "lengths on the ground are unknown, for the map has no coordinate "
                "system");
        }
    }
    if (design.units) {
        result.unit = *design.units;
    }
    return result;
}

InkBox SetDivisions(CScaleBarBase& bar, const Division& division) {
    bar.SetPaper2DataScale(division.value);
    bar.SetScreen2PaperByOneScale(division.length);
    bar.SetPaper2ScreenScale(division.length);  // for measuring at scale 1
    bar.ResetAspectRatio();
    return MeasureInk(bar);
}

}  // namespace

const CatalogueEntry* ScaleBarStyleOn(const PageDesign& design, const MapOnPage& map) {
    return map.extent ? design.scaleBar.style.value_or(UsualStyle(SurroundScaleBar))
                      : nullptr;
}

std::unique_ptr<PlacedFrame> PlaceScaleBar(const PageDesign& design, const MapOnPage& map,
                                           const Box& mapRoom, const Measures& measures,
                                           const Box& room,
                                           std::vector<std::string>& remarks) {
    const ScaleBarDesign& scaleBar = design.scaleBar;
    const double space = 1.2 * measures.module;
    const CatalogueEntry* const style = ScaleBarStyleOn(design, map);
    const double most = room.Width() - space;
    auto bar = style == nullptr ? nullptr : NewElement<CScaleBarBase>(*style);
    if (bar == nullptr || most <= 0.0) {
        return nullptr;
    }
    bar->SetSize(static_cast<int>(std::max(1.0, std::round(2.1 * measures.module))));
    bar->SetFrontColor(Gdiplus::Color(kInkColor));
    bar->SetMainDivCount(scaleBar.divisions);
    bar->SetSubDivCount(scaleBar.subdivisions);
    bar->SetUnitPos(scaleBar.unitPosition);

    const Measurement measurement = Measure(scaleBar, map, mapRoom, most, remarks);
    bar->SetUnitsName(measurement.unit);
    bar->SetDestUnitType(measurement.type);

    // Labels and unit name stand out from the divisions, so make these smaller until all
    // of it fits.
    double length = most / std::max(1, scaleBar.divisions);
    Division division = DivisionOf(length, measurement.perPageUnit);
    InkBox ink = SetDivisions(*bar, division);
    for (int i = 0; i < 40 && ink.Width() > most; ++i) {
        length *= 0.95;
        division = DivisionOf(length, measurement.perPageUnit);
        ink = SetDivisions(*bar, division);
    }
    if (ink.IsEmpty()) {
        return nullptr;
    }
    auto frame = std::make_unique<ScaleBarFrame>(std::move(bar));
    FrameInk(*frame, ink, room, At::Bottom, design.frames, measures);
    frame->SetName("scale bar");
    frame->SetBarDistances(measurement.isGround ? BarDistances::Ground
                                                : BarDistances::Map);
    frame->SetDivisionLength(division.length);
    frame->SetDivisionValue(division.value);
    return frame;
}

}  // namespace host
