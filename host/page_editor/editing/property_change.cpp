#include "page_editor/editing/property_change.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "map_surround/map_surround.h"
#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/page_format.h"
#include "page/document/picture_file.h"
#include "page/element_of.h"
#include "page_editor/editing/arrange.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/editing/separate_reading.h"
#include "system/fonts.h"

namespace page_editor {
namespace {

using host::PropertyKind;

/// The properties that do not affect an element's size.
constexpr std::string_view kUnmeasured[] = {
    "name", "offsetX", "offsetY", "size", "aspectRatio", "itemType",
};

/// Whether a change of the property changes the element's size.
bool IsMeasuredBy(const host::Property& property, host::PageItem& item) {
    const host::ItemType* const type = host::TypeOf(item);
    const bool isOfElement =
        type != nullptr &&
        host::FindProperty(type->properties, property.name) == &property;
    const bool isKnownNotTo = std::find(std::begin(kUnmeasured), std::end(kUnmeasured),
                                        property.name) != std::end(kUnmeasured);
    return isOfElement && !isKnownNotTo && property.kind != PropertyKind::Colour;
}

/// The natural size of a legend.
int NaturalSize(host::PageItem& item, CMapLegend& legend, host::RasterStore& rasters) {
    legend.SetSize(0);
    host::OpenRasters(item, rasters);
    return legend.GetSize();
}

/// Nothing while its rasters are missing.
std::optional<int> NaturalSizeIfOpen(host::PageItem& item, CMapLegend& legend,
                                     host::RasterStore& rasters) {
    try {
        return NaturalSize(item, legend, rasters);
    } catch (const host::PageError&) {
        return std::nullopt;
    }
}

void CheckUse(const host::Property& property, const host::PropertyValue& value,
              const host::RasterStore& rasters, const host::Progress& reading) {
    std::string why = host::CheckValue(property, value);
    const auto* const text = std::get_if<std::string>(&value);
    if (why.empty() && property.kind == PropertyKind::Font &&
        !host::IsFontFamilyKnown(*text)) {
        why = "no font family \"" + *text + "\" is installed";
    }
    if (why.empty() && property.kind == PropertyKind::File) {
        TryImage(*text, reading);
        why = host::CheckImageFile(*text);
    }
    if (why.empty() && property.kind == PropertyKind::Rasters) {
        TryRasters(std::get<std::vector<std::string>>(value), rasters, reading);
    }
    if (!why.empty()) {
        throw host::PageError(property.name, why);
    }
}

}  // namespace

void SetProperty(host::PageItem& item, const host::Property& property,
                 const host::PropertyValue& value, host::RasterStore& rasters,
                 const host::Progress& reading) {
    CheckUse(property, value, rasters, reading);
    auto* const legend = host::ElementOf<CMapLegend>(item);
    if (!IsMeasuredBy(property, item)) {
        property.write(item, value);
    } else if (legend != nullptr) {
        const int size = legend->GetSize();
        const std::optional<int> before = NaturalSizeIfOpen(item, *legend, rasters);
        property.write(item, value);
        const int after = NaturalSize(item, *legend, rasters);
        const double part =
            before.value_or(0) > 0 ? static_cast<double>(size) / *before : 1.0;
        legend->SetSize(before ? static_cast<int>(std::lround(after * part)) : size);
    } else {
        property.write(item, value);
        Measure(item);
    }
}

void Measure(host::PageItem& item) {
    if (host::ElementOf<CDrawPicture>(item) == nullptr) {
        host::MeasureItem(item);
    }
}

void TurnByQuarter(host::PageItem& item, host::RasterStore& rasters) {
    const host::ItemType* const type = host::TypeOf(item);
    const host::Property* const angle =
        type == nullptr ? nullptr : host::FindProperty(type->properties, "angle");
    if (angle == nullptr || host::ElementOf<CMapLegend>(item) != nullptr ||
        host::ElementOf<CScaleBarBase>(item) != nullptr) {
        return;
    }
    const double turned = std::fmod(std::get<double>(angle->read(item)) + 90.0, 360.0);
    SetProperty(item, *angle, turned, rasters, {});
    const host::Box box = host::BoxOf(FrameOf(item).GetExtent());
    const double half = (box.Width() - box.Height()) / 2.0;
    FrameOf(item).SetExtent(host::BoundingBoxOf(
        {box.left + half, box.bottom - half, box.right - half, box.top + half}));
    const auto* const x = host::FindProperty(type->properties, "offsetX");
    const auto* const y = host::FindProperty(type->properties, "offsetY");
    const double across = std::get<double>(x->read(item));
    x->write(item, y->read(item));
    y->write(item, -across);
}

}  // namespace page_editor
