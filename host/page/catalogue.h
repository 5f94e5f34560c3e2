#pragma once

// Every element that a page can hold, in every style: the one list behind the words of
// the command line, the types of page files and their schema, the layout, the editor's
// menu, the gallery, the fuzzers and the tests. It needs the library's public headers
// only.

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "map_surround/map_surround.h"

namespace host {

/// The name of an element's family in page files; empty for an unknown one.
constexpr const char* FamilyName(MapSurroundType family) {
    switch (family) {
        case SurroundNorthArrow:
            return "north-arrow";
        case SurroundScaleBar:
            return "scale-bar";
        case SurroundMapTitle:
            return "title";
        case SurroundLegend:
            return "legend";
        case SurroundPicture:
            return "picture";
        case SurroundNone:
            break;
    }
    return "";
}

/// An element in one style.
struct CatalogueEntry {
    MapSurroundType family;
    const char* name;       ///< in page files: the family's, then the style
    const char* className;  ///< "CScaleLine2"
    const char* about;      ///< what it looks like, in a few words
    bool isUsual;           ///< the default style of its family
    std::unique_ptr<CMapSurround> (*make)();  ///< a new one with its defaults
    bool (*is)(const CMapSurround&);          ///< of exactly this class

    /// The word for it on the command line: "line2" of "scale-bar-line2". Empty in a
    /// family without styles.
    constexpr const char* Style() const {
        const std::size_t end = std::string_view(FamilyName(family)).size();
        return name[end] == '-' ? name + end + 1 : name + end;
    }
};

/// An entry that knows the class of its element.
template <class Element>
struct EntryOf : CatalogueEntry {
    using Class = Element;

    constexpr EntryOf(MapSurroundType kind, const char* typeName, const char* ofClass,
                      const char* looks, bool usual = false)
        : CatalogueEntry{kind,
                         typeName,
                         ofClass,
                         looks,
                         usual,
                         []() -> std::unique_ptr<CMapSurround> {
                             return std::make_unique<Element>();
                         },
                         [](const CMapSurround& element) {
                             return typeid(element) == typeid(Element);
                         }} {}
};

constexpr bool kUsual = true;

/// In the order of menus, help and schema. A new style is one more line here.
inline constexpr std::tuple kElements = {
    EntryOf<CMapTitle>(SurroundMapTitle, "title", "CMapTitle", "A text"),
    EntryOf<CDrawPicture>(SurroundPicture, "picture", "CDrawPicture", "An image file"),
    EntryOf<CMapLegend>(SurroundLegend, "legend", "CMapLegend",
                        "What the colours of the rasters mean"),
    EntryOf<CNorthArrowOneAngle>(SurroundNorthArrow, "north-arrow-one",
                                 "CNorthArrowOneAngle", "A shaft with a head"),
    EntryOf<CNorthArrowTwoAngle>(SurroundNorthArrow, "north-arrow-two",
                                 "CNorthArrowTwoAngle", "A split arrowhead"),
    EntryOf<CNorthArrowFourAngle>(SurroundNorthArrow, "north-arrow-four",
                                  "CNorthArrowFourAngle", "A star of four points"),
    EntryOf<CNorthArrowEightAngle>(SurroundNorthArrow, "north-arrow-eight",
                                   "CNorthArrowEightAngle", "A rose of eight points",
                                   kUsual),
    EntryOf<CScaleLine>(SurroundScaleBar, "scale-bar-line", "CScaleLine",
                        "Ticks on a base line"),
    EntryOf<CSteppedScaleLine>(SurroundScaleBar, "scale-bar-stepped", "CSteppedScaleLine",
                               "Ticks on a base line"),
    EntryOf<CScaleLine2>(SurroundScaleBar, "scale-bar-line2", "CScaleLine2",
                         "Ticks through a line"),
    EntryOf<CScaleLine3>(SurroundScaleBar, "scale-bar-line3", "CScaleLine3",
                         "Ticks below a line"),
    EntryOf<CScaleAlternate>(SurroundScaleBar, "scale-bar-alternating", "CScaleAlternate",
                             "Boxes, the first one subdivided", kUsual),
    EntryOf<CScaleEquAltenate>(SurroundScaleBar, "scale-bar-equal-alternating",
                               "CScaleEquAltenate", "Equal boxes"),
};

/// The same without the classes: for (const CatalogueEntry& entry : kCatalogue).
inline constexpr auto kCatalogue = std::apply(
    [](const auto&... entries) {
        return std::array<CatalogueEntry, sizeof...(entries)>{entries...};
    },
    kElements);

/// The entries of a family, in their order.
inline std::vector<const CatalogueEntry*> StylesOf(MapSurroundType family) {
    std::vector<const CatalogueEntry*> styles;
    for (const CatalogueEntry& entry : kCatalogue) {
        if (entry.family == family) {
            styles.push_back(&entry);
        }
    }
    return styles;
}

/// Calls with each entry whose class is of a family's; an entry still knows its class.
template <class Family, class Visit>
constexpr void VisitStyles(Visit visit) {
    const auto visitThoseOfFamily = [&](const auto& entry) {
        if constexpr (std::is_base_of_v<Family,
                                        typename std::decay_t<decltype(entry)>::Class>) {
            visit(entry);
        }
    };
    std::apply([&](const auto&... entries) { (visitThoseOfFamily(entries), ...); },
               kElements);
}

/// The entry of a class: StyleOf<CScaleLine2>(). Null for a class of somebody's own.
template <class Element>
constexpr const CatalogueEntry* StyleOf() {
    const CatalogueEntry* next = kCatalogue.data();
    const CatalogueEntry* found = nullptr;
    VisitStyles<CMapSurround>([&](const auto& entry) {
        using Class = typename std::decay_t<decltype(entry)>::Class;
        found = std::is_same_v<Class, Element> ? next : found;
        ++next;
    });
    return found;
}

/// The style of a family that a page has by default; null for none.
constexpr const CatalogueEntry* UsualStyle(MapSurroundType family) {
    for (const CatalogueEntry& entry : kCatalogue) {
        if (entry.family == family && entry.isUsual) {
            return &entry;
        }
    }
    return nullptr;
}

/// The entry of an element; null for one of the host's own class.
inline const CatalogueEntry* FindEntry(const CMapSurround& element) {
    for (const CatalogueEntry& entry : kCatalogue) {
        if (entry.is(element)) {
            return &entry;
        }
    }
    return nullptr;
}

/// Takes over an element that is of the family's class; otherwise returns null and leaves
/// the element where it is.
template <class Family>
std::unique_ptr<Family> TakeAs(std::unique_ptr<CMapSurround>& element) {
    auto* const taken = dynamic_cast<Family*>(element.get());
    if (taken != nullptr) {
        static_cast<void>(element.release());
    }
    return std::unique_ptr<Family>(taken);
}

/// A new element of an entry; null when the entry is of another family.
template <class Family>
std::unique_ptr<Family> NewElement(const CatalogueEntry& entry) {
    std::unique_ptr<CMapSurround> element = entry.make();
    return TakeAs<Family>(element);
}

}  // namespace host
