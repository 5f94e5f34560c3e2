#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "element/numbers.h"
#include "host/common_functions.h"
#include "host/raster_data.h"
#include "map_surround/legend.h"

namespace map_surround {

/// The source at an index as a raster for the legend to explain; null if it takes no
/// part.
inline CRasterSource* TakingPart(const std::vector<CGISDataSource*>& sources,
                                 const std::vector<LegendSource>& shown,
                                 std::size_t index) {
    CGISDataSource* const source = sources[index];
    const bool isHidden = index < shown.size() && !shown[index].isShown;
    if (isHidden || source == nullptr || !source->IsAvailable() ||
        source->GetDataSourceType() != DataSourceRaster) {
        return nullptr;
    }
    return static_cast<CRasterSource*>(source);
}

/// The legend's name for the source at an index.
inline std::wstring NameOf(CRasterSource& source, const std::vector<LegendSource>& shown,
                           std::size_t index) {
    return index < shown.size() && !shown[index].name.empty() ? shown[index].name
                                                              : source.GetFileName();
}

/// The colours of the ramp that explains the source at an index; a copy, since the source
/// may set others when it is asked for its values.
inline std::vector<Gdiplus::Color> RampOf(const std::vector<LegendSource>& shown,
                                          std::size_t index) {
    return index < shown.size() ? shown[index].ramp : std::vector<Gdiplus::Color>();
}

/// The number of a band, counted from 1.
inline std::wstring BandNumber(int index) {
    return CommonFun::int2wstring(ToDevice(Length{index} + 1));
}

/// How many classes the table has right now; 0 without a table.
inline int ClassesCount(CClassifyDisplayTable* table) {
    return table == nullptr ? 0 : table->GetClassesCount();
}

}  // namespace map_surround
