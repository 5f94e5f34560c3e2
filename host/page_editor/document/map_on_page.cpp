#include "page_editor/document/map_on_page.h"

namespace page_editor {

host::MapOnPage DescribeMap(const std::shared_ptr<host::MapLayers>& map,
                            const std::vector<std::string>& paths,
                            host::RasterStore& rasters) {
    host::MapOnPage onPage;
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

std::shared_ptr<host::MapLayers> SharedLayersOf(const host::PageItem& item) {
    const auto* const map = std::get_if<host::MapFrame>(&item);
    return map == nullptr ? nullptr
                          : std::dynamic_pointer_cast<host::MapLayers>(map->picture);
}

const host::MapLayers* LayersOf(const host::PageItem& item) {
    return SharedLayersOf(item).get();
}

}  // namespace page_editor
