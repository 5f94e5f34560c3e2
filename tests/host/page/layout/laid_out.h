#pragma once

#include <map>
#include <memory>
#include <variant>

#include "page/page.h"

namespace host_tests {

/// What a layout has put on a page.
struct LaidOut {
    CBoundingBox map;
    std::map<MapSurroundType, CSurroundFrame*> frames;  ///< of the elements

    explicit LaidOut(const host::Page& page) {
        for (const host::PageItem& item : page.Items()) {
            if (const auto* found = std::get_if<host::MapFrame>(&item)) {
                map = found->frame.GetExtent();
                continue;
            }
            CSurroundFrame* const frame =
                std::get<std::unique_ptr<CSurroundFrame>>(item).get();
            if (const CMapSurround* const element = frame->GetMapSurround()) {
                frames[element->GetItemType()] = frame;
            }
        }
    }

    /// Null where the page has none.
    CSurroundFrame* Of(MapSurroundType type) const {
        const auto found = frames.find(type);
        return found == frames.end() ? nullptr : found->second;
    }
};

}  // namespace host_tests
