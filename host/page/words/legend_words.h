#pragma once

#include <string>
#include <vector>

#include "host/raster_data.h"
#include "map_surround/legend.h"
#include "page/language.h"
#include "page/placed_frame.h"

namespace host {

/// A raster that a legend explains, and its name there.
struct ExplainedRaster {
    CRasterSource* raster;
    std::wstring name;
    std::vector<Gdiplus::Color> ramp;  ///< see LegendSource
};

/// The rasters that a legend explains, in order, without those that it leaves out.
std::vector<ExplainedRaster> ExplainedBy(const CMapLegend& legend,
                                         const std::vector<CGISDataSource*>& sources);

/// A legend in words, with the colours of its swatches by name: "Legend: land: water,
/// blue; forest, dark green".
std::wstring LegendWords(const LegendFrame& frame, const CMapLegend& legend,
                         const SpokenWords& words);

}  // namespace host
