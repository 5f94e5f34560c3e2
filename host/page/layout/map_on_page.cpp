#include "page/layout/map_on_page.h"

#include "page/element_of.h"

namespace host {

MapOnPage DescribeMap(const std::shared_ptr<MapLayers>& map) {
    MapOnPage onPage;
    onPage.picture = map;
    onPage.aspectRatio = map->AspectRatio();
    if (map->IsPlaced()) {
        onPage.extent = map->Extent();
        onPage.projection = map->Projection();
    }
    for (const std::shared_ptr<GdalRaster>& raster : map->Rasters()) {
        onPage.sources.push_back(raster.get());
    }
    return onPage;
}

std::shared_ptr<MapLayers> LayersOf(const PageItem& item) {
    return PictureAs<MapLayers>(item);
}

std::vector<std::string> RemarksOfMaps(const Page& page) {
    std::vector<std::string> remarks;
    for (const PageItem& item : page.Items()) {
        if (const std::shared_ptr<MapLayers> map = LayersOf(item)) {
            const std::vector<std::string> ofMap = map->Remarks();
            remarks.insert(remarks.end(), ofMap.begin(), ofMap.end());
        }
    }
    return remarks;
}

}  // namespace host
