#pragma once

#include "host/common_functions.h"
#include "host/raster_data.h"

namespace map_surround {

/// The source as the raster that the legend explains; null when it takes no part.
inline CRasterSource* TakingPart(CGISDataSource* source) {
    if (source == nullptr || !source->IsAvailable() ||
        source->GetDataSourceType() != DataSourceRaster) {
        return nullptr;
    }
    return static_cast<CRasterSource*>(source);
}

/// How many classes the table has at this moment; none when there is no table.
inline int ClassesCount(CClassifyDisplayTable* table) {
    return table == nullptr ? 0 : table->GetClassesCount();
}

}  // namespace map_surround
