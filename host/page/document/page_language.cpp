#include "page/document/page_language.h"

#include <algorithm>
#include <optional>
#include <string>

#include "page/document/item_type.h"
#include "page/element_of.h"
#include "page/placed_frame.h"
#include "system/utf8.h"

namespace host {
namespace {

struct WordOfLegend {
    const char* property;
    const wchar_t* Language::*word;
};

constexpr WordOfLegend kWordsOfLegend[] = {
    {"title", &Language::legend},     {"sourceCaption", &Language::source},
    {"bandCaption", &Language::band}, {"highCaption", &Language::high},
    {"lowCaption", &Language::low},
};

bool IsInSomeLanguage(const std::string& text, const wchar_t* Language::*word) {
    return std::any_of(
        Languages().begin(), Languages().end(),
        [&](const Language& language) { return Narrow(language.*word) == text; });
}

/// The unit that a bar's name for it means; the name may be in another language than the
/// bar.
std::optional<DistanceUnit> UnitNamedBy(const ScaleBarFrame& frame,
                                        const std::wstring& name) {
    std::optional<DistanceUnit> unit = frame.GetLanguage().UnitCalled(name);
    for (const Language& language : Languages()) {
        unit = unit ? unit : language.UnitCalled(name);
    }
    return unit;
}

}  // namespace

std::vector<std::pair<const Property*, PropertyValue>> WordsIn(const Language& language,
                                                               const PageItem& item) {
    std::vector<std::pair<const Property*, PropertyValue>> words;
    const auto add = [&](const char* property, PropertyValue value) {
        words.emplace_back(FindProperty(TypeOf(item)->properties, property),
                           std::move(value));
    };
    if (const auto* const bar = ElementOf<CScaleBarBase>(item)) {
        const auto* const frame = FrameAs<ScaleBarFrame>(item);
        const auto unit =
            frame == nullptr ? std::nullopt : UnitNamedBy(*frame, bar->GetUnitsName());
        if (unit) {
            add("units", Narrow(language.Unit(*unit)));
        }
        if (frame != nullptr) {
            add("language", PlaceOf(language));
        }
    } else if (ElementOf<CMapLegend>(item) != nullptr &&
               FrameAs<LegendFrame>(item) != nullptr) {
        for (const auto& [name, word] : kWordsOfLegend) {
            const Property& property = *FindProperty(TypeOf(item)->properties, name);
            if (IsInSomeLanguage(std::get<std::string>(property.read(item)), word)) {
                add(name, Narrow(language.*word));
            }
        }
    }
    return words;
}

}  // namespace host
