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

/// How a whole raster is shown: which of its bands, and which colour each value has. The
/// raster, its legend and every part that is drawn of it share one, so that they agree.
class RasterShading {
public:
    /// Throws std::runtime_error when the style asks for a band that there is not.
    RasterShading(std::shared_ptr<GDALDataset> whole, RasterStyle style);

    const RasterStyle& Style() const { return m_style; }
    DataDisplayType Type() const;
    int BandCount() const { return static_cast<int>(m_bands.size()); }

    /// From 0: three as red, green and blue, or one.
    const std::vector<int>& Shown() const { return m_shown; }

    /// Of a raster whose one band is shown, the first is that band, wherever it stands:
    /// it is the one whose range a legend asks for. Null for an index that is none.
    CRasterBand* Band(int index);

    /// What is black and what white of a band; nothing when no pixel of it has a value.
    /// Reads the raster the first time. Throws as RangesOf does.
    std::optional<ShadeRange> RangeOf(int band, const Progress& progress = {});

    /// Those that occur; none of a raster that is not classified, or cannot be read.
    ClassificationTable& Classes();

    /// The colours of the values in the range of a classified raster's band, from the
    /// lowest to the highest, where they are a ramp rather than classes; none of any
    /// other, or of one that cannot be read. See RasterClasses::Ramp.
    std::vector<ClassColour> RampColours();

    /// A dataset with the raster's bands, all of it or a part, as a picture. Throws as
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
    std::optional<RasterClasses> m_classes;  ///< only of a classified raster
    std::unique_ptr<ClassificationTable> m_listed;
    std::map<int, std::optional<ShadeRange>> m_ranges;
};

}  // namespace host
