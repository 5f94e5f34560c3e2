#include "page/document/value_json.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "page/colour_text.h"
#include "page/document/page_error.h"
#include "page/document/picture_file.h"
#include "system/number_text.h"

namespace host {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

const std::string& TextFromJson(const json& value, const std::string& place) {
    if (!value.is_string()) {
        throw PageError(place, "must be a text");
    }
    return value.get_ref<const std::string&>();
}

Gdiplus::ARGB ColourFromJson(const json& value, const std::string& place) {
    const std::optional<Gdiplus::ARGB> colour =
        ColourFromText(TextFromJson(value, place));
    if (!colour) {
        throw PageError(place, "must be #RRGGBB or #RRGGBBAA");
    }
    return *colour;
}

/// The double with the shortest decimal that reads as the same float: 0.1 rather than
/// 0.10000000149011612.
double ShortestDouble(double value) {
    const auto single = static_cast<float>(value);
    double shortest = value;
    ParseNumber(NumberText(single), shortest);
    return static_cast<float>(shortest) == single ? shortest : value;
}

ordered_json NumberToJson(const Property& property, double value) {
    return property.isFloat ? ShortestDouble(value) : value;
}

ordered_json ExtentToJson(const std::optional<Box>& extent) {
    return extent ? ordered_json{{"left", extent->left},
                                 {"bottom", extent->bottom},
                                 {"right", extent->right},
                                 {"top", extent->top}}
                  : ordered_json(nullptr);
}

std::optional<Box> ExtentFromJson(const json& value, const std::string& place) {
    if (value.is_null()) {
        return std::nullopt;
    }
    if (!value.is_object() || value.size() != 4) {
        throw PageError(place, "must be null or have left, bottom, right and top");
    }
    const auto side = [&](const char* name) {
        if (!value.contains(name)) {
            throw PageError(place + "." + name, "is missing");
        }
        return NumberFromJson(value.at(name), place + "." + name);
    };
    return Box{side("left"), side("bottom"), side("right"), side("top")};
}

std::int32_t IntegerFromJson(const json& value, const std::string& place) {
    const double number = value.is_number() ? value.get<double>() : 0.5;
    if (number != std::floor(number)) {
        throw PageError(place, "must be a whole number");
    }
    if (std::fabs(number) > std::numeric_limits<std::int32_t>::max() &&
        number != std::numeric_limits<std::int32_t>::min()) {
        throw PageError(place, "must have at most 32 bits");
    }
    return static_cast<std::int32_t>(number);
}

/// -1 is not a value of any choice.
std::int32_t ChoiceFromJson(const Choices& choices, const json& value,
                            const std::string& place) {
    const std::string& name = TextFromJson(value, place);
    for (const Choice& choice : choices) {
        if (name == choice.name) {
            return choice.value;
        }
    }
    return -1;
}

/// A file that may be read.
std::string FileFromJson(const json& value, const FilePaths& paths,
                         const std::string& place) {
    std::string file = paths.FromFile(TextFromJson(value, place));
    const std::string why = paths.WhyNot(file);
    if (!why.empty()) {
        throw PageError(place, file + " " + why);
    }
    return file;
}

/// A file that may be opened without being examined, as writing the property does.
std::string PictureFromJson(const json& value, const FilePaths& paths,
                            const std::string& place) {
    std::string file = FileFromJson(value, paths, place);
    const std::string why = WhyNotOpened(file);
    if (!why.empty()) {
        throw PageError(place, file + ": " + why);
    }
    return file;
}

std::vector<std::string> PathsFromJson(const json& value, const FilePaths& paths,
                                       const std::string& place) {
    if (!value.is_array()) {
        throw PageError(place, "must be a list of files");
    }
    std::vector<std::string> list;
    for (std::size_t i = 0; i < value.size(); ++i) {
        list.push_back(
            FileFromJson(value[i], paths, place + "[" + std::to_string(i) + "]"));
    }
    return list;
}

PropertyValue Read(const Property& property, const json& value, const FilePaths& paths,
                   const std::string& place) {
    switch (property.kind) {
        case PropertyKind::Switch:
            if (!value.is_boolean()) {
                throw PageError(place, "must be true or false");
            }
            return value.get<bool>();
        case PropertyKind::Integer:
            return IntegerFromJson(value, place);
        case PropertyKind::Ratio:
            if (value.is_null()) {
                return std::numeric_limits<double>::quiet_NaN();
            }
            [[fallthrough]];
        case PropertyKind::Number:
        case PropertyKind::Angle:
            return NumberFromJson(value, place);
        case PropertyKind::Colour:
            return ColourFromJson(value, place);
        case PropertyKind::Text:
        case PropertyKind::Font:
            return TextFromJson(value, place);
        case PropertyKind::File:
            return PictureFromJson(value, paths, place);
        case PropertyKind::Rasters:
            return PathsFromJson(value, paths, place);
        case PropertyKind::MapExtent:
            return ExtentFromJson(value, place);
        case PropertyKind::Choice:
            return ChoiceFromJson(property.choices, value, place);
    }
    throw PageError(place, "is of no kind");
}

ordered_json PathsToJson(const std::vector<std::string>& list, const FilePaths& paths) {
    ordered_json files = ordered_json::array();
    for (const std::string& path : list) {
        files.push_back(paths.ToFile(path));
    }
    return files;
}

const char* NameOf(const Choices& choices, std::int32_t value) {
    for (const Choice& choice : choices) {
        if (choice.value == value) {
            return choice.name;
        }
    }
    return "";
}

void Check(const Property& property, const PropertyValue& value,
           const std::string& place) {
    const std::string why = CheckValue(property, value);
    if (!why.empty()) {
        throw PageError(place, why);
    }
}

}  // namespace

double NumberFromJson(const json& value, const std::string& place) {
    if (!value.is_number()) {
        throw PageError(place, "must be a number");
    }
    return value.get<double>();
}

ordered_json ValueToJson(const Property& property, const PropertyValue& value,
                         const FilePaths& paths, const std::string& place) {
    Check(property, value, place);
    switch (property.kind) {
        case PropertyKind::Switch:
            return std::get<bool>(value);
        case PropertyKind::Integer:
            return std::get<std::int32_t>(value);
        case PropertyKind::Ratio:
            if (!std::isfinite(std::get<double>(value))) {
                return nullptr;
            }
            [[fallthrough]];
        case PropertyKind::Number:
        case PropertyKind::Angle:
            return NumberToJson(property, std::get<double>(value));
        case PropertyKind::Colour:
            return ColourText(std::get<Gdiplus::ARGB>(value));
        case PropertyKind::Text:
        case PropertyKind::Font:
            return std::get<std::string>(value);
        case PropertyKind::File:
            return paths.ToFile(std::get<std::string>(value));
        case PropertyKind::Rasters:
            return PathsToJson(std::get<std::vector<std::string>>(value), paths);
        case PropertyKind::MapExtent:
            return ExtentToJson(std::get<std::optional<Box>>(value));
        case PropertyKind::Choice:
            return NameOf(property.choices, std::get<std::int32_t>(value));
    }
    return nullptr;
}

PropertyValue ValueFromJson(const Property& property, const json& value,
                            const FilePaths& paths, const std::string& place) {
    PropertyValue result = Read(property, value, paths, place);
    Check(property, result, place);
    return result;
}

}  // namespace host
