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

/// What is read aloud of a page to those who cannot see it, in one language. Numbers in
/// braces are placeholders.
struct SpokenWords {
    const wchar_t* separator;  ///< between parts of a sentence: ", "
    const wchar_t* map;
    const wchar_t* picture;
    const wchar_t* fromTo;  ///< two corners of a map: "from {0} to {1}"
    const wchar_t* north;   ///< a latitude: "{0}° N"
    const wchar_t* south;
    const wchar_t* east;
    const wchar_t* west;
    const wchar_t* bar;         ///< "Scale bar: {0} {1}"
    const wchar_t* dividedBar;  ///< "Scale bar: {0} {1} in {2} divisions"
    const wchar_t* northIsUp;
    const wchar_t* northIsLeft;  ///< of straight up, in degrees
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

/// The words that a page has by default, in one language.
struct Language {
    const char* code;  ///< as in locales, on the command line and in page files: "de"
    const char* name;  ///< in the language itself: "Deutsch"

    const wchar_t* legend;  ///< a legend's first line

    // A legend's captions, with the space that follows them. In languages written from
    // right to left, U+202B before a caption and U+200E after it keep the value to the
    // left of it, and the value's sign to the left of its digits.
    const wchar_t* source;  ///< before a raster's name
    const wchar_t* band;    ///< before a band's number
    const wchar_t* high;    ///< before the highest value
    const wchar_t* low;     ///< before the lowest one

    // The units beside a scale bar.
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

    /// The name of a unit; for a choice by length, that of the smaller one.
    const wchar_t* Unit(DistanceUnit unit) const;

    /// The unit with a name; nothing for an unknown name.
    std::optional<DistanceUnit> UnitCalled(std::wstring_view word) const;
};

/// Every language, English first.
const std::vector<Language>& Languages();

/// A language by its index in Languages(); English for an index out of range.
const Language& LanguageAt(std::int32_t place);
std::int32_t PlaceOf(const Language& language);

const Language& English();

/// A language by its code; null for an unknown code.
const Language* FindLanguage(std::string_view code);

/// The language of this process's locale for messages: the first of LC_ALL, LC_MESSAGES
/// and LANG that is set; English for an unknown one.
const Language& LanguageOfLocale();

/// Gives a legend its captions.
void SetCaptions(CMapLegend& legend, const Language& language);

}  // namespace host
