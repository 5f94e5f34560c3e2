#include "page/document/legend_sources.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "map_surround/legend.h"
#include "page/element_of.h"
#include "page/layout/map_on_page.h"
#include "page/placed_frame.h"

namespace host {
namespace {

std::shared_ptr<GdalRaster> OnMap(const MapLayers& map, const std::string& path) {
    const auto& rasters = map.Rasters();
    const auto found =
        std::find_if(rasters.begin(), rasters.end(),
                     [&](const auto& raster) { return raster->Path() == path; });
    return found == rasters.end() ? nullptr : *found;
}

/// A raster as the first map that has it shows it; null when all the maps leave it off.
std::shared_ptr<GdalRaster> AsShown(const std::string& path, const Page* page,
                                    RasterStore& store) {
    bool isNamed = false;
    for (std::size_t i = 0; page != nullptr && i < page->Items().size(); ++i) {
        const PageItem& item = page->Items()[i];
        const auto* const frame = std::get_if<MapFrame>(&item);
        if (frame == nullptr) {
            continue;
        }
        const std::shared_ptr<MapLayers> map = LayersOf(item);
        if (map != nullptr) {
            if (std::shared_ptr<GdalRaster> raster = OnMap(*map, path)) {
                return raster;
            }
        }
        const std::vector<std::string>& named = frame->rasterPaths;
        isNamed = isNamed || std::find(named.begin(), named.end(), path) != named.end();
    }
    return isNamed ? nullptr : store.Raster(path);
}

struct Sources {
    std::vector<CGISDataSource*> sources;
    std::vector<LegendSource> shown;
};

Sources SourcesOf(const LegendFrame& frame, const Page* page, RasterStore& store) {
    Sources found;
    std::wistringstream names(frame.Names());
    for (const std::string& path : frame.RasterPaths()) {
        std::wstring name;
        std::getline(names, name);
        if (const std::shared_ptr<GdalRaster> raster = AsShown(path, page, store)) {
            found.sources.push_back(raster.get());
            found.shown.push_back({name});
        }
    }
    return found;
}

/// A legend multiplies its font sizes each time it is measured; those of a page are
/// multiplied already.
void Measure(CMapLegend& legend, float sizeFactor) {
    const int size = legend.GetSize();
    const float aspectRatio = legend.GetAspectRatio();
    legend.SetSizeAspect(1.0f);
    legend.ResetAspectRatio();
    legend.SetSizeAspect(sizeFactor);
    if (size != 0) {
        legend.SetSize(size);
        legend.SetAspectRatio(aspectRatio);
    }
}

}  // namespace

void OpenLegend(PageItem& item, const Page* page, RasterStore& store) {
    auto* const frame = FrameAs<LegendFrame>(item);
    auto* const legend = ElementOf<CMapLegend>(item);
    if (frame != nullptr && legend != nullptr) {
        Sources found = SourcesOf(*frame, page, store);
        frame->SetSources(std::move(found.sources), std::move(found.shown));
        Measure(*legend, frame->SizeFactor());
    }
}

std::vector<std::size_t> FitLegendsToMaps(Page& page, RasterStore& store) {
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < page.Items().size(); ++i) {
        PageItem& item = page.Items()[i];
        const auto* const frame = FrameAs<LegendFrame>(std::as_const(item));
        if (frame != nullptr &&
            frame->Sources() != SourcesOf(*frame, &page, store).sources) {
            OpenLegend(item, &page, store);
            changed.push_back(i);
        }
    }
    return changed;
}

}  // namespace host
