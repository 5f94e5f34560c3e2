#include "page/tiles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "host/common_functions.h"
#include "page/map/raster_place.h"
#include "raster_data/gdal_raster.h"
#include "system/number_text.h"

namespace host {
namespace {

std::wstring WithoutDigits(std::wstring name) {
    const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
    name.erase(std::remove_if(name.begin(), name.end(), isDigit), name.end());
    return name;
}

/// What a legend writes and paints for a source, except for its name.
std::wstring EntriesOf(CRasterSource& source) {
    std::wstring entries = std::to_wstring(source.GetDisplayType());
    if (source.GetDisplayType() == DisplayRGB) {
        for (const int band : {source.GetRedBandNum(), source.GetGreenBandNum(),
                               source.GetBlueBandNum()}) {
            entries += L' ' + std::to_wstring(band);
        }
    } else if (source.GetDisplayType() == DisplayGray) {
        double lowest = 0.0;
        double highest = 0.0;
        if (CRasterBand* const band = source.GetRasterBand(0)) {
            band->ComputeMinMax(&lowest, &highest, true);
        }
        for (const double value : {lowest, highest}) {
            const std::string text = NumberText(value);
            entries += L' ' + std::wstring(text.begin(), text.end());
        }
    } else if (CClassifyDisplayTable* const table = source.GetClassifyDisplayTable()) {
        for (int i = 0; i < table->GetClassesCount(); ++i) {
            if (CClassifyDisplayItem* const item = table->GetClassifyItem(i)) {
                std::array<unsigned char, 4> colour = {};
                item->GetColor(colour[0], colour[1], colour[2], colour[3]);
                entries += L'\n' + item->GetLable();
                for (std::size_t part = 0; part < 3; ++part) {
                    entries += L' ' + std::to_wstring(colour[part]);
                }
            }
        }
    }
    return entries;
}

/// Whether two pixels are equally long, to half a pixel over a number of them.
bool IsOneSize(double a, double b, int count) {
    return std::abs(a - b) * count <= std::abs(a) / 2.0;
}

/// Whether two spans share no more than an edge, as satellite tiles do.
bool IsEdge(double low, double high, double otherLow, double otherHigh) {
    constexpr double kEdge = 0.1;
    const double common = std::min(high, otherHigh) - std::max(low, otherLow);
    return common <= kEdge * std::min(high - low, otherHigh - otherLow);
}

bool AreSideBySide(const GdalRaster& a, const GdalRaster& b) {
    if (!IsGeoreferenced(a) || !IsGeoreferenced(b) || IsTurned(a) || IsTurned(b) ||
        a.Projection() != b.Projection() ||
        !IsOneSize(a.GeoTransform()[1], b.GeoTransform()[1], a.Width()) ||
        !IsOneSize(a.GeoTransform()[5], b.GeoTransform()[5], a.Height())) {
        return false;
    }
    const Box one = ExtentOf(a);
    const Box other = ExtentOf(b);
    return IsEdge(one.left, one.right, other.left, other.right) ||
           IsEdge(one.bottom, one.top, other.bottom, other.top);
}

struct Mosaic {
    std::size_t first;
    std::wstring firstName;
    bool isNamed;
    std::vector<const GdalRaster*> tiles;

    /// Whether a raster is one of its tiles, or may be.
    bool Has(const GdalRaster& raster) const {
        const bool isTile = std::any_of(
            tiles.begin(), tiles.end(),
            [&raster](const GdalRaster* tile) { return tile->Path() == raster.Path(); });
        return isTile ||
               std::all_of(tiles.begin(), tiles.end(), [&raster](const GdalRaster* tile) {
                   return AreSideBySide(*tile, raster);
               });
    }
};

}  // namespace

void JoinTiles(const std::vector<CGISDataSource*>& sources,
               std::vector<LegendSource>& shown) {
    using Likeness = std::tuple<std::wstring, std::wstring, RasterStyle>;
    std::map<Likeness, std::vector<Mosaic>> alike;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        auto* const raster = dynamic_cast<GdalRaster*>(sources[i]);
        if (raster == nullptr || !raster->IsAvailable()) {
            continue;
        }
        const std::wstring name = raster->GetFileName();
        std::vector<Mosaic>& mosaics =
            alike[{WithoutDigits(name), EntriesOf(*raster), raster->Style()}];
        const auto found =
            std::find_if(mosaics.begin(), mosaics.end(),
                         [raster](const Mosaic& mosaic) { return mosaic.Has(*raster); });
        if (found == mosaics.end()) {
            mosaics.push_back({i, name, !shown[i].name.empty(), {raster}});
            continue;
        }
        found->tiles.push_back(raster);
        if (!shown[i].name.empty()) {
            continue;
        }
        shown[i].isShown = false;
        if (!found->isNamed && found->firstName != name) {
            shown[found->first].name = found->firstName + L" \u2013 " + name;
        }
    }
}

}  // namespace host
