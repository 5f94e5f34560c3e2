#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "host/raster_data.h"
#include "raster_data/raster_classes.h"
#include "raster_data/raster_picture.h"
#include "raster_data/raster_stretch.h"
#include "raster_data/raster_style.h"
#include "system/progress.h"

class GDALDataset;

namespace host {

/// How a whole raster is shown: its bands, and the colour of each value. The raster, its
/// legend and every part drawn of it share one, so that they agree.
class RasterShading {
public:
    /// Throws std::runtime_error when the style asks for a band that does not exist.
    RasterShading(std::shared_ptr<GDALDataset> whole, RasterStyle style);

    const RasterStyle& Style() const { return m_style; }
    DataDisplayType Type() const;
    int BandCount() const { return static_cast<int>(m_bands.size()); }

    /// The indices of the bands shown, from 0: three for red, green and blue, or one.
    const std::vector<int>& Shown() const { return m_shown; }

    /// When one band is shown, index 0 is that band, whatever its place in the file: it
    /// is the one whose range a legend asks for. Null for an index out of range.
    CRasterBand* Band(int index);

    /// The values of a band shown black and white; nothing when no pixel of it has a
    /// value. Reads the raster the first time. Throws as RangesOf does.
    std::optional<ShadeRange> RangeOf(int band, const Progress& progress = {});

    /// The classes that occur; none for a raster that is not classified, or cannot be
    /// read.
    ClassificationTable& Classes();

    /// The colours of the values in the range of a classified raster's band, from lowest
    /// to highest, where they form a ramp rather than classes; empty for any other
    /// raster, and for one that cannot be read. See RasterClasses::Ramp.
    std::vector<ClassColour> RampColours();

    /// A picture of a dataset that has the raster's bands, all of it or a part. Throws as
    /// ReadRows does.
    PixelImage Draw(GDALDataset& dataset, int width, int height,
                    const Progress& progress);

private:
    /// A band as the legend sees it: its range is the range that is drawn.
    class ShownBand : public CRasterBand {
    public:
        ShownBand(RasterShading& shading, int index)
            : m_shading(shading), m_index(index) {}
        bool ComputeMinMax(double* min, double* max, bool approximate) override;

    private:
        RasterShading& m_shading;
        int m_index;
    };

    std::vector<GDALRasterBand*> ShownOf(GDALDataset& dataset) const;
    Stretch StretchOf(const std::vector<GDALRasterBand*>& bands) const;

    std::shared_ptr<GDALDataset> m_whole;
    RasterStyle m_style;
    std::vector<int> m_shown;
    std::vector<ShownBand> m_bands;
    std::optional<RasterClasses> m_classes;  ///< only for a classified raster
    std::unique_ptr<ClassificationTable> m_listed;
    std::map<int, std::optional<ShadeRange>> m_ranges;
};

}  // namespace host
