#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "page/box.h"
#include "page/map/map_picture.h"
#include "raster_data/gdal_raster.h"

namespace host {

/// A map of rasters that lie on one another as in a list of layers: the first on top.
///
/// The first raster is always on the map and sets its coordinate system. The others are
/// placed by their own georeference; one that cannot be (no georeference, or another
/// coordinate system) is left out. The map spans all that are placed, north up, east to
/// the right, with rotated ones resampled by nearest neighbour; what would stand out from
/// the first by no more than a hundredth of it is cut off, since grids of one area seldom
/// end on the same line. A first raster without a georeference is shown as it is stored,
/// and alone.
class MapLayers : public MapPicture {
public:
    /// @param rasters at least one, none null
    /// @param extent the part of the map to show; all of it when not given, and when the
    /// map is shown as it is stored. Parts that no raster covers stay empty.
    explicit MapLayers(std::vector<std::shared_ptr<GdalRaster>> rasters,
                       const std::optional<Box>& extent = std::nullopt);

    PixelImage Render(int width, int height, const Progress& progress) override;

    /// The rasters that it was made from, for making it again from their files: including
    /// those that are left out.
    const std::vector<std::shared_ptr<GdalRaster>>& Given() const { return m_given; }
    const std::optional<Box>& Asked() const { return m_asked; }

    /// The extent that the map shows: pixels and lines for a raster without a
    /// georeference.
    const Box& Extent() const { return m_extent; }

    /// The coordinate system as WKT; empty when the map is shown as it is stored.
    const std::string& Projection() const { return m_projection; }

    /// Whether the extent is in map coordinates.
    bool IsPlaced() const { return m_isPlaced; }

    /// Records whether a picture of the map rendered elsewhere is blank.
    void Note(const PixelImage& rendered);

    /// Width divided by height.
    double AspectRatio() const { return m_extent.Width() / m_extent.Height(); }

    /// The rasters on the map, the first on top, whether they reach into its extent or
    /// not.
    const std::vector<std::shared_ptr<GdalRaster>>& Rasters() const { return m_onMap; }

    /// What one would not expect, one line each: rasters left off the map, an extent that
    /// misses them all, and, after rendering, a map on which no pixel has a value.
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
    std::vector<Layer> m_layers;  // the first on top; only those within the extent
    std::vector<std::string> m_remarks;
    bool m_isBlank = false;  // as last rendered
    Box m_extent;
    bool m_isPlaced = false;
    std::string m_projection;
};

}  // namespace host
