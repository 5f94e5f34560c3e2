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

/// What a PDF file is told of one of its pages that Cairo drew.
struct PdfPage {
    /// What is read of the page.
    struct Tagged {
        SpokenItem spoken;
        Box box;  ///< points, from the bottom left corner of the sheet
    };

    PageAbout about;
    std::vector<Tagged> items;      ///< in the order in which they are read
    std::vector<std::size_t> tags;  ///< items of the page, as they were tagged
    std::vector<GeoreferencedMap> maps;
    double dpi;              ///< of the places of the maps
    std::string name = {};   ///< its label and bookmark; empty: its number and its title
    bool isDropped = false;  ///< of a page that is not to be in the file
};

/// Describes a page before it is drawn; `tags` are known afterwards.
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
