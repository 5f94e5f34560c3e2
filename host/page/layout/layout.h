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

/// Lays a page out by itself: the map as large as can be in its own proportions, the
/// title and a panel with the rest where the design has them, in columns of one grid, and
/// a neat line around everything. The legend is set in the columns and the size of type
/// that leave the largest map, names in one line where possible. Type is of a scale that
/// follows from the sheet's shorter side, and of 6 points or more; what has no room in it
/// is left out and told, the legend first.
LaidOutPage LayOut(const PageDesign& design, const MapOnPage& map);

}  // namespace host
