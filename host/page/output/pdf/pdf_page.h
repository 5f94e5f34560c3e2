#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "page/output/georeference.h"
#include "page/page.h"
#include "page/units.h"
#include "page/words/page_words.h"

namespace host {

/// What a PDF file needs to know about one of its pages that Cairo drew.
struct PdfPage {
    /// An item that is read aloud.
    struct Tagged {
        SpokenItem spoken;
        Box box;  ///< points, from the bottom left corner of the sheet
    };

    PageAbout about;
    std::vector<Tagged> items;      ///< in reading order
    std::vector<std::size_t> tags;  ///< items of the page, in the order of their tags
    std::vector<GeoreferencedMap> maps;
    double dpi;              ///< for the places of the maps
    std::string name = {};   ///< label and bookmark; empty: its number and its title
    bool isDropped = false;  ///< whether it is left out of the file
};

/// Describes a page before it is drawn; `tags` are set afterwards.
inline PdfPage PdfPageOf(const Page& page, double dpi) {
    PageWords words = WordsOf(page);
    PdfPage described{std::move(words.about), {}, {}, GeoreferencedMaps(page, dpi), dpi};
    for (SpokenItem& spoken : words.items) {
        const Box frame = BoxOf(FrameOf(page.Items()[spoken.item]).GetExtent());
        described.items.push_back(
            {std::move(spoken),
             {PointsFromUnits(frame.left), PointsFromUnits(frame.bottom),
              PointsFromUnits(frame.right), PointsFromUnits(frame.top)}});
    }
    return described;
}

}  // namespace host
