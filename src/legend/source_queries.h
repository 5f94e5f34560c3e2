#pragma once

#include "host/common_functions.h"
#include "host/raster_data.h"

namespace map_surround {

/// The source as a raster for the legend to explain; null if it takes no part.
inline CRasterSource* TakingPart(CGISDataSource* source) {
    if (source == nullptr || !source->IsAvailable() ||
        source->GetDataSourceType() != DataSourceRaster) {
        return nullptr;
    }
    return static_cast<CRasterSource*>(source);
}

/// How many classes the table has right now; 0 without a table.
inline int ClassesCount(CClassifyDisplayTable* table) {
    return table == nullptr ? 0 : table->GetClassesCount();
}

}  // namespace map_surround
