#include "page/document/schema.h"

#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>
#include <vector>

#include "page/document/item_type.h"
#include "page/document/page_format.h"
#include "page/language.h"

namespace host {
namespace {

using nlohmann::ordered_json;

constexpr const char* kFrameReference = "#/definitions/frame";

ordered_json Number(const NumberRange& range) {
    return {{"type", "number"}, {"minimum", range.lowest}, {"maximum", range.highest}};
}

ordered_json Text(std::size_t shortest) {
    ordered_json schema = {{"type", "string"}};
    if (shortest > 0) {
        schema["minLength"] = shortest;
    }
    schema["maxLength"] = kLongestText;
    schema["pattern"] = "^[^\\u0000]*$";
    return schema;
}

ordered_json Object(ordered_json properties, const std::vector<const char*>& required) {
    return {{"type", "object"},
            {"properties", std::move(properties)},
            {"required", required},
            {"additionalProperties", false}};
}

ordered_json Extent() {
    ordered_json sides = ordered_json::object();
    for (const char* side : {"left", "bottom", "right", "top"}) {
        sides[side] = {{"type", "number"}};
    }
    return {{"oneOf",
             {ordered_json{{"type", "null"}},
              Object(std::move(sides), {"left", "bottom", "right", "top"})}}};
}

ordered_json OneOf(const Choices& choices) {
    ordered_json names = ordered_json::array();
    for (const Choice& choice : choices) {
        names.push_back(choice.name);
    }
    return {{"enum", std::move(names)}};
}

ordered_json LanguageCodes() {
    ordered_json codes = {""};
    for (const Language& language : Languages()) {
        codes.push_back(language.code);
    }
    return {{"enum", std::move(codes)}};
}

ordered_json ValueSchema(const Property& property) {
    switch (property.kind) {
        case PropertyKind::Switch:
            return {{"type", "boolean"}};
        case PropertyKind::Integer: {
            ordered_json schema = Number(property.range);
            schema["type"] = "integer";
            return schema;
        }
        case PropertyKind::Number:
        case PropertyKind::Angle:
            return Number(property.range);
        case PropertyKind::Ratio: {
            ordered_json schema = Number(property.range);
            schema["type"] = {"number", "null"};
            return schema;
        }
        case PropertyKind::Colour:
            return {{"type", "string"}, {"pattern", "^#([0-9A-Fa-f]{2}){3,4}$"}};
        case PropertyKind::Text:
        case PropertyKind::Font:
        case PropertyKind::File: {
            ordered_json schema = Text(0);
            if (property.pattern != nullptr) {
                schema["pattern"] = property.pattern;
            }
            return schema;
        }
        case PropertyKind::Rasters:
            return {{"type", "array"}, {"items", Text(1)}, {"maxItems", kMostRasters}};
        case PropertyKind::MapExtent:
            return Extent();
        case PropertyKind::Choice:
            return OneOf(property.choices);
    }
    return true;
}

ordered_json PropertiesSchema(const std::vector<Property>& properties) {
    ordered_json schema = ordered_json::object();
    for (const Property& property : properties) {
        ordered_json& value = schema[property.name] = {{"description", property.about}};
        value.update(ValueSchema(property));
    }
    return schema;
}

ordered_json TypeSchema(const ItemType& type) {
    ordered_json properties = {{kTypeKey, {{"const", type.name}}}};
    properties.update(PropertiesSchema(type.properties));
    properties[kFrameKey] = {{"$ref", kFrameReference}};
    ordered_json schema = {{"description", type.about}};
    schema.update(Object(std::move(properties), {kTypeKey}));
    return schema;
}

}  // namespace

std::string PageSchema() {
    ordered_json definitions = {
        {"frame", Object(PropertiesSchema(FrameProperties()), {})}};
    ordered_json types = ordered_json::array();
    for (const ItemType& type : ItemTypes()) {
        definitions[type.name + std::string("-element")] = TypeSchema(type);
        types.push_back(
            {{"$ref", "#/definitions/" + std::string(type.name) + "-element"}});
    }
    const ordered_json side = Number({kSmallestSide, kLargestSide});
    ordered_json properties = {
        {kVersionKey, {{"enum", {1, 2, kPageVersion}}}},
        {kWidthKey, side},
        {kHeightKey, side},
        {kElementsKey, {{"type", "array"}, {"items", {{"oneOf", std::move(types)}}}}}};
    for (const AboutKey& key : kAboutKeys) {
        ordered_json& text = properties[key.name] = {{"description", key.about}};
        text.update(std::string_view(key.name) == "language" ? LanguageCodes() : Text(0));
    }
    ordered_json schema = {{"$schema", "http://json-schema.org/draft-07/schema#"},
                           {"title", "A page of map_page"}};
    schema.update(Object(std::move(properties),
                         {kVersionKey, kWidthKey, kHeightKey, kElementsKey}));
    schema["definitions"] = std::move(definitions);
    return schema.dump(2) + "\n";
}

}  // namespace host
