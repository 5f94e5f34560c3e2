#include "page/document/page_changes.h"

#include <algorithm>
#include <cstddef>
#include <memory>

#include "map_surround/legend.h"
#include "map_surround/title.h"
#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/element_of.h"
#include "page/layout/fit_to_map.h"
#include "page/placed_frame.h"

namespace host {
namespace {

const Property* PropertyOf(const PageItem& item, const char* name) {
    const ItemType* const type = TypeOf(item);
    return type == nullptr ? nullptr : FindProperty(type->properties, name);
}

/// What of an item is its text: a title's, or a legend's first line.
const Property* TextOf(const PageItem& item) {
    const Property* const text = PropertyOf(item, "text");
    return text != nullptr ? text : PropertyOf(item, "title");
}

bool IsNamed(const PageItem& item, const std::string& name) {
    const Property* const own = PropertyOf(item, "name");
    return own != nullptr && std::get<std::string>(own->read(item)) == name;
}

double WidthOf(const CMapSurround& element) {
    return element.GetSize() * double{element.GetAspectRatio()};
}

/// A title that is too large for its frame is set smaller, with half an em to each side
/// and a tenth above and below.
void FitTitle(const CSurroundFrame& frame, CMapTitle& title) {
    const CBoundingBox room = frame.GetExtent();
    const double em = title.GetFontSize();
    const double fits = std::min(room.GetWidth() / (WidthOf(title) + em),
                                 room.GetHeight() / (title.GetSize() + 0.2 * em));
    if (fits > 0.0 && fits < 1.0) {
        title.SetFontSize(em * fits);
        title.ResetAspectRatio();
    }
}

void WriteText(PageItem& item, const Property& property, const std::string& name,
               const std::string& text) {
    const std::string why = CheckValue(property, text);
    if (!why.empty()) {
        throw PageError(name, why);
    }
    property.write(item, text);
}

void SetText(PageItem& item, const std::string& name, const std::string& text) {
    const Property* const property = TextOf(item);
    if (property == nullptr || !IsNamed(item, name)) {
        return;
    }
    WriteText(item, *property, name, text);
    if (auto* const title = ElementOf<CMapTitle>(item)) {
        title->ResetAspectRatio();
        FitTitle(*FrameAs<CSurroundFrame>(item), *title);
    }
}

void Change(Page& page, const PageChanges& changes) {
    if (!changes.rasters.empty()) {
        NameRasters(page, changes.rasters);
    }
    for (PageItem& item : page.Items()) {
        const Property* const extent = PropertyOf(item, "extent");
        if (extent != nullptr && changes.extent) {
            extent->write(item, changes.extent);
        }
        const Property* const scale = PropertyOf(item, "scale");
        if (scale != nullptr && changes.scale) {
            scale->write(item, *changes.scale);
        }
        if (std::holds_alternative<MapFrame>(item)) {
            for (const auto& [name, text] : changes.mapTexts) {
                WriteText(item, *PropertyOf(item, name.c_str()), name, text);
            }
        }
        for (const auto& [name, text] : changes.texts) {
            SetText(item, name, text);
        }
    }
}

/// Where a legend stands in its frame, from the frame's middle, y growing upwards.
struct LegendPlace {
    CMapLegend* legend;
    PlacedFrame* frame;
    double left;
    double top;
};

/// Has the legends measured anew when they are opened.
std::vector<LegendPlace> ForgetLegendSizes(Page& page) {
    std::vector<LegendPlace> places;
    for (PageItem& item : page.Items()) {
        auto* const frame = FrameAs<LegendFrame>(item);
        auto* const legend = ElementOf<CMapLegend>(item);
        if (frame != nullptr && legend != nullptr) {
            const CPoint2D offset = frame->ElementOffset();
            places.push_back({legend, frame, offset.x - WidthOf(*legend) / 2.0,
                              offset.y + legend->GetSize() / 2.0});
            legend->SetSize(0);
        }
    }
    return places;
}

/// The legend begins where it did, and is no larger than leaves the same space around it.
void FitLegend(const LegendPlace& place) {
    const CBoundingBox box = place.frame->GetExtent();
    CMapLegend& legend = *place.legend;
    const double width = WidthOf(legend);
    const double factor =
        std::min({1.0, -2.0 * place.left / width, 2.0 * place.top / legend.GetSize()});
    if (box.GetWidth() > 0.0 && factor > 0.0) {
        legend.SetSize(std::max(1, static_cast<int>(legend.GetSize() * factor)));
    }
    place.frame->SetElementOffset(place.left + WidthOf(legend) / 2.0,
                                  place.top - legend.GetSize() / 2.0);
}

}  // namespace

std::vector<std::string> ChangeAndOpen(Page& page, const PageChanges& changes,
                                       RasterStore& store) {
    Change(page, changes);
    const std::vector<LegendPlace> legends =
        changes.rasters.empty() ? std::vector<LegendPlace>() : ForgetLegendSizes(page);
    OpenRasters(page, store);
    std::for_each(legends.begin(), legends.end(), FitLegend);
    return FitToMap(page);
}

bool HasText(const Page& page, const std::string& name) {
    return std::any_of(page.Items().begin(), page.Items().end(),
                       [&name](const PageItem& item) {
                           return TextOf(item) != nullptr && IsNamed(item, name);
                       });
}

}  // namespace host
