#include "map_surround/scale_bar.h"
#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"

namespace host::tables {
namespace {

constexpr Choice kUnitPositions[] = {{"after", UnitPosAfter}, {"before", UnitPosBefore}};

constexpr Choice kBarDistances[] = {
    {"fixed", static_cast<std::int32_t>(BarDistances::Fixed)},
    {"map", static_cast<std::int32_t>(BarDistances::Map)},
    {"ground", static_cast<std::int32_t>(BarDistances::Ground)},
};

constexpr Choice kFits[] = {
    {"count", static_cast<std::int32_t>(BarFit::Count)},
    {"width", static_cast<std::int32_t>(BarFit::Width)},
    {"value", static_cast<std::int32_t>(BarFit::Value)},
};

Choices DistanceUnitChoices() {
    static const std::vector<Choice> choices = [] {
        std::vector<Choice> made;
        for (const DistanceUnitFacts& facts : DistanceUnits()) {
            made.push_back({facts.word, static_cast<std::int32_t>(facts.unit)});
        }
        return made;
    }();
    return {choices.data(), choices.size()};
}

Choices LanguageChoices() {
    static const std::vector<Choice> choices = [] {
        std::vector<Choice> made;
        for (const Language& language : Languages()) {
            made.push_back({language.code, PlaceOf(language)});
        }
        return made;
    }();
    return {choices.data(), choices.size()};
}

constexpr Choice kUnits[] = {
    {"unknown", MeasureUnknown},
    {"meter", MeasureMeter},
    {"kilometer", MeasureKilometer},
    {"degree", MeasureDegree},
};

}  // namespace

std::vector<Property> ScaleBarProperties() {
    return {
        OneOf(
            Of<&ScaleBarFrame::GetBarDistances, &ScaleBarFrame::SetBarDistances>(
                "distances",
                "What it is kept true to: nothing, the map, or the ground in its middle",
                PropertyKind::Choice),
            kBarDistances),
        OneOf(Of<&ScaleBarFrame::Unit, &ScaleBarFrame::SetUnit>(
                  "unit", "What it counts in; metric and imperial choose by length",
                  PropertyKind::Choice),
              DistanceUnitChoices()),
        OneOf(
            Of<&ScaleBarFrame::Fit, &ScaleBarFrame::SetFit>(
                "fit",
                "What stays when the map changes: the count of the divisions, the width "
                "of the bar, or the value of a division",
                PropertyKind::Choice),
            kFits),
        Within(Of<&ScaleBarFrame::Longest, &ScaleBarFrame::SetLongest>(
                   "longest", "How long it may become then, page units; 0: as it is",
                   PropertyKind::Number),
               kLengths),
        Of<&ScaleBarFrame::IsExact, &ScaleBarFrame::SetExact>(
            "exact", "Whether it counts 1, 2 or 5 and is true as a whole",
            PropertyKind::Switch),
        Within(Of<&ScaleBarFrame::DivisionValue, &ScaleBarFrame::SetDivisionValue>(
                   "divisionValue",
                   "What a division stands for, before the bar rounds it down to one "
                   "digit",
                   PropertyKind::Number),
               kDistances),
        Within(Of<&ScaleBarFrame::DivisionLength, &ScaleBarFrame::SetDivisionLength>(
                   "divisionLength", "Length of that division, page units",
                   PropertyKind::Number),
               kLengths),
        Within(Of<&CScaleBarBase::GetMainDivCount, &CScaleBarBase::SetMainDivCount>(
                   "divisions", "Main divisions", PropertyKind::Integer),
               kCounts),
        Within(Of<&CScaleBarBase::GetSubDivCount, &CScaleBarBase::SetSubDivCount>(
                   "subdivisions", "Ticks or boxes within a division",
                   PropertyKind::Integer),
               kCounts),
        OneOf(Of<&CScaleBarBase::GetUnitPos, &CScaleBarBase::SetUnitPos>(
                  "unitPosition", "Where the name of the unit stands",
                  PropertyKind::Choice),
              kUnitPositions),
        Of<&CScaleBarBase::GetUnitsName, &CScaleBarBase::SetUnitsNameVerbatim>(
            "units", "Name of the unit; one that is chosen by length names itself",
            PropertyKind::Text),
        OneOf(Of<&ScaleBarFrame::LanguagePlace, &ScaleBarFrame::SetLanguagePlace>(
                  "language", "In which it does that", PropertyKind::Choice),
              LanguageChoices()),
        OneOf(Of<&CScaleBarBase::GetDestUnitType, &CScaleBarBase::SetDestUnitType>(
                  "unitType",
                  "What it counts on the ground; names and converts nothing else",
                  PropertyKind::Choice),
              kUnits),
        OneOf(Of<&CScaleBarBase::GetScaleBarType, &CScaleBarBase::SetScaleBarType>(
                  "scaleBarType", "What the bar answers when asked for its style",
                  PropertyKind::Choice),
              TypeChoices<&CScaleBarBase::GetScaleBarType>()),
    };
}

}  // namespace host::tables
