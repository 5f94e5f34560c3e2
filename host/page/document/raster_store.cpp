#include "page/document/raster_store.h"

#include <algorithm>

#include "map_surround/legend.h"
#include "page/document/item_type.h"
#include "page/document/json_text.h"
#include "page/document/legend_sources.h"
#include "page/document/page_format.h"
#include "page/document/picture_file.h"
#include "page/element_of.h"
#include "page/layout/fit_to_map.h"
#include "page/map/map_geometry.h"
#include "page/map/shown_map.h"
#include "page/placed_frame.h"
#include "system/fonts.h"
#include "system/same_file.h"
#include "system/utf8.h"

namespace host {
namespace {

constexpr const char* kRastersKey = "rasters";

/// Adds the property, and the page's element, to an error's place.
template <typename Step>
void Placing(const std::string& place, Step step) {
    try {
        step();
    } catch (const PageError& error) {
        throw PageError(place, error.what());
    }
}

/// What a map shows: its extent, extended to the proportions of its frame, or as much as
/// its frame holds at the scale that it keeps.
Box ShownOf(const MapFrame& map, const MapLayers& layers) {
    const CBoundingBox box = map.frame.GetExtent();
    if (!(map.scale > 0.0)) {
        return Widened(layers.Extent(), box.GetWidth() / box.GetHeight());
    }
    const std::optional<Box> shown = ExtentAtScale(
        layers.Projection(), layers.Extent(), map.scale, box.GetWidth(), box.GetHeight());
    if (!shown) {
        throw PageError("",
                        "no scale can be kept: the coordinate system in the middle of "
                        "the map is unknown");
    }
    return *shown;
}

/// A map that is never stretched: where its frame has other proportions, it shows more.
std::shared_ptr<MapPicture> PictureOf(const MapFrame& map, RasterStore& store) {
    std::shared_ptr<MapLayers> layers = store.Map(map.rasterPaths, map.extent, map.style);
    const double ratio = layers->AspectRatio();
    if (!layers->IsPlaced() || !(ratio * kLongestMap >= 1.0 && ratio <= kLongestMap)) {
        return layers;
    }
    const Box shown = ShownOf(map, *layers);
    return shown.Width() == layers->Extent().Width() &&
                   shown.Height() == layers->Extent().Height()
               ? layers
               : store.Map(map.rasterPaths, shown, map.style);
}

std::string WhyNot(const Property& property, const PageItem& item) {
    if (property.kind == PropertyKind::File) {
        return CheckImageFile(std::get<std::string>(property.read(item)));
    }
    if (property.kind == PropertyKind::Font) {
        const auto family = std::get<std::string>(property.read(item));
        if (!IsFontFamilyKnown(family)) {
            return "no font family \"" + family + "\" is installed";
        }
    }
    return {};
}

}  // namespace

std::shared_ptr<GdalRaster> RasterStore::Raster(const std::string& path,
                                                const RasterStyle& style) {
    std::shared_ptr<GdalRaster>& raster = m_rasters[{path, style}];
    if (raster == nullptr) {
        std::string why;
        raster = GdalRaster::Open(path, why, style);
        if (raster == nullptr) {
            m_rasters.erase({path, style});
            throw PageError(path, why);
        }
    }
    return raster;
}

std::vector<std::string> RasterStore::Files() const {
    std::vector<std::string> files;
    for (const auto& [key, raster] : m_rasters) {
        files.push_back(raster->Path());
        files.insert(files.end(), raster->Files().begin(), raster->Files().end());
    }
    return files;
}

bool RasterStore::Has(const std::string& path) const {
    return std::any_of(m_rasters.begin(), m_rasters.end(),
                       [&](const auto& entry) { return entry.first.first == path; });
}

std::shared_ptr<MapLayers> RasterStore::Map(const std::vector<std::string>& paths,
                                            const std::optional<Box>& extent,
                                            const RasterStyle& style) {
    MapKey key{paths, {}, style};
    if (extent) {
        std::get<1>(key) = {extent->left, extent->bottom, extent->right, extent->top};
    }
    std::shared_ptr<MapLayers>& map = m_maps[key];
    if (map == nullptr) {
        std::vector<std::shared_ptr<GdalRaster>> rasters;
        rasters.reserve(paths.size());
        for (const std::string& path : paths) {
            rasters.push_back(Raster(path, style));
        }
        if (!style.bands.empty() &&
            std::all_of(rasters.begin(), rasters.end(),
                        [](const auto& raster) { return raster->BandCount() == 1; })) {
            throw PageError(paths.front(), "has only one band, so none can be chosen");
        }
        map = std::make_shared<MapLayers>(std::move(rasters), extent);
    }
    return map;
}

void OpenRasters(PageItem& item, RasterStore& store) {
    Placing(kRastersKey, [&] {
        if (auto* const map = std::get_if<MapFrame>(&item)) {
            map->picture = map->rasterPaths.empty() ? nullptr : PictureOf(*map, store);
        } else {
            OpenLegend(item, nullptr, store);
        }
    });
}

void OpenRasters(Page& page, RasterStore& store) {
    // Maps first: legends explain what they show.
    for (const bool isMap : {true, false}) {
        for (std::size_t i = 0; i < page.Items().size(); ++i) {
            PageItem& item = page.Items()[i];
            if (std::holds_alternative<MapFrame>(item) != isMap) {
                continue;
            }
            try {
                if (isMap) {
                    OpenRasters(item, store);
                } else {
                    Placing(kRastersKey, [&] { OpenLegend(item, &page, store); });
                }
            } catch (const PageError& error) {
                throw PageError("", PlaceOfElement(i) + "." + error.what());
            }
        }
    }
}

void NameRasters(Page& page, const std::vector<std::string>& paths) {
    for (PageItem& item : page.Items()) {
        const ItemType* const type = TypeOf(item);
        const Property* const rasters =
            type == nullptr ? nullptr : FindProperty(type->properties, kRastersKey);
        if (rasters != nullptr) {
            rasters->write(item, paths);
        }
    }
}

void CheckReplacesNoInput(const std::string& output, const Page& page,
                          const RasterStore& rasters,
                          const std::vector<std::string>& others) {
    std::vector<std::string> inputs = rasters.Files();
    inputs.insert(inputs.end(), others.begin(), others.end());
    for (const PageItem& item : page.Items()) {
        const ItemType* const type = TypeOf(item);
        for (const Property& property :
             type == nullptr ? std::vector<Property>() : type->properties) {
            if (property.kind == PropertyKind::File) {
                inputs.push_back(std::get<std::string>(property.read(item)));
            } else if (property.kind == PropertyKind::Rasters) {  // even if not open
                const auto named =
                    std::get<std::vector<std::string>>(property.read(item));
                inputs.insert(inputs.end(), named.begin(), named.end());
            }
        }
    }
    if (const std::optional<std::string> input = InputReplacedBy(output, inputs)) {
        throw std::runtime_error("would replace " + *input +
                                 ", which the page is drawn from");
    }
}

std::vector<std::string> WhyNotFilesAndFonts(const Page& page) {
    std::vector<std::string> reasons;
    for (std::size_t i = 0; i < page.Items().size(); ++i) {
        const PageItem& item = page.Items()[i];
        const ItemType* const type = TypeOf(item);
        for (const Property& property :
             type == nullptr ? std::vector<Property>() : type->properties) {
            const std::string why = WhyNot(property, item);
            if (!why.empty()) {
                reasons.push_back(PlaceOf(PlaceOfElement(i), property.name) + ": " + why);
            }
        }
    }
    return reasons;
}

void CheckFilesAndFonts(const Page& page) {
    const std::vector<std::string> reasons = WhyNotFilesAndFonts(page);
    if (!reasons.empty()) {
        throw PageError("", reasons.front());
    }
}

}  // namespace host
