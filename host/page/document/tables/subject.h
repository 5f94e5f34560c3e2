#pragma once

// Makes properties from pairs of accessors and from fields.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "page/catalogue.h"
#include "page/document/property.h"
#include "page/page.h"
#include "page/placed_frame.h"
#include "system/utf8.h"

namespace host::tables {

/// The part of an item that a class describes: the map, the frame, or its element.
template <class Class>
Class& SubjectOf(PageItem& item) {
    if constexpr (std::is_same_v<Class, MapFrame>) {
        return std::get<MapFrame>(item);
    } else if constexpr (std::is_same_v<Class, CFrameBase>) {
        auto* const map = std::get_if<MapFrame>(&item);
        return map != nullptr ? map->frame
                              : static_cast<CFrameBase&>(
                                    *std::get<std::unique_ptr<CSurroundFrame>>(item));
    } else {
        CSurroundFrame& frame = *std::get<std::unique_ptr<CSurroundFrame>>(item);
        if constexpr (std::is_base_of_v<PlacedFrame, Class>) {
            return static_cast<Class&>(frame);
        } else {
            return static_cast<Class&>(*frame.GetMapSurround());
        }
    }
}

template <class Class>
const Class& SubjectOf(const PageItem& item) {
    return SubjectOf<Class>(const_cast<PageItem&>(item));  // NOLINT: reads only
}

// Converts between a property's value and the types of a class's accessors.

template <class Type>
PropertyValue ToValue(Type value) {
    if constexpr (std::is_same_v<Type, Gdiplus::Color>) {
        return value.GetValue();
    } else if constexpr (std::is_same_v<Type, std::wstring>) {
        return Narrow(value);
    } else if constexpr (std::is_same_v<Type, float>) {
        return double{value};
    } else if constexpr (std::is_enum_v<Type>) {
        return static_cast<std::int32_t>(value);
    } else {
        return PropertyValue(std::move(value));
    }
}

template <class Type>
Type FromValue(const PropertyValue& value) {
    if constexpr (std::is_same_v<Type, Gdiplus::Color>) {
        return Gdiplus::Color(std::get<Gdiplus::ARGB>(value));
    } else if constexpr (std::is_same_v<Type, std::wstring>) {
        std::wstring wide;
        Widen(std::get<std::string>(value), wide);
        return wide;
    } else if constexpr (std::is_same_v<Type, float>) {
        return static_cast<float>(std::get<double>(value));
    } else if constexpr (std::is_enum_v<Type>) {
        return static_cast<Type>(std::get<std::int32_t>(value));
    } else {
        return std::get<Type>(value);
    }
}

template <class>
struct Accessor;
template <class C, class T>
struct Accessor<T (C::*)() const> {
    using Class = C;
    using Type = std::decay_t<T>;
};
template <class C, class T>
struct Accessor<T C::*> {
    using Class = C;
    using Type = T;
};

/// A property whose values a class keeps as a type.
template <typename Type>
Property Named(const char* name, const char* about, PropertyKind kind) {
    Property property{};
    property.name = name;
    property.about = about;
    property.kind = kind;
    property.isFloat = std::is_same_v<Type, float>;
    return property;
}

/// A property that a class has a getter and a setter for.
template <auto Get, auto Set>
Property Of(const char* name, const char* about, PropertyKind kind) {
    using Class = typename Accessor<decltype(Get)>::Class;
    using Type = typename Accessor<decltype(Get)>::Type;
    Property property = Named<Type>(name, about, kind);
    property.read = [](const PageItem& item) {
        return ToValue<Type>((SubjectOf<Class>(item).*Get)());
    };
    property.write = [](PageItem& item, const PropertyValue& value) {
        (SubjectOf<Class>(item).*Set)(FromValue<Type>(value));
    };
    return property;
}

/// A property that is a field.
template <auto Field>
Property OfField(const char* name, const char* about, PropertyKind kind) {
    using Class = typename Accessor<decltype(Field)>::Class;
    using Type = typename Accessor<decltype(Field)>::Type;
    Property property = Named<Type>(name, about, kind);
    property.read = [](const PageItem& item) {
        return ToValue<Type>(SubjectOf<Class>(item).*Field);
    };
    property.write = [](PageItem& item, const PropertyValue& value) {
        SubjectOf<Class>(item).*Field = FromValue<Type>(value);
    };
    return property;
}

inline Property OneOf(Property property, Choices choices) {
    property.choices = choices;
    return property;
}

inline Property Within(Property property, NumberRange range) {
    property.range = range;
    return property;
}

inline Property WithLines(Property property) {
    property.hasLines = true;
    return property;
}

inline Property Measured(Property property) {
    property.isMeasured = true;
    return property;
}

template <std::size_t Count>
Property OneOf(Property property, const Choice (&choices)[Count]) {
    property.choices = {choices, Count};
    return property;
}

/// Choices in the order of their numbers.
inline std::vector<Choice> ByNumber(const std::map<std::int32_t, const char*>& names) {
    std::vector<Choice> choices;
    choices.reserve(names.size());
    for (const auto& [number, name] : names) {
        choices.push_back({name, number});
    }
    return choices;
}

/// The style types of the catalogue's elements of a class. Styles that share a type take
/// the name of the first: a stepped bar is a "line".
template <auto Get>
Choices TypeChoices() {
    static const std::vector<Choice> types = [] {
        std::map<std::int32_t, const char*> names;
        for (const CatalogueEntry& entry : kCatalogue) {
            if (const auto element =
                    NewElement<typename Accessor<decltype(Get)>::Class>(entry)) {
                names.emplace((*element.*Get)(), entry.Style());
            }
        }
        return ByNumber(names);
    }();
    return {types.data(), types.size()};
}

}  // namespace host::tables
