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
        OneOf(Of<&ScaleBarFrame::GetBarDistances, &ScaleBarFrame::SetBarDistances>(
                  "distances",
                  "Distances that it is kept true to: none, the map's, or those on the "
                  "ground in its middle",
                  PropertyKind::Choice),
              kBarDistances),
        OneOf(Of<&ScaleBarFrame::Unit, &ScaleBarFrame::SetUnit>(
                  "unit", "Its unit; metric and imperial choose by length",
                  PropertyKind::Choice),
              DistanceUnitChoices()),
        OneOf(Of<&ScaleBarFrame::Fit, &ScaleBarFrame::SetFit>(
                  "fit",
                  "What it keeps when the map changes: the number of divisions, the "
                  "width of the bar, or the value of a division",
                  PropertyKind::Choice),
              kFits),
        Within(
            Of<&ScaleBarFrame::Longest, &ScaleBarFrame::SetLongest>(
                "longest", "Its greatest length then, page units; 0: its present length",
                PropertyKind::Number),
            kLengths),
        Of<&ScaleBarFrame::IsExact, &ScaleBarFrame::SetExact>(
            "exact",
            "Whether its divisions are 1, 2 or 5 times a power of ten and the whole bar "
            "is true",
            PropertyKind::Switch),
        Within(Of<&ScaleBarFrame::DivisionValue, &ScaleBarFrame::SetDivisionValue>(
                   "divisionValue",
                   "Value of a division, before the bar rounds it down to one digit",
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
                  "unitPosition", "Place of the unit's name", PropertyKind::Choice),
              kUnitPositions),
        Of<&CScaleBarBase::GetUnitsName, &CScaleBarBase::SetUnitsNameVerbatim>(
            "units", "Name of the unit; follows a unit that is chosen by length",
            PropertyKind::Text),
        OneOf(Of<&ScaleBarFrame::LanguagePlace, &ScaleBarFrame::SetLanguagePlace>(
                  "language", "Language of a unit that is chosen by length",
                  PropertyKind::Choice),
              LanguageChoices()),
        OneOf(Of<&CScaleBarBase::GetDestUnitType, &CScaleBarBase::SetDestUnitType>(
                  "unitType",
                  "Unit on the ground of a bar that is not exact; has no other effect",
                  PropertyKind::Choice),
              kUnits),
        OneOf(Of<&CScaleBarBase::GetScaleBarType, &CScaleBarBase::SetScaleBarType>(
                  "scaleBarType", "Style that the bar reports", PropertyKind::Choice),
              TypeChoices<&CScaleBarBase::GetScaleBarType>()),
    };
}

}  // namespace host::tables
