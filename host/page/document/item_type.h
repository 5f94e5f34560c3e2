#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "page/catalogue.h"
#include "page/document/property.h"
#include "page/page.h"

namespace host {

/// A type of page item: the map, a frame with one class of element, an empty frame.
struct ItemType {
    const char* name;  ///< as in the page file: "scale-bar-line"
    const char* about;
    std::vector<Property> properties;  ///< all but the frame's, in the order of writing
    const CatalogueEntry* element;     ///< in the frame; null for map and empty frame
    std::function<PageItem()> make;    ///< a new one with every default
    std::function<bool(const PageItem&)> is;
};

constexpr const char* kMapType = "map";

/// Every type: the map, the empty frame, then the elements in the catalogue's order.
const std::vector<ItemType>& ItemTypes();

/// The properties of the frame around every item, whatever its type.
const std::vector<Property>& FrameProperties();

/// The type of an item; null for a frame or an element of the host's own class.
const ItemType* TypeOf(const PageItem& item);

/// The type with a name; null for none.
const ItemType* FindItemType(std::string_view name);

/// A property of a type, or of its frame, by name; null for none.
const Property* FindProperty(const std::vector<Property>& properties,
                             std::string_view name);

/// Measures the element again, after a change of its contents: it takes its natural
/// proportions, and a title its natural size. A legend is measured by OpenRasters, once
/// its rasters are open.
void MeasureItem(PageItem& item);

}  // namespace host
