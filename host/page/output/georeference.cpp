#include "page/output/georeference.h"

#include <algorithm>
#include <variant>

#include "page/device_view.h"
#include "page/layout/map_on_page.h"

namespace host {

std::vector<GeoreferencedMap> GeoreferencedMaps(const Page& page, double dpi) {
    const DeviceView view(page.Height(), dpi);
    std::vector<GeoreferencedMap> maps;
    for (const PageItem& item : page.Items()) {
        const std::shared_ptr<MapLayers> layers = LayersOf(item);
        const CRect pixels = view.ToDevice(FrameOf(item).GetExtent());
        if (layers != nullptr && layers->IsPlaced() && pixels.right > pixels.left &&
            pixels.bottom > pixels.top) {
            maps.push_back(
                {NameOf(item), pixels, layers->Extent(), layers->Projection()});
        }
    }
    return maps;
}

std::optional<Georeference> GeoreferenceOf(const Page& page, double dpi,
                                           std::string& why) {
    const auto count = std::count_if(
        page.Items().begin(), page.Items().end(),
        [](const PageItem& item) { return std::holds_alternative<MapFrame>(item); });
    if (count != 1) {
        why = "the page has " + (count == 0 ? "no map" : std::to_string(count) + " maps");
        return std::nullopt;
    }
    const std::vector<GeoreferencedMap> maps = GeoreferencedMaps(page, dpi);
    if (maps.empty()) {
        why = "the page's map has no coordinates";
        return std::nullopt;
    }
    const GeoreferencedMap& map = maps.front();
    const double across = map.extent.Width() / (map.pixels.right - map.pixels.left);
    const double down = -map.extent.Height() / (map.pixels.bottom - map.pixels.top);
    return Georeference{{map.extent.left - map.pixels.left * across, across, 0.0,
                         map.extent.top - map.pixels.top * down, 0.0, down},
                        map.projection};
}

}  // namespace host
