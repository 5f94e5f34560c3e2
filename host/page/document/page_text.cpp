#include "page/document/page_text.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>
#include <vector>

#include "page/document/item_type.h"
#include "page/document/json_text.h"
#include "page/document/page_error.h"
#include "page/document/page_format.h"
#include "page/document/page_upgrade.h"
#include "page/document/value_json.h"
#include "page/language.h"
#include "system/input_file.h"

namespace host {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

constexpr int kIndent = 2;

void WriteProperties(ordered_json& object, const std::vector<Property>& properties,
                     const PageItem& item, const FilePaths& paths,
                     const std::string& place) {
    for (const Property& property : properties) {
        object[property.name] = ValueToJson(property, property.read(item), paths,
                                            PlaceOf(place, property.name));
    }
}

ordered_json ItemToJson(const PageItem& item, const FilePaths& paths,
                        const std::string& place) {
    const ItemType* const type = TypeOf(item);
    if (type == nullptr) {
        throw PageError(place, "has a type that page files do not have");
    }
    ordered_json object;
    object[kTypeKey] = type->name;
    WriteProperties(object, type->properties, item, paths, place);
    WriteProperties(object[kFrameKey], FrameProperties(), item, paths,
                    PlaceOf(place, kFrameKey));
    return object;
}

const json& ObjectAt(const json& value, const std::string& place) {
    if (!value.is_object()) {
        throw PageError(place, "must be an object");
    }
    return value;
}

/// Sets the properties that the object has.
void ReadProperties(const json& object, const std::vector<Property>& properties,
                    PageItem& item, const FilePaths& paths, const std::string& place) {
    for (const Property& property : properties) {
        const auto found = object.find(property.name);
        if (found != object.end()) {
            property.write(item, ValueFromJson(property, *found, paths,
                                               PlaceOf(place, property.name)));
        }
    }
}

/// Throws for an unknown key.
void CheckKeys(const json& object, const std::vector<Property>& properties,
               const std::vector<std::string>& others, const std::string& place) {
    for (const auto& entry : object.items()) {
        const bool isOther =
            std::find(others.begin(), others.end(), entry.key()) != others.end();
        if (!isOther && FindProperty(properties, entry.key()) == nullptr) {
            throw PageError(PlaceOf(place, entry.key()), "is not known");
        }
    }
}

const json& MemberOf(const json& object, const char* key, const std::string& place) {
    const auto found = object.find(key);
    if (found == object.end()) {
        throw PageError(PlaceOf(place, key), "is missing");
    }
    return *found;
}

const ItemType& TypeIn(const json& object, const std::string& place) {
    const json& name = MemberOf(object, kTypeKey, place);
    const ItemType* const type =
        name.is_string() ? FindItemType(name.get_ref<const std::string&>()) : nullptr;
    if (type == nullptr) {
        std::string names;
        for (const ItemType& known : ItemTypes()) {
            names += names.empty() ? "" : ", ";
            names += known.name;
        }
        throw PageError(PlaceOf(place, kTypeKey), "must be one of " + names);
    }
    return *type;
}

/// Keeps a measured property that the file gives at the given value.
void ReadMeasured(const json& object, const ItemType& type, PageItem& item,
                  const FilePaths& paths, const std::string& place) {
    std::vector<Property> measured;
    std::copy_if(type.properties.begin(), type.properties.end(),
                 std::back_inserter(measured),
                 [](const Property& property) { return property.isMeasured; });
    ReadProperties(object, measured, item, paths, place);
}

PageItem ItemFromJson(const json& value, const FilePaths& paths,
                      const std::string& place) {
    const json& object = ObjectAt(value, place);
    const ItemType& type = TypeIn(object, place);
    CheckKeys(object, type.properties, {kTypeKey, kFrameKey}, place);
    PageItem item = type.make();
    ReadProperties(object, type.properties, item, paths, place);
    const auto frame = object.find(kFrameKey);
    if (frame != object.end()) {
        const std::string framePlace = PlaceOf(place, kFrameKey);
        CheckKeys(ObjectAt(*frame, framePlace), FrameProperties(), {}, framePlace);
        ReadProperties(*frame, FrameProperties(), item, paths, framePlace);
    }
    MeasureItem(item);
    ReadMeasured(object, type, item, paths, place);
    return item;
}

PageAbout AboutIn(const json& page) {
    PageAbout about;
    for (const AboutKey& key : kAboutKeys) {
        const auto found = page.find(key.name);
        if (found != page.end()) {
            const auto* const text = found->get_ptr<const std::string*>();
            const std::string why = text == nullptr ? "must be a text" : CheckText(*text);
            if (!why.empty()) {
                throw PageError(key.name, why);
            }
            about.*key.text = *text;
        }
    }
    if (!about.language.empty() && FindLanguage(about.language) == nullptr) {
        throw PageError("language", "must be the code of a supported language");
    }
    return about;
}

double SideOf(const json& page, const char* key) {
    const double side = NumberFromJson(MemberOf(page, key, ""), key);
    if (!(side >= kSmallestSide && side <= kLargestSide)) {
        throw PageError(key, "must be from 20 to 5000 mm in units of 1/96 inch");
    }
    return side;
}

/// The page as the newest version writes it.
json Upgraded(json page) {
    const json& version = MemberOf(page, kVersionKey, "");
    if (!version.is_number_integer() || version < 1 || version > kPageVersion) {
        throw PageError(kVersionKey, "must be from 1 to " + std::to_string(kPageVersion));
    }
    if (version < kPageVersion) {
        UpgradeFromVersion(version.get<int>(), page);
    }
    return page;
}

}  // namespace

std::string WriteItem(const PageItem& item) { return ItemToJson(item, {}, "").dump(); }

PageItem ReadItem(const std::string& text) {
    return ItemFromJson(ParseJson(text), {}, "");
}

std::vector<PageItem> ReadItems(const std::string& lines) {
    std::vector<PageItem> items;
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        items.push_back(ReadItem(line));
    }
    return items;
}

std::string WritePage(const Page& page, const FilePaths& paths) {
    ordered_json object;
    object[kVersionKey] = kPageVersion;
    object[kWidthKey] = page.Width();
    object[kHeightKey] = page.Height();
    for (const AboutKey& key : kAboutKeys) {
        if (!(page.About().*key.text).empty()) {
            object[key.name] = page.About().*key.text;
        }
    }
    ordered_json& elements = object[kElementsKey] = ordered_json::array();
    for (const PageItem& item : page.Items()) {
        elements.push_back(ItemToJson(item, paths, PlaceOfElement(elements.size())));
    }
    return object.dump(kIndent) + "\n";
}

Page ReadPage(const std::string& text, const FilePaths& paths) {
    json parsed = ParseJson(text);
    ObjectAt(parsed, "");
    const json object = Upgraded(std::move(parsed));
    std::vector<std::string> keys = {kVersionKey, kWidthKey, kHeightKey, kElementsKey};
    for (const AboutKey& key : kAboutKeys) {
        keys.emplace_back(key.name);
    }
    CheckKeys(object, {}, keys, "");
    const double width = SideOf(object, kWidthKey);
    const double height = SideOf(object, kHeightKey);
    Page page(width, height);
    page.About() = AboutIn(object);
    const json& elements = MemberOf(object, kElementsKey, "");
    if (!elements.is_array()) {
        throw PageError(kElementsKey, "must be a list");
    }
    for (std::size_t i = 0; i < elements.size(); ++i) {
        page.Items().push_back(ItemFromJson(elements[i], paths, PlaceOfElement(i)));
    }
    return page;
}

Page LoadPage(const std::string& path, const AllowedSources* allowed) {
    return ReadPage(ReadFile(path, kMostJsonBytes), FilePaths(path, allowed));
}

}  // namespace host
