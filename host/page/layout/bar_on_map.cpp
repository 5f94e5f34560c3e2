#include "page/layout/bar_on_map.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

constexpr int kMostDivisions = 100;

std::optional<BarOnMap> OnPage(const std::optional<BarDivision>& division, int divisions,
                               const ShownMap& map) {
    if (!division) {
        return std::nullopt;
    }
    return BarOnMap{division->unit, division->value,
                    division->mapUnits / map.MapUnitsPerPageUnit(), divisions};
}

/// The widest bar possible, with about as many divisions.
std::optional<BarOnMap> WidestBar(const ShownMap& map, const BarMeasure& measure,
                                  DistanceUnit unit, int divisions, double most) {
    std::optional<BarOnMap> widest;
    const int fewest = std::max(1, divisions / 2);
    for (int count = fewest; count <= std::min(2 * divisions, kMostDivisions); ++count) {
        const auto bar = OnPage(LargestDivision(measure, unit, count, most), count, map);
        if (bar &&
            (!widest || bar->length * count > widest->length * widest->divisions)) {
            widest = bar;
        }
    }
    return widest;
}

/// As many divisions of a value as fit.
std::optional<BarOnMap> BarOfValue(const ShownMap& map, const BarMeasure& measure,
                                   DistanceUnit unit, double value, double most) {
    for (int count = kMostDivisions; count > 0; --count) {
        const auto bar =
            OnPage(DivisionOfValue(measure, unit, value, count, most), count, map);
        if (bar) {
            return bar;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<BarOnMap> FitBar(const ShownMap& map, const BarMeasure& measure,
                               DistanceUnit unit, BarFit fit, double value, int divisions,
                               double longest) {
    const double most = longest * map.MapUnitsPerPageUnit();
    const int count = std::clamp(divisions, 1, kMostDivisions);
    switch (fit) {
        case BarFit::Width:
            return WidestBar(map, measure, unit, count, most);
        case BarFit::Value:
            return BarOfValue(map, measure, unit, value, most);
        case BarFit::Count:
            break;
    }
    return OnPage(LargestDivision(measure, unit, count, most), count, map);
}

void SetDivisions(ScaleBarFrame& frame, CScaleBarBase& bar, const BarOnMap& divisions) {
    const DistanceUnitFacts& unit = FactsOf(divisions.unit);
    bar.SetMainDivCount(divisions.divisions);
    bar.SetDestUnitType(unit.type);
    if (IsByLength(frame.Unit())) {
        bar.SetUnitsNameVerbatim(frame.GetLanguage().Unit(unit.unit));
    }
    frame.SetDivisionValue(divisions.value);
    frame.SetDivisionLength(divisions.length);
}

bool NumbersAreApart(double em, double value, double length, int divisions) {
    constexpr double kDigit = 0.5;  // em
    constexpr double kApart = 0.4;
    const double largest = value * divisions;
    double digits = std::floor(std::log10(std::fmax(1.0, largest))) + 1.0;
    if (value < 1.0) {
        digits += 1.0 - std::floor(std::log10(value));
    }
    return length >= (kDigit * digits + kApart) * em;
}

}  // namespace host
