#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "page/box.h"
#include "page/layout/page_design.h"
#include "page/map/map_picture.h"
#include "page/page.h"

namespace host {

/// The map that a page is laid out around, and what its furniture says of it.
struct MapOnPage {
    std::shared_ptr<MapPicture> picture;
    double aspectRatio = 1.0;  ///< width divided by height
    /// In map coordinates; without an extent nothing on the page can tell a distance.
    std::optional<Box> extent = std::nullopt;
    std::string projection = {};  ///< as WKT, empty when unknown
    /// What the legend explains, in its order; they must outlive the page.
    std::vector<CGISDataSource*> sources = {};
};

/// A page that was laid out, and what could not be as it was asked for, one line each.
struct LaidOutPage {
    Page page;
    std::vector<std::string> remarks;
};

/// Lays a page out by itself: the title in the middle on top, under it the map as large
/// as it gets in its own proportions, and a panel with the rest beside or below it,
/// wherever that leaves the larger map; a neat line around everything. All measures
/// follow from the sheet's shorter side.
LaidOutPage LayOut(const PageDesign& design, const MapOnPage& map);

}  // namespace host
