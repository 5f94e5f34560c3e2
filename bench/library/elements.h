#pragma once

#include <gdiplus.h>

#include <memory>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/map_surround.h"

/// The elements that are measured, as a host would set them up. FramedPage units are
/// pixels at 96 dpi, so that a scale of 1 is 96 dpi.
namespace bench {

struct Named {
    std::string name;
    std::unique_ptr<CMapSurround> element;
};

std::unique_ptr<CMapSurround> NewTitle();
std::unique_ptr<CMapSurround> NewPicture();

/// Every style once. Divisions are whole pixels at the scale.
std::vector<Named> NewNorthArrows();
std::vector<Named> NewScaleBars(double scale);

/// All of the above, and legends of each kind of source.
std::vector<Named> NewElements(double scale);

/// A legend together with the sources that it explains.
class LegendOfRasters : public CMapLegend {
public:
    explicit LegendOfRasters(std::vector<fakes::Raster> rasters);

private:
    std::vector<fakes::Raster> m_rasters;
};

fakes::Raster RgbRaster();
fakes::Raster GreyRaster();
fakes::Raster ClassifiedRaster(int classes);

/// Frames without an element: one with border, shadow and background, one with a border.
CFrameBase DecoratedFrame();
CFrameBase DashedFrame();

/// How a host draws an element: slanted edges smoothed, lines along the axes not.
Gdiplus::SmoothingMode SmoothingOf(const CMapSurround& element);

}  // namespace bench
