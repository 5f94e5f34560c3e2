#include "page_editor/editing/element_scale.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <variant>

#include "map_surround/map_surround.h"
#include "page/document/item_type.h"
#include "page/element_of.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/editing/property_change.h"

namespace page_editor {
namespace {

/// The properties that are lengths of an element, and the distance of a scale bar's
/// division.
constexpr std::string_view kLengths[] = {
    "fontSize", "divisionLength", "divisionValue", "offsetX", "offsetY", "size",
};

double NumberIn(const host::PropertyValue& value) {
    const auto* const integer = std::get_if<std::int32_t>(&value);
    return integer != nullptr ? *integer : std::get<double>(value);
}

/// A length in the type of a property, within its range. A positive one stays positive.
host::PropertyValue LengthFor(const host::Property& property, double length) {
    const double within =
        std::clamp(length, property.range.lowest, property.range.highest);
    if (property.kind == host::PropertyKind::Integer) {
        const double least = length > 0.0 ? 1.0 : property.range.lowest;
        return static_cast<std::int32_t>(std::max(least, std::round(within)));
    }
    return within;
}

}  // namespace

ElementScale::ElementScale(const host::PageItem& item)
    : m_extent(host::BoxOf(FrameOf(item).GetExtent())) {
    const host::ItemType* const type = host::TypeOf(item);
    if (host::ElementOf<CMapSurround>(item) == nullptr || type == nullptr) {
        return;
    }
    m_hasProportions = host::ElementOf<CNorthArrowBase>(item) == nullptr;
    for (const std::string_view name : kLengths) {
        const host::Property* const property = host::FindProperty(type->properties, name);
        if (property != nullptr) {
            m_lengths.emplace_back(property, NumberIn(property->read(item)));
        }
    }
}

void ElementScale::Apply(host::PageItem& item, const host::Box& extent) const {
    FrameOf(item).SetExtent(BoundingBoxOf(extent));
    if (!HasElement() || !(m_extent.Width() > 0.0) || !(m_extent.Height() > 0.0)) {
        return;
    }
    const double factor =
        std::min(extent.Width() / m_extent.Width(), extent.Height() / m_extent.Height());
    for (const auto& [property, length] : m_lengths) {
        property->write(item, LengthFor(*property, length * factor));
    }
    Measure(item);
}

}  // namespace page_editor
