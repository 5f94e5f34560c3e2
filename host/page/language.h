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

/// What is read aloud of a page to those who do not see it, in one language. Numbers in
/// braces stand for what is filled in.
struct SpokenWords {
    const wchar_t* separator;  ///< between the parts of a sentence: ", "
    const wchar_t* map;
    const wchar_t* picture;
    const wchar_t* fromTo;  ///< the places at two corners of a map: "from {0} to {1}"
    const wchar_t* north;   ///< degrees of a place: "{0}° N"
    const wchar_t* south;
    const wchar_t* east;
    const wchar_t* west;
    const wchar_t* bar;         ///< a length and its unit: "Scale bar: {0} {1}"
    const wchar_t* dividedBar;  ///< in two or more: "Scale bar: {0} {1} in {2} divisions"
    const wchar_t* northIsUp;
    const wchar_t* northIsLeft;  ///< of up, by degrees
    const wchar_t* northIsRight;
    const wchar_t* dark;   ///< a colour: "dark {0}"
    const wchar_t* light;  ///< likewise
    const wchar_t* black;
    const wchar_t* grey;
    const wchar_t* white;
    const wchar_t* red;
    const wchar_t* orange;
    const wchar_t* yellow;
    const wchar_t* green;
    const wchar_t* turquoise;
    const wchar_t* blue;
    const wchar_t* purple;
    const wchar_t* pink;
    const wchar_t* brown;
};

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

    SpokenWords spoken;

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
