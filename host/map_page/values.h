#pragma once

// The values of options: which are valid, and what those that CLI11 leaves as text stand
// for.

#include <gdiplus.h>

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/title.h"
#include "page/catalogue.h"
#include "page/document/item_type.h"
#include "page/layout/page_design.h"

namespace map_page {

/// Words and what they stand for.
template <typename Value>
using Words = std::vector<std::pair<std::string, Value>>;

/// What a property of page files may be, by their words.
template <typename Value>
Words<Value> ChoicesOf(const char* type, const char* property) {
    Words<Value> words;
    for (const host::Choice& choice :
         host::FindProperty(host::FindItemType(type)->properties, property)->choices) {
        words.emplace_back(choice.name, static_cast<Value>(choice.value));
    }
    return words;
}

/// The same of a scale bar's.
template <typename Value>
Words<Value> ChoicesOfBars(const char* property) {
    return ChoicesOf<Value>(host::UsualStyle(SurroundScaleBar)->name, property);
}

/// Those of a page file that do not underline or strike out.
Words<FontProcess> FontStyles();
Words<host::LayoutDesign> LayoutDesigns();

/// The styles of a family; "none" is null.
Words<const host::CatalogueEntry*> Styles(MapSurroundType family);

/// The default style, for the help: "(two, where the map has coordinates)".
std::string UsualStyle(MapSurroundType family);

/// An option in a group of the help, which calls its value `value`.
template <typename Target>
CLI::Option* AddOption(CLI::App& app, const char* group, const char* name, Target& target,
                       const char* value, const std::string& about) {
    return app.add_option(name, target, about)->type_name(value)->group(group);
}

/// The same with a few words to choose from, each standing for a value.
template <typename Target, typename Value>
CLI::Option* AddChoice(CLI::App& app, const char* group, const char* name, Target& target,
                       const char* value, const Words<Value>& words,
                       const std::string& about) {
    const auto take = [&target, words](const std::string& given) {
        for (const auto& [word, meaning] : words) {
            if (word == given) {
                target = meaning;
            }
        }
    };
    return app.add_option_function<std::string>(name, take, about)
        ->check(CLI::IsMember(words))
        ->type_name(value)
        ->group(group);
}

/// Accepts a finite number from `lowest` to `highest`. (CLI::Range accepts "nan" too.)
CLI::Validator NumberIn(double lowest, double highest);

// Each of these throws UsageError that names the option and says what it accepts.

/// "none" is no colour; otherwise a colour name, #RRGGBB or #RRGGBBAA. "on" is the
/// default colour, "off" is none.
std::optional<Gdiplus::Color> ReadColor(const std::string& option,
                                        const std::string& text,
                                        std::optional<Gdiplus::Color> byDefault);

/// UTF-8 as wide text.
std::wstring ReadText(const std::string& option, const std::string& text);

/// A sheet; in portrait when `portrait` is set.
host::PaperSize ReadPaper(const std::string& option, const std::string& text,
                          bool portrait);

}  // namespace map_page
