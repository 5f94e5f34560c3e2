#include "page/document/page_version1.h"

#include <cstddef>
#include <string>
#include <vector>

#include "page/colour_text.h"
#include "page/document/item_type.h"
#include "page/document/json_text.h"
#include "page/document/page_error.h"
#include "page/document/page_format.h"

namespace host {
namespace {

using nlohmann::json;

constexpr const char* kExactKey = "exact";  // of scale bars and north arrows

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

void UpgradeElement(json& element, const std::string& place) {
    if (!element.is_object()) {
        return;
    }
    const auto type = element.find(kTypeKey);
    const ItemType* const known = type != element.end() && type->is_string()
                                      ? FindItemType(type->get<std::string>())
                                      : nullptr;
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

}  // namespace

void UpgradeFromVersion1(json& page) {
    const auto elements = page.find(kElementsKey);
    if (elements == page.end() || !elements->is_array()) {
        return;
    }
    for (std::size_t i = 0; i < elements->size(); ++i) {
        UpgradeElement((*elements)[i], PlaceOfElement(i));
    }
}

}  // namespace host
