#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "page/box.h"
#include "page/layout/layout.h"

namespace host_tests {

/// What a layout has put on a page.
struct LaidOut {
    host::Page page;
    std::vector<std::string> remarks;
    host::Box map;

    explicit LaidOut(host::Page laid, std::vector<std::string> told = {})
        : page(std::move(laid)), remarks(std::move(told)) {
        for (const host::PageItem& item : page.Items()) {
            if (const auto* found = std::get_if<host::MapFrame>(&item)) {
                map = host::BoxOf(found->frame.GetExtent());
                continue;
            }
            CSurroundFrame* const frame =
                std::get<std::unique_ptr<CSurroundFrame>>(item).get();
            if (const CMapSurround* const element = frame->GetMapSurround()) {
                m_frames[element->GetItemType()] = frame;
            }
        }
    }
    explicit LaidOut(host::LaidOutPage laid)
        : LaidOut(std::move(laid.page), std::move(laid.remarks)) {}
    LaidOut(const host::PageDesign& design, const host::MapOnPage& shown)
        : LaidOut(host::LayOut(design, shown)) {}

    /// Null where the page has none, or one of another class.
    template <class Frame = CSurroundFrame>
    Frame* Of(MapSurroundType type) const {
        const auto found = m_frames.find(type);
        return found == m_frames.end() ? nullptr : dynamic_cast<Frame*>(found->second);
    }

    /// Fails the test where the page has none, or one of another class.
    template <class Element>
    Element& The(MapSurroundType type) const {
        return dynamic_cast<Element&>(*m_frames.at(type)->GetMapSurround());
    }

    host::Box BoxOf(MapSurroundType type) const {
        return host::BoxOf(m_frames.at(type)->GetExtent());
    }

private:
    std::map<MapSurroundType, CSurroundFrame*> m_frames;  ///< of the elements
};

}  // namespace host_tests
