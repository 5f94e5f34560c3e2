#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "page/document/page_error.h"
#include "page/map/map_layers.h"
#include "page/page.h"

namespace host {

/// The rasters of pages, each opened once, by path and style, and the maps made of them:
/// items that name the same rasters share them, even after an item was written and read
/// again. So undo reads no raster (see RenderedMaps, which knows maps by their object).
///
/// Must outlive the pages that use its rasters.
class RasterStore {
public:
    /// A raster in a style. Throws PageError that names the path when it cannot be
    /// opened.
    std::shared_ptr<GdalRaster> Raster(const std::string& path,
                                       const RasterStyle& style = {});

    /// The files that all open rasters are read from.
    std::vector<std::string> Files() const;

    /// Whether a raster is open, in any style.
    bool Has(const std::string& path) const;

    /// A map of at least one raster. Throws as Raster does, and where bands are chosen
    /// although every raster has only one.
    std::shared_ptr<MapLayers> Map(const std::vector<std::string>& paths,
                                   const std::optional<Box>& extent,
                                   const RasterStyle& style = {});

private:
    using RasterKey = std::pair<std::string, RasterStyle>;
    using MapKey = std::tuple<std::vector<std::string>, std::vector<double>, RasterStyle>;

    std::map<RasterKey, std::shared_ptr<GdalRaster>> m_rasters;
    std::map<MapKey, std::shared_ptr<MapLayers>> m_maps;
};

/// Opens the files of an item: gives a map its picture, and a legend its sources, by
/// which it is measured; a legend whose size is set keeps size and proportions. Other
/// items are left alone. Throws PageError that names the property, leaving the item
/// unchanged.
void OpenRasters(PageItem& item, RasterStore& store);

/// The same for every item of a page, with legends that explain what its maps show (see
/// OpenLegend); the error names the element.
void OpenRasters(Page& page, RasterStore& store);

/// Records the rasters' paths in every map and legend of a page that was laid out from
/// them.
void NameRasters(Page& page, const std::vector<std::string>& paths);

/// Throws std::runtime_error that names the input, where writing a file would replace one
/// that the page is drawn from, under whatever name: its rasters with all their side
/// files, its pictures, and the others given.
void CheckReplacesNoInput(const std::string& output, const Page& page,
                          const RasterStore& rasters,
                          const std::vector<std::string>& others = {});

/// The properties whose files or fonts cannot be used, one line each: a picture that is
/// missing, not an image or over 32767 pixels along a side, a font family that is not
/// installed.
std::vector<std::string> WhyNotFilesAndFonts(const Page& page);

/// Throws PageError with the first of them.
void CheckFilesAndFonts(const Page& page);

}  // namespace host
