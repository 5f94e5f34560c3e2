#include "page/document/page_upgrade.h"

#include <cstddef>
#include <string>
#include <vector>

#include "map_surround/scale_bar.h"
#include "page/colour_text.h"
#include "page/document/item_type.h"
#include "page/document/json_text.h"
#include "page/document/page_error.h"
#include "page/document/page_format.h"
#include "system/utf8.h"

namespace host {
namespace {

using nlohmann::json;

constexpr const char* kExactKey = "exact";  // of scale bars and north arrows
constexpr const char* kUnitsKey = "units";  // of scale bars

/// "#AARRGGBB" as "#RRGGBBAA".
std::string AlphaLast(const std::string& text) {
    constexpr std::size_t kLength = 9;
    return text.size() == kLength && text.front() == '#'
               ? "#" + text.substr(3) + text.substr(1, 2)
               : text;
}

void UpgradeColours(json& object, const std::vector<Property>& properties,
                    const std::string& place) {
    for (const Property& property : properties) {
        const auto value = object.find(property.name);
        if (property.kind != PropertyKind::Colour || value == object.end() ||
            !value->is_string()) {
            continue;
        }
        const std::string text = AlphaLast(value->get<std::string>());
        if (!ColourFromText(text)) {
            throw PageError(PlaceOf(place, property.name),
                            "must be #RRGGBB or #AARRGGBB in version 1");
        }
        *value = text;
    }
}

/// The type of an element; null for a missing or unknown one.
const ItemType* TypeIn(const json& element) {
    const auto type = element.find(kTypeKey);
    return type != element.end() && type->is_string()
               ? FindItemType(type->get<std::string>())
               : nullptr;
}

void UpgradeFrom1(json& element, const std::string& place) {
    const ItemType* const known = TypeIn(element);
    if (known != nullptr) {
        UpgradeColours(element, known->properties, place);
        if (FindProperty(known->properties, kExactKey) != nullptr) {
            element[kExactKey] = false;
        }
    }
    const auto frame = element.find(kFrameKey);
    if (frame != element.end() && frame->is_object()) {
        UpgradeColours(*frame, FrameProperties(), PlaceOf(place, kFrameKey));
    }
}

/// The bar itself knows which names it translated.
void UpgradeFrom2(json& element) {
    const ItemType* const known = TypeIn(element);
    const auto units = element.find(kUnitsKey);
    std::wstring name;
    if (known != nullptr && FindProperty(known->properties, kUnitsKey) != nullptr &&
        units != element.end() && units->is_string() &&
        Widen(units->get<std::string>(), name)) {
        CScaleLine bar;
        bar.SetUnitsName(name);
        *units = Narrow(bar.GetUnitsName());
    }
}

}  // namespace

void UpgradeFromVersion(int version, json& page) {
    const auto elements = page.find(kElementsKey);
    if (elements == page.end() || !elements->is_array()) {
        return;
    }
    for (std::size_t i = 0; i < elements->size(); ++i) {
        json& element = (*elements)[i];
        if (element.is_object() && version == 1) {
            UpgradeFrom1(element, PlaceOfElement(i));
        }
        if (element.is_object()) {
            UpgradeFrom2(element);
        }
    }
}

}  // namespace host
