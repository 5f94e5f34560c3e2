#include "page/document/item_type.h"

#include <memory>
#include <utility>

#include "map_surround/map_surround.h"
#include "page/catalogue.h"
#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"
#include "page/element_of.h"
#include "page/numeric_scale.h"

namespace host {
namespace {

using Frame = std::unique_ptr<CSurroundFrame>;

template <class Class>
bool Is(const CSurroundFrame& frame) {
    return dynamic_cast<const Class*>(&frame) != nullptr;
}

/// What the elements of a family have in common on a page.
struct FamilyOnPage {
    MapSurroundType family;
    std::vector<Property> (*properties)();
    bool (*suits)(const CSurroundFrame&);  ///< whether the frame is what FrameFor makes
};

constexpr FamilyOnPage kFamilies[] = {
    {SurroundMapTitle, tables::TitleProperties, Is<PlacedFrame>},
    {SurroundPicture, tables::PictureProperties, Is<PlacedFrame>},
    {SurroundLegend, tables::LegendProperties, Is<LegendFrame>},
    {SurroundNorthArrow, tables::NorthArrowProperties, Is<NorthArrowFrame>},
    {SurroundScaleBar, tables::ScaleBarProperties, Is<ScaleBarFrame>},
};

constexpr const FamilyOnPage* FamilyOf(const CatalogueEntry& entry) {
    for (const FamilyOnPage& known : kFamilies) {
        if (known.family == entry.family) {
            return &known;
        }
    }
    return nullptr;
}

constexpr bool AllHaveAFamily() {
    // NOLINTNEXTLINE(readability-use-anyofallof): std::all_of is no constant expression
    for (const CatalogueEntry& entry : kCatalogue) {
        if (FamilyOf(entry) == nullptr) {
            return false;
        }
    }
    return true;
}
static_assert(AllHaveAFamily(), "a family of the catalogue has no properties");

ItemType Map() {
    return {kMapType,
            "The map: rasters on top of each other",
            tables::MapProperties(),
            nullptr,
            [] { return PageItem(MapFrame()); },
            [](const PageItem& item) { return std::holds_alternative<MapFrame>(item); }};
}

ItemType EmptyFrame() {
    return {"frame",
            "An empty frame",
            tables::PlacedFrameProperties(),
            nullptr,
            [] { return PageItem(Frame(std::make_unique<PlacedFrame>())); },
            [](const PageItem& item) {
                const auto* const frame = FrameAs<PlacedFrame>(item);
                return frame != nullptr && frame->GetMapSurround() == nullptr;
            }};
}

/// A frame that holds an element of the catalogue.
ItemType Framed(const CatalogueEntry& entry) {
    const FamilyOnPage& family = *FamilyOf(entry);
    return {entry.name,
            entry.about,
            tables::Join({tables::PlacedFrameProperties(), family.properties(),
                          tables::ElementProperties()}),
            &entry,
            [&entry] { return PageItem(Frame(FrameFor(entry.make()))); },
            [&entry, &family](const PageItem& item) {
                const auto* const frame = FrameAs<CSurroundFrame>(item);
                const auto* const element = ElementOf<CMapSurround>(item);
                return element != nullptr && entry.is(*element) && family.suits(*frame);
            }};
}

ItemType Numeric() {
    return {"numeric-scale",
            "The scale of the map in figures",
            tables::Join({tables::PlacedFrameProperties(),
                          tables::NumericScaleProperties(), tables::ElementProperties()}),
            nullptr,
            [] { return PageItem(Frame(FrameFor(std::make_unique<NumericScale>()))); },
            [](const PageItem& item) {
                return ElementOf<NumericScale>(item) != nullptr &&
                       FrameAs<PlacedFrame>(item) != nullptr;
            }};
}

std::vector<ItemType> AllTypes() {
    std::vector<ItemType> types = {Map(), EmptyFrame()};
    for (const CatalogueEntry& entry : kCatalogue) {
        types.push_back(Framed(entry));
    }
    types.push_back(Numeric());
    return types;
}

}  // namespace

std::vector<Property> tables::Join(std::initializer_list<std::vector<Property>> lists) {
    std::vector<Property> all;
    for (const std::vector<Property>& list : lists) {
        all.insert(all.end(), list.begin(), list.end());
    }
    return all;
}

const std::vector<ItemType>& ItemTypes() {
    static const std::vector<ItemType> types = AllTypes();
    return types;
}

const std::vector<Property>& FrameProperties() {
    static const std::vector<Property> properties = tables::FrameProperties();
    return properties;
}

const ItemType* TypeOf(const PageItem& item) {
    for (const ItemType& type : ItemTypes()) {
        if (type.is(item)) {
            return &type;
        }
    }
    return nullptr;
}

const ItemType* FindItemType(std::string_view name) {
    for (const ItemType& type : ItemTypes()) {
        if (type.name == name) {
            return &type;
        }
    }
    return nullptr;
}

const Property* FindProperty(const std::vector<Property>& properties,
                             std::string_view name) {
    for (const Property& property : properties) {
        if (property.name == name) {
            return &property;
        }
    }
    return nullptr;
}

void MeasureItem(PageItem& item) {
    auto* const element = ElementOf<CMapSurround>(item);
    if (FrameAs<PlacedFrame>(item) != nullptr && element != nullptr &&
        ElementOf<CMapLegend>(item) == nullptr) {
        element->ResetAspectRatio();
    }
}

}  // namespace host
