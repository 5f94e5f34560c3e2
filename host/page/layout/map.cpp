#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "page/layout/steps.h"
#include "page/map/map_geometry.h"

namespace host {

MapShape ShapeOf(const MapDesign& design, const MapOnPage& map) {
    MapShape shape;
    if (!std::isnan(map.aspectRatio)) {
        shape.aspectRatio = std::clamp(map.aspectRatio, 1.0 / kLongestMap, kLongestMap);
    }
    if (!design.scale) {
        return shape;
    }
    // The scale is that of the whole map drawn one page unit wide, divided by its width
    // in page units.
    const std::optional<double> oneUnitWide =
        map.extent ? ScaleOf({map.projection, *map.extent, 1.0}) : std::nullopt;
    if (!oneUnitWide) {
        throw std::runtime_error(
            "the map cannot be drawn at a scale: no coordinate system is known for its "
            "middle");
    }
    const double width = *oneUnitWide / *design.scale;
    shape.atScale = PaperSize{width, width / shape.aspectRatio};
    return shape;
}

Box FitMap(const Box& room, const MapShape& shape) {
    double width = std::min(room.Width(), room.Height() * shape.aspectRatio);
    double height = std::min(room.Height(), room.Width() / shape.aspectRatio);
    if (shape.atScale) {
        width = std::min(room.Width(), shape.atScale->width);
        height = std::min(room.Height(), shape.atScale->height);
    }
    const double left = room.left + (room.Width() - width) / 2.0;
    const double bottom = room.bottom + (room.Height() - height) / 2.0;
    return {left, bottom, left + width, bottom + height};
}

ShownMap Shown(const MapDesign& design, const MapOnPage& map, const Box& frame) {
    ShownMap shown{map.projection, map.extent.value_or(Box()), frame.Width()};
    if (design.scale) {
        const std::optional<Box> extent = ExtentAtScale(
            shown.projection, shown.extent, *design.scale, frame.Width(), frame.Height());
        shown.extent = extent.value_or(shown.extent);
    }
    return shown;
}

MapFrame PlaceMap(const Box& extent, std::shared_ptr<MapPicture> picture,
                  const Measures& measures) {
    MapFrame map;
    map.name = "map";
    map.picture = std::move(picture);
    map.frame.SetExtent(BoundingBoxOf(extent));
    map.frame.DrawBorder = true;
    map.frame.BorderColor = Gdiplus::Color(kLineColor);
    map.frame.BorderWidth = static_cast<float>(measures.borderWidth);
    return map;
}

}  // namespace host
