#include "page/document/property.h"

#include <algorithm>
#include <cmath>

#include "system/number_text.h"
#include "system/utf8.h"

namespace host {
namespace {

std::string CheckNumber(const NumberRange& range, double value) {
    // Written so that NaN is refused, too.
    return value >= range.lowest && value <= range.highest
               ? ""
               : "must be from " + NumberText(range.lowest) + " to " +
                     NumberText(range.highest);
}

std::string CheckPaths(const std::vector<std::string>& paths) {
    if (paths.size() > kMostRasters) {
        return "must have at most " + std::to_string(kMostRasters) + " files";
    }
    for (const std::string& path : paths) {
        std::string why = path.empty() ? "must name a file" : CheckText(path);
        if (!why.empty()) {
            return why;
        }
    }
    return {};
}

std::string CheckExtent(const std::optional<Box>& extent) {
    const bool isGood =
        !extent || (std::isfinite(extent->Width()) && std::isfinite(extent->Height()) &&
                    extent->Width() > 0.0 && extent->Height() > 0.0);
    return isGood ? ""
                  : "must have its left below its right and its bottom below its top";
}

std::string CheckChoice(const Choices& choices, std::int32_t value) {
    std::string names;
    for (const Choice& choice : choices) {
        if (choice.value == value) {
            return {};
        }
        names += names.empty() ? "" : ", ";
        names += choice.name;
    }
    return "must be one of " + names;
}

}  // namespace

std::string CheckText(const std::string& text) {
    std::wstring wide;
    if (text.find('\0') != std::string::npos || !Widen(text, wide)) {
        return "must be text without zero characters";
    }
    if (wide.size() > kLongestText) {
        return "must have at most " + std::to_string(kLongestText) + " characters";
    }
    return std::count(wide.begin(), wide.end(), L'\n') <
                   static_cast<std::ptrdiff_t>(kMostLines)
               ? ""
               : "must have at most " + std::to_string(kMostLines) + " lines";
}

std::string CheckValue(const Property& property, const PropertyValue& value) {
    switch (property.kind) {
        case PropertyKind::Integer:
            return CheckNumber(property.range, std::get<std::int32_t>(value));
        case PropertyKind::Ratio:
            if (!std::isfinite(std::get<double>(value))) {
                return {};
            }
            [[fallthrough]];
        case PropertyKind::Number:
        case PropertyKind::Angle:
            return CheckNumber(property.range, std::get<double>(value));
        case PropertyKind::Text:
        case PropertyKind::Font:
        case PropertyKind::File: {
            const auto& text = std::get<std::string>(value);
            std::string why = CheckText(text);
            return why.empty() && property.checkText != nullptr ? property.checkText(text)
                                                                : why;
        }
        case PropertyKind::Rasters:
            return CheckPaths(std::get<std::vector<std::string>>(value));
        case PropertyKind::MapExtent:
            return CheckExtent(std::get<std::optional<Box>>(value));
        case PropertyKind::Choice:
            return CheckChoice(property.choices, std::get<std::int32_t>(value));
        case PropertyKind::Switch:
        case PropertyKind::Colour:
            break;
    }
    return {};
}

}  // namespace host
