#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "host/device_geometry.h"
#include "page/box.h"
#include "page/page.h"

namespace host {

/// A map on a page, with its own coordinates.
struct GeoreferencedMap {
    std::string name;             ///< the frame's name; UTF-8
    CRect pixels;                 ///< of the page, taken up by its frame
    Box extent;                   ///< the part shown, in map units
    std::string projection = {};  ///< as WKT; empty when unknown
};

/// The maps of a page that have coordinates, in drawing order.
/// @param dpi the page's pixels per inch
std::vector<GeoreferencedMap> GeoreferencedMaps(const Page& page, double dpi);

/// The coordinates of an image's pixels.
struct Georeference {
    /// GDAL's coefficients: x = transform[0] + column * transform[1] + row *
    /// transform[2], and y likewise with the others. For a map from (500000, 9000000), at
    /// 30 map units per pixel, that begins in column 100 and row 50: 497000, 30, 0,
    /// 9001500, 0, -30.
    std::array<double, 6> transform{};
    std::string projection = {};  ///< as WKT; empty when unknown
};

/// The coordinates of a page's pixels, which are those of its only map.
/// @param why set when there are none: "the page has 2 maps"
std::optional<Georeference> GeoreferenceOf(const Page& page, double dpi,
                                           std::string& why);

}  // namespace host
