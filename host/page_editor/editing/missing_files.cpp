#include "page_editor/editing/missing_files.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>
#include <variant>

#include "page/document/item_type.h"
#include "page/document/legend_sources.h"
#include "page/document/page_error.h"
#include "page/element_of.h"

namespace page_editor {
namespace {

/// A map that cannot be read.
class HatchedMap : public host::MapPicture {
public:
    explicit HatchedMap(std::string why) : m_why(std::move(why)) {}

    host::PixelImage Render(int, int, const host::Progress&) override {
        throw std::runtime_error(m_why);
    }
    const std::string& Why() const { return m_why; }

private:
    std::string m_why;
};

std::vector<std::string> RastersOf(const host::PageItem& item) {
    std::vector<std::string> rasters;
    const host::ItemType* const type = host::TypeOf(item);
    for (const host::Property& property :
         type == nullptr ? std::vector<host::Property>() : type->properties) {
        if (property.kind == host::PropertyKind::Rasters) {
            const auto named = std::get<std::vector<std::string>>(property.read(item));
            rasters.insert(rasters.end(), named.begin(), named.end());
        }
    }
    return rasters;
}

void Hatch(host::PageItem& item, const std::string& why) {
    if (auto* const map = std::get_if<host::MapFrame>(&item)) {
        map->picture = std::make_shared<HatchedMap>(why);
    }
}

}  // namespace

std::set<std::string> NotOpen(const std::vector<host::PageItem>& items,
                              const host::RasterStore& rasters) {
    std::set<std::string> names;
    for (const host::PageItem& item : items) {
        for (const std::string& raster : RastersOf(item)) {
            if (!rasters.Has(raster)) {
                names.insert(raster);
            }
        }
    }
    return names;
}

void OpenOrHatch(host::PageItem& item, host::RasterStore& rasters,
                 const std::set<std::string>& missing) {
    try {
        host::OpenRasters(item, rasters);
    } catch (const host::PageError& error) {
        const std::vector<std::string> names = RastersOf(item);
        const auto isMissing = [&](const std::string& name) {
            return missing.find(name) != missing.end();
        };
        if (std::none_of(names.begin(), names.end(), isMissing)) {
            throw;
        }
        for (const std::string& name : names) {
            if (!isMissing(name)) {
                rasters.Raster(name);  // new ones must exist
            }
        }
        Hatch(item, error.what());
    }
}

std::vector<std::string> OpenOrHatch(host::Page& page, host::RasterStore& rasters) {
    std::vector<std::string> remarks;
    for (const bool isMap : {true, false}) {  // legends explain what the maps show
        for (host::PageItem& item : page.Items()) {
            if (std::holds_alternative<host::MapFrame>(item) != isMap) {
                continue;
            }
            try {
                if (isMap) {
                    host::OpenRasters(item, rasters);
                } else {
                    host::OpenLegend(item, &page, rasters);
                }
            } catch (const host::PageError& error) {
                Hatch(item, error.what());
                remarks.emplace_back(error.what());
            }
        }
    }
    return remarks;
}

std::vector<std::string> RemarksOfHatched(const host::Page& page) {
    std::vector<std::string> remarks;
    for (const host::PageItem& item : page.Items()) {
        if (const auto hatched = host::PictureAs<HatchedMap>(item)) {
            remarks.push_back("the map is hatched: " + hatched->Why());
        }
    }
    return remarks;
}

}  // namespace page_editor
