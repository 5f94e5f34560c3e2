#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "page/box.h"
#include "page/map/map_picture.h"
#include "raster_data/gdal_raster.h"

namespace host {

/// A map of rasters that lie on each other as in a list of layers: the first on top.
///
/// The first raster is always on the map and sets its coordinate system. The others are
/// placed by their own georeference; one that cannot be (no georeference, or another
/// coordinate system) is left out. The map spans all that are placed, north up, east to
/// the right, those that are turned by their nearest pixels; what would stand out from
/// the first by no more than a hundredth of it is cut off, for grids of one area seldom
/// end on the same line. A first raster without georeference is shown as it is stored,
/// and alone.
class MapLayers : public MapPicture {
public:
    /// @param rasters at least one, none null
    /// @param extent the part of the map to show; all of it when there is none, and when
    /// the map is shown as it is stored. What of it no raster covers stays empty.
    explicit MapLayers(std::vector<std::shared_ptr<GdalRaster>> rasters,
                       const std::optional<Box>& extent = std::nullopt);

    PixelImage Render(int width, int height, const Progress& progress) override;

    /// What it was made of, for one that makes it again of its files: also the rasters
    /// that are left out.
    const std::vector<std::shared_ptr<GdalRaster>>& Given() const { return m_given; }
    const std::optional<Box>& Asked() const { return m_asked; }

    /// What the map spans: pixels and lines for a raster without georeference.
    const Box& Extent() const { return m_extent; }

    /// The coordinate system as WKT; empty when the map is shown as it is stored.
    const std::string& Projection() const { return m_projection; }

    /// Whether the extent is in map coordinates.
    bool IsPlaced() const { return m_isPlaced; }

    /// Remembers of a picture of the map that was rendered elsewhere whether it is blank.
    void Note(const PixelImage& rendered);

    /// Width divided by height.
    double AspectRatio() const { return m_extent.Width() / m_extent.Height(); }

    /// Those on the map, the first on top, whether they reach into its extent or not.
    const std::vector<std::shared_ptr<GdalRaster>>& Rasters() const { return m_onMap; }

    /// What is not as one would expect, one line each: rasters that are left off the map,
    /// an extent that they all lie beside, and, once it has been rendered, a map on which
    /// no pixel has a value.
    std::vector<std::string> Remarks() const;

private:
    struct Layer {
        std::shared_ptr<GdalRaster> raster;
        Box extent;
        bool mirrored = false;    // stored from east to west
        bool upsideDown = false;  // stored from south to north
    };

    static Layer AsStored(std::shared_ptr<GdalRaster> raster);
    static Layer Placed(std::shared_ptr<GdalRaster> raster);
    void CutTo(const Box& extent);
    bool Fills(const Box& extent) const;
    PixelImage RenderLayers(int width, int height, const Progress& progress) const;
    static PixelImage RenderLayer(const Layer& layer, int width, int height,
                                  const Progress& progress);

    std::vector<std::shared_ptr<GdalRaster>> m_given;
    std::optional<Box> m_asked;
    std::vector<std::shared_ptr<GdalRaster>> m_onMap;
    std::vector<Layer> m_layers;  // the first on top; none that lies beside the extent
    std::vector<std::string> m_remarks;
    bool m_isBlank = false;  // as it was rendered last
    Box m_extent;
    bool m_isPlaced = false;
    std::string m_projection;
};

}  // namespace host
