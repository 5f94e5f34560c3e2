#include <algorithm>
#include <cmath>
#include <utility>

#include "page/layout/steps.h"
#include "page/map/map_geometry.h"

namespace host {

Box FitMap(const Box& room, double aspectRatio) {
    const double ratio = std::isnan(aspectRatio)
                             ? 1.0
                             : std::clamp(aspectRatio, 1.0 / kLongestMap, kLongestMap);
    const double width = std::min(room.Width(), room.Height() * ratio);
    const double height = std::min(room.Height(), room.Width() / ratio);
    const double left = room.left + (room.Width() - width) / 2.0;
    const double bottom = room.bottom + (room.Height() - height) / 2.0;
    return {left, bottom, left + width, bottom + height};
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
