#include "page/document/map_on_page.h"

namespace host {

MapOnPage DescribeMap(const std::shared_ptr<MapLayers>& map,
                      const std::vector<std::string>& paths, RasterStore& rasters) {
    MapOnPage onPage;
    onPage.picture = map;
    onPage.aspectRatio = map->AspectRatio();
    if (map->IsPlaced()) {
        onPage.extent = map->Extent();
        onPage.projection = map->Projection();
    }
    for (const std::string& path : paths) {
        onPage.sources.push_back(rasters.Raster(path).get());
    }
    return onPage;
}

std::shared_ptr<MapLayers> LayersOf(const PageItem& item) {
    const auto* const map = std::get_if<MapFrame>(&item);
    return map == nullptr ? nullptr : std::dynamic_pointer_cast<MapLayers>(map->picture);
}

std::vector<std::string> RemarksOfLeftOut(const Page& page) {
    std::vector<std::string> remarks;
    for (const PageItem& item : page.Items()) {
        if (const std::shared_ptr<MapLayers> map = LayersOf(item)) {
            for (const LeftOutRaster& raster : map->LeftOut()) {
                remarks.push_back(raster.raster->Path() +
                                  ": left off the map: " + raster.why);
            }
        }
    }
    return remarks;
}

}  // namespace host
