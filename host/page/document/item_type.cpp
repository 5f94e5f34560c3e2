#include "page/document/item_type.h"

#include <memory>
#include <typeinfo>

#include "map_surround/map_surround.h"
#include "page/document/tables/subject.h"
#include "page/document/tables/tables.h"

namespace host {
namespace {

using Frame = std::unique_ptr<CSurroundFrame>;

/// The frame of an item, when it is one whose properties are known.
const PlacedFrame* PlacedFrameOf(const PageItem& item) {
    const auto* const frame = std::get_if<Frame>(&item);
    return frame == nullptr ? nullptr : dynamic_cast<const PlacedFrame*>(frame->get());
}

template <class Element>
bool Holds(const PageItem& item) {
    const PlacedFrame* const frame = PlacedFrameOf(item);
    const CMapSurround* const element =
        frame == nullptr ? nullptr : frame->GetMapSurround();
    return element != nullptr && typeid(*element) == typeid(Element);
}

template <class Element>
PageItem MakeFramed() {
    auto frame = std::make_unique<PlacedFrame>();
    frame->SetMapSurround(std::make_unique<Element>().release());
    frame->SetDivisionLength(frame->DivisionLength());
    return Frame(std::move(frame));
}

/// A type whose frame holds an element of a class.
template <class Element>
ItemType Framed(const char* name, const char* about, std::vector<Property> own) {
    return {name, about,
            tables::Join({tables::PlacedFrameProperties(), std::move(own),
                          tables::ElementProperties()}),
            MakeFramed<Element>, Holds<Element>};
}

ItemType Map() {
    return {"map", "The map: rasters on each other", tables::MapProperties(),
            [] { return PageItem(MapFrame()); },
            [](const PageItem& item) { return std::holds_alternative<MapFrame>(item); }};
}

ItemType EmptyFrame() {
    return {"frame", "A frame with nothing in it", tables::PlacedFrameProperties(),
            [] { return PageItem(Frame(std::make_unique<PlacedFrame>())); },
            [](const PageItem& item) {
                const PlacedFrame* const frame = PlacedFrameOf(item);
                return frame != nullptr && frame->GetMapSurround() == nullptr;
            }};
}

template <class Arrow>
ItemType NorthArrow(const char* name, const char* about) {
    return Framed<Arrow>(name, about, tables::NorthArrowProperties());
}

template <class Bar>
ItemType ScaleBar(const char* name, const char* about) {
    return Framed<Bar>(name, about, tables::ScaleBarProperties());
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
    static const std::vector<ItemType> types = {
        Map(),
        EmptyFrame(),
        Framed<CMapTitle>("title", "A line of text", tables::TitleProperties()),
        Framed<CDrawPicture>("picture", "An image file", tables::PictureProperties()),
        Framed<CMapLegend>("legend", "What the colours of the rasters mean",
                           tables::LegendProperties()),
        NorthArrow<CNorthArrowOneAngle>("north-arrow-one", "A shaft with a head"),
        NorthArrow<CNorthArrowTwoAngle>("north-arrow-two", "A split arrowhead"),
        NorthArrow<CNorthArrowFourAngle>("north-arrow-four", "A star of four points"),
        NorthArrow<CNorthArrowEightAngle>("north-arrow-eight", "A rose of eight points"),
        ScaleBar<CScaleLine>("scale-bar-line", "Ticks on a base line"),
        ScaleBar<CSteppedScaleLine>("scale-bar-stepped", "Ticks on a base line"),
        ScaleBar<CScaleLine2>("scale-bar-line2", "Ticks through a line"),
        ScaleBar<CScaleLine3>("scale-bar-line3", "Ticks below a line"),
        ScaleBar<CScaleAlternate>("scale-bar-alternating",
                                  "Boxes, the first one subdivided"),
        ScaleBar<CScaleEquAltenate>("scale-bar-equal-alternating", "Equal boxes"),
    };
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
    const PlacedFrame* const frame = PlacedFrameOf(item);
    if (frame != nullptr && frame->GetMapSurround() != nullptr &&
        !Holds<CMapLegend>(item)) {
        frame->GetMapSurround()->ResetAspectRatio();
    }
}

}  // namespace host
