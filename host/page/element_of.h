#pragma once

// Finds what stands in a frame or on a page by its class.

#include <memory>
#include <variant>

#include "page/page.h"

namespace host {

/// A frame's element, if it is of a class or derived from it; else null.
template <class Element>
Element* ElementOf(CSurroundFrame& frame) {
    return dynamic_cast<Element*>(frame.GetMapSurround());
}
template <class Element>
const Element* ElementOf(const CSurroundFrame& frame) {
    return dynamic_cast<const Element*>(frame.GetMapSurround());
}

/// The frame of an item with or without an element, if it is of a class; null for any
/// other frame and for a map.
template <class Frame>
Frame* FrameAs(PageItem& item) {
    const auto* const frame = std::get_if<std::unique_ptr<CSurroundFrame>>(&item);
    return frame == nullptr ? nullptr : dynamic_cast<Frame*>(frame->get());
}
template <class Frame>
const Frame* FrameAs(const PageItem& item) {
    const auto* const frame = std::get_if<std::unique_ptr<CSurroundFrame>>(&item);
    return frame == nullptr ? nullptr : dynamic_cast<const Frame*>(frame->get());
}

/// The element of an item, if it is of a class; else null.
template <class Element>
Element* ElementOf(PageItem& item) {
    auto* const frame = FrameAs<CSurroundFrame>(item);
    return frame == nullptr ? nullptr : ElementOf<Element>(*frame);
}
template <class Element>
const Element* ElementOf(const PageItem& item) {
    const auto* const frame = FrameAs<CSurroundFrame>(item);
    return frame == nullptr ? nullptr : ElementOf<Element>(*frame);
}

/// The picture of an item, if it is a map and its picture of a class; else null.
template <class Picture>
std::shared_ptr<Picture> PictureAs(const PageItem& item) {
    const auto* const map = std::get_if<MapFrame>(&item);
    return map == nullptr ? nullptr : std::dynamic_pointer_cast<Picture>(map->picture);
}

}  // namespace host
