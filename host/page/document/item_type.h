#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "page/catalogue.h"
#include "page/document/property.h"
#include "page/page.h"

namespace host {

/// A kind of thing that can stand on a page: the map, a frame with one class of element,
/// an empty frame.
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

/// The properties of the frame around each, whatever its type.
const std::vector<Property>& FrameProperties();

/// The type of an item; null for a frame or an element of a class of somebody's own.
const ItemType* TypeOf(const PageItem& item);

/// The type of a name, null when there is none.
const ItemType* FindItemType(std::string_view name);

/// A property of a type, or of its frame, by name; null when there is none.
const Property* FindProperty(const std::vector<Property>& properties,
                             std::string_view name);

/// Measures the element anew, as is right after a change of what it shows: it takes its
/// natural proportions, and a title its natural size. A legend is measured once its
/// rasters are open, by OpenRasters.
void MeasureItem(PageItem& item);

}  // namespace host
