#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "map_surround/legend.h"
#include "page/map/distance_unit.h"

namespace host {

/// The words that a page has by itself, in one language.
struct Language {
    const char* code;  ///< as in locales, on the command line and in page files: "de"
    const char* name;  ///< in itself: "Deutsch"

    const wchar_t* legend;  ///< a legend's first line

    // A legend's captions, with the space that follows them. Where people write from
    // right to left, U+202B before a caption and U+200E after it keep the value to the
    // left of it, and the value's sign to the left of its digits.
    const wchar_t* source;  ///< before a raster's name
    const wchar_t* band;    ///< before a band's number
    const wchar_t* high;    ///< before the highest value
    const wchar_t* low;     ///< before the lowest one

    // What stands beside a scale bar.
    const wchar_t* metre;
    const wchar_t* kilometre;
    const wchar_t* foot;
    const wchar_t* usSurveyFoot;
    const wchar_t* yard;
    const wchar_t* mile;
    const wchar_t* nauticalMile;
    const wchar_t* degree;
    const wchar_t* mapUnit;

    /// What a unit is called; of a choice by length, the smaller one.
    const wchar_t* Unit(DistanceUnit unit) const;

    /// The unit that is called so; nothing where none is.
    std::optional<DistanceUnit> UnitCalled(std::wstring_view word) const;
};

/// Every language, English first.
const std::vector<Language>& Languages();

/// A language by its place in Languages(); English where there is none.
const Language& LanguageAt(std::int32_t place);
std::int32_t PlaceOf(const Language& language);

const Language& English();

/// By its code; null for one that is not known.
const Language* FindLanguage(std::string_view code);

/// The language of the messages of this process's locale, as LC_ALL, LC_MESSAGES or LANG
/// have it, the first of them that is set; English for one that is not known.
const Language& LanguageOfLocale();

/// Gives a legend its captions.
void SetCaptions(CMapLegend& legend, const Language& language);

}  // namespace host
