#pragma once

#include <memory>
#include <string>
#include <vector>

#include "page/map_picture.h"
#include "page/page.h"
#include "page/page_design.h"

namespace host {

/// A page that was laid out, and what could not be as it was asked for, one line each.
struct LaidOutPage {
    Page page;
    std::vector<std::string> remarks;
};

/// Lays a page out by itself: the title in the middle on top, under it the map as large
/// as it gets in its own proportions, and a panel with the rest beside or below it,
/// wherever that leaves the larger map; a neat line around everything. All measures
/// follow from the sheet's shorter side.
/// @param aspectRatio the map's width divided by its height
LaidOutPage LayOut(const PageDesign& design, std::shared_ptr<MapPicture> map,
                   double aspectRatio);

}  // namespace host
