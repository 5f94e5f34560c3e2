#include "page/document/page_changes.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>

#include "map_surround/legend.h"
#include "map_surround/title.h"
#include "page/document/fitted_texts.h"
#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "page/document/page_language.h"
#include "page/document/resized_page.h"
#include "page/element_of.h"
#include "page/ink.h"
#include "page/layout/added_scale.h"
#include "page/layout/fit_to_map.h"
#include "page/placed_frame.h"

namespace host {
namespace {

const Property* PropertyOf(const PageItem& item, const char* name) {
    const ItemType* const type = TypeOf(item);
    return type == nullptr ? nullptr : FindProperty(type->properties, name);
}

/// The property that is an item's text: a title's, or a legend's first line.
const Property* TextOf(const PageItem& item) {
    const Property* const text = PropertyOf(item, "text");
    return text != nullptr ? text : PropertyOf(item, "title");
}

bool IsNamed(const PageItem& item, const std::string& name) {
    const Property* const own = PropertyOf(item, "name");
    return own != nullptr && std::get<std::string>(own->read(item)) == name;
}

/// @param place for errors
void WriteValue(PageItem& item, const Property& property, const std::string& place,
                const PropertyValue& value) {
    const std::string why = CheckValue(property, value);
    if (!why.empty()) {
        throw PageError(place, why);
    }
    property.write(item, value);
}

void SetText(PageItem& item, const std::string& name, const std::string& text,
             FittedTitles& titles) {
    const Property* const property = TextOf(item);
    if (property != nullptr && IsNamed(item, name)) {
        WriteValue(item, *property, name, text);
        titles.Fit(item);
    }
}

bool IsOf(const PageItem& item, MapSurroundType family) {
    const ItemType* const type = TypeOf(item);
    return type != nullptr && type->element != nullptr && type->element->family == family;
}

/// "scale bar": the name on an automatic page.
std::string UsualName(MapSurroundType family) {
    std::string name = FamilyName(family);
    std::replace(name.begin(), name.end(), '-', ' ');
    return name;
}

/// The element of a family that a change applies to.
PageItem& ElementFor(Page& page, MapSurroundType family, const std::string& asked) {
    const std::string name = UsualName(family);
    PageItem* found = nullptr;
    std::size_t count = 0;
    for (PageItem& item : page.Items()) {
        if (IsOf(item, family)) {
            ++count;
            found = count == 1 || IsNamed(item, name) ? &item : found;
        }
    }
    if (found == nullptr) {
        throw PageError(asked, "the page has no " + name);
    }
    if (count > 1 && !IsNamed(*found, name)) {
        throw PageError(asked, "the page has " + std::to_string(count) +
                                   " of its kind, and none is called \"" + name + "\"");
    }
    return *found;
}

/// Replaces an element by one of another style in the same frame, with every property
/// that both have.
void Restyle(PageItem& item, const CatalogueEntry& style) {
    const ItemType& before = *TypeOf(item);
    const ItemType& type = *FindItemType(style.name);
    PageItem restyled = type.make();
    for (const Property& property : type.properties) {
        const Property* const same = FindProperty(before.properties, property.name);
        const std::string_view name = property.name;
        const bool isOfStyle = name == "northArrowType" || name == "scaleBarType";
        if (same != nullptr && !isOfStyle) {
            property.write(restyled, same->read(item));
        }
    }
    for (const Property& property : FrameProperties()) {
        property.write(restyled, property.read(item));
    }
    MeasureItem(restyled);
    // Its ink stays centred where the other's was.
    const auto middleOf = [](PageItem& of) {
        const InkBox ink = MeasureInk(*std::get<std::unique_ptr<CSurroundFrame>>(of));
        return CPoint2D((ink.right - ink.left) / 2.0, (ink.up - ink.down) / 2.0);
    };
    const CPoint2D stood = middleOf(item);
    const CPoint2D stands = middleOf(restyled);
    auto& frame = *FrameAs<PlacedFrame>(restyled);
    const CPoint2D offset = frame.ElementOffset();
    frame.SetElementOffset(offset.x + stood.x - stands.x, offset.y + stood.y - stands.y);
    item = std::move(restyled);
}

void ChangeStyle(Page& page, const StyleChange& change) {
    if (change.style != nullptr) {
        Restyle(ElementFor(page, change.family, change.asked), *change.style);
        return;
    }
    std::vector<PageItem>& items = page.Items();
    items.erase(std::remove_if(items.begin(), items.end(),
                               [&change](const PageItem& item) {
                                   return IsOf(item, change.family);
                               }),
                items.end());
}

/// A unit that is asked for brings its own name, and a name belongs to one unit.
void KeepUnitAndName(PageItem& item, const std::string& changed) {
    auto* const frame = FrameAs<ScaleBarFrame>(item);
    auto* const bar = ElementOf<CScaleBarBase>(item);
    if (frame != nullptr && bar != nullptr && changed == "unit") {
        bar->SetUnitsNameVerbatim(frame->GetLanguage().Unit(UnitFor(frame->Unit(), 0.0)));
    } else if (frame != nullptr && bar != nullptr && changed == "units") {
        frame->SetUnit(CountedUnit(*frame, *bar));
    }
}

void ChangeElement(Page& page, const ElementChange& change, FittedTitles& titles) {
    PageItem& item = ElementFor(page, change.family, change.asked);
    const Property* const property = PropertyOf(item, change.property.c_str());
    if (change.property == "units") {
        KeepUnitAndName(item, change.property);  // while it has its unit's name
    }
    WriteValue(item, *property, change.asked, change.value);
    if (change.property == "unit") {
        KeepUnitAndName(item, change.property);
    }
    if (change.property == "fontSize") {
        MeasureItem(item);  // in the size asked for
        titles.Forget(item);
    } else {
        titles.Fit(item);
    }
}

void ChangePaper(Page& page, const PaperChange& change) {
    PaperSize paper = change.paper.value_or(PaperSize{page.Width(), page.Height()});
    const bool isUpright = page.Height() > page.Width();
    if ((change.isUpright || (change.turns && isUpright)) && paper.width > paper.height) {
        std::swap(paper.width, paper.height);
    }
    page = Resized(std::move(page), paper);
}

void ChangeLanguage(Page& page, const Language& language) {
    page.About().language = language.code;
    for (PageItem& item : page.Items()) {
        for (const auto& [property, value] : WordsIn(language, item)) {
            property->write(item, value);
        }
    }
}

void ChangeMap(PageItem& item, const PageChanges& changes) {
    const Property* const extent = PropertyOf(item, "extent");
    if (extent != nullptr && changes.extent) {
        extent->write(item, changes.extent);
    }
    const Property* const scale = PropertyOf(item, "scale");
    if (scale != nullptr && changes.scale) {
        scale->write(item, *changes.scale);
    }
    for (const auto& [name, text] : changes.mapTexts) {
        WriteValue(item, *PropertyOf(item, name.c_str()), name, text);
    }
}

void ChangeFrame(PageItem& item, const PageChanges& changes) {
    for (const auto& [name, value] : changes.frames) {
        FindProperty(FrameProperties(), name)->write(item, value);
    }
}

bool ChangesLegends(const PageChanges& changes) {
    return !changes.rasters.empty() || changes.language != nullptr ||
           std::any_of(changes.elements.begin(), changes.elements.end(),
                       [](const ElementChange& change) {
                           return change.family == SurroundLegend;
                       });
}

template <class List>
void Append(List& list, const List& more) {
    list.insert(list.end(), more.begin(), more.end());
}

}  // namespace

PageChanges Merged(PageChanges first, const PageChanges& then) {
    PageChanges both = std::move(first);
    if (!then.rasters.empty()) {
        both.rasters = then.rasters;
    }
    both.extent = then.extent ? then.extent : both.extent;
    both.language = then.language != nullptr ? then.language : both.language;
    both.scale = then.scale ? then.scale : both.scale;
    both.paper = then.paper ? then.paper : both.paper;
    both.numericScale = both.numericScale || then.numericScale;
    Append(both.styles, then.styles);
    Append(both.elements, then.elements);
    Append(both.frames, then.frames);
    Append(both.mapTexts, then.mapTexts);
    Append(both.texts, then.texts);
    return both;
}

std::vector<std::string> Change(Page& page, const PageChanges& changes) {
    FittedTitles titles(page);
    if (changes.paper) {
        ChangePaper(page, *changes.paper);
    }
    if (!changes.rasters.empty()) {
        NameRasters(page, changes.rasters);
    }
    if (changes.language != nullptr) {
        ChangeLanguage(page, *changes.language);
    }
    for (const StyleChange& change : changes.styles) {
        ChangeStyle(page, change);
    }
    for (const ElementChange& change : changes.elements) {
        ChangeElement(page, change, titles);
    }
    for (PageItem& item : page.Items()) {
        if (std::holds_alternative<MapFrame>(item)) {
            ChangeMap(item, changes);
        } else if (ElementOf<CMapSurround>(item) != nullptr) {
            ChangeFrame(item, changes);
        }
        for (const auto& [name, text] : changes.texts) {
            SetText(item, name, text, titles);
        }
    }
    return titles.Remarks();
}

std::vector<std::string> OpenChanged(Page& page, const PageChanges& changes,
                                     RasterStore& store) {
    const std::vector<LegendPlace> legends =
        ChangesLegends(changes) ? ForgetLegendSizes(page) : std::vector<LegendPlace>();
    OpenRasters(page, store);
    std::for_each(legends.begin(), legends.end(), FitLegend);
    std::vector<std::string> remarks = FitToMap(page);
    if (changes.numericScale) {
        Append(remarks, AddNumericScale(page));
    }
    return remarks;
}

bool HasText(const Page& page, const std::string& name) {
    return std::any_of(page.Items().begin(), page.Items().end(),
                       [&name](const PageItem& item) {
                           return TextOf(item) != nullptr && IsNamed(item, name);
                       });
}

}  // namespace host
