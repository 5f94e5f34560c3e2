#include "page/tiles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>

#include "host/common_functions.h"
#include "system/number_text.h"

namespace host {
namespace {

std::wstring WithoutDigits(std::wstring name) {
    const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
    name.erase(std::remove_if(name.begin(), name.end(), isDigit), name.end());
    return name;
}

/// What a legend writes and paints for a source, but for its name.
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

}  // namespace

void JoinTiles(const std::vector<CGISDataSource*>& sources,
               std::vector<LegendSource>& shown) {
    struct Mosaic {
        std::size_t first;
        std::wstring firstName;
        bool isNamed;
    };
    std::map<std::pair<std::wstring, std::wstring>, Mosaic> mosaics;
    for (std::size_t i = 0; i < sources.size(); ++i) {
        auto* const source = dynamic_cast<CRasterSource*>(sources[i]);
        if (source == nullptr || !source->IsAvailable()) {
            continue;
        }
        const std::wstring name = source->GetFileName();
        const auto [found, isFirst] =
            mosaics.try_emplace({WithoutDigits(name), EntriesOf(*source)},
                                Mosaic{i, name, !shown[i].name.empty()});
        if (isFirst || !shown[i].name.empty()) {
            continue;
        }
        const Mosaic& mosaic = found->second;
        shown[i].isShown = false;
        if (!mosaic.isNamed && mosaic.firstName != name) {
            shown[mosaic.first].name = mosaic.firstName + L" \u2013 " + name;
        }
    }
}

}  // namespace host
