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

/// The map that a page is laid out around, and what the page says about it.
struct MapOnPage {
    std::shared_ptr<MapPicture> picture;
    double aspectRatio = 1.0;  ///< width divided by height
    /// In map coordinates; without an extent nothing on the page can give a distance.
    std::optional<Box> extent = std::nullopt;
    std::string projection = {};  ///< as WKT, empty when unknown
    /// What the legend explains, in order; they must outlive the page.
    std::vector<CGISDataSource*> sources = {};
};

/// A laid-out page, and what could not be done as asked, one line each.
struct LaidOutPage {
    Page page;
    std::vector<std::string> remarks;
};

/// Lays out an automatic page: the map as large as possible in its own proportions, the
/// title and a panel with the rest where the design puts them, in columns of one grid,
/// and a neat line around everything. The legend is set in the columns and type size that
/// leave the largest map, with names on one line where possible. Type comes from a scale
/// based on the sheet's shorter side, and is never below 6 points; what does not fit in
/// it is left out, the legend first, and remarks say so.
LaidOutPage LayOut(const PageDesign& design, const MapOnPage& map);

}  // namespace host
