#include "page/map/map_layers.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "page/map/layered_pixels.h"
#include "page/map/raster_place.h"

namespace host {
namespace {

/// A raster resampled to rows that run along the x axis; unchanged where it has no
/// georeference, or where `why` says that it cannot be.
std::shared_ptr<GdalRaster> Straight(std::shared_ptr<GdalRaster> raster,
                                     std::string& why) {
    if (!IsGeoreferenced(*raster) || !IsTurned(*raster)) {
        return raster;
    }
    try {
        return raster->NorthUp();
    } catch (const std::runtime_error& error) {
        why = std::string("is rotated: ") + error.what();
        return raster;
    }
}

/// A map edge: where all rasters end, or where the first ends if that is nearly the same.
double MapEdge(double ofAll, double ofFirst, double firstLength) {
    return std::fabs(ofAll - ofFirst) <= firstLength / 100.0 ? ofFirst : ofAll;
}

Box Union(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.bottom, b.bottom),
            std::max(a.right, b.right), std::max(a.top, b.top)};
}

}  // namespace

MapLayers::Layer MapLayers::AsStored(std::shared_ptr<GdalRaster> raster) {
    double pixelWidth = 1.0;
    double pixelHeight = 1.0;
    if (IsGeoreferenced(*raster)) {
        const std::array<double, 6>& transform = raster->GeoTransform();
        pixelWidth = std::hypot(transform[1], transform[4]);
        pixelHeight = std::hypot(transform[2], transform[5]);
    }
    Layer layer;
    layer.extent = {0.0, 0.0, raster->Width() * pixelWidth,
                    raster->Height() * pixelHeight};
    layer.raster = std::move(raster);
    return layer;
}

MapLayers::Layer MapLayers::Placed(std::shared_ptr<GdalRaster> raster) {
    const std::array<double, 6>& transform = raster->GeoTransform();
    Layer layer;
    layer.extent = ExtentOf(*raster);
    layer.mirrored = transform[1] < 0.0;
    layer.upsideDown = transform[5] > 0.0;
    layer.raster = std::move(raster);
    return layer;
}

MapLayers::MapLayers(std::vector<std::shared_ptr<GdalRaster>> rasters,
                     const std::optional<Box>& extent)
    : m_given(std::move(rasters)), m_asked(extent) {
    if (m_given.empty()) {
        throw std::invalid_argument("a map needs a raster");
    }
    std::string whyTurned;
    const std::shared_ptr<GdalRaster> first = Straight(m_given.front(), whyTurned);
    m_isPlaced = WhyNotPlaced(*first, *first).empty();
    m_layers.push_back(m_isPlaced ? Placed(first) : AsStored(first));
    m_onMap.push_back(m_given.front());
    if (m_isPlaced) {
        m_projection = first->Projection();
    }
    if (!whyTurned.empty()) {
        m_remarks.push_back(first->Path() + ": shown as it is stored, since it " +
                            whyTurned);
    }
    Box all = m_layers.front().extent;
    for (std::size_t i = 1; i < m_given.size(); ++i) {
        std::string why;
        std::shared_ptr<GdalRaster> raster = Straight(m_given[i], why);
        if (why.empty()) {
            why = WhyNotPlaced(*raster, *first);
        }
        if (why.empty()) {
            m_layers.push_back(Placed(std::move(raster)));
            m_onMap.push_back(m_given[i]);
            all = Union(all, m_layers.back().extent);
        } else {
            m_remarks.push_back(m_given[i]->Path() + ": left off the map: " + why);
        }
    }
    const Box& own = m_layers.front().extent;
    m_extent = {MapEdge(all.left, own.left, own.Width()),
                MapEdge(all.bottom, own.bottom, own.Height()),
                MapEdge(all.right, own.right, own.Width()),
                MapEdge(all.top, own.top, own.Height())};
    if (extent && m_isPlaced) {
        CutTo(*extent);
    }
}

std::vector<std::string> MapLayers::Remarks() const {
    std::vector<std::string> remarks = m_remarks;
    if (m_asked && !m_isPlaced) {
        remarks.push_back(m_onMap.front()->Path() +
                          ": the map's extent is ignored without a georeference, and all "
                          "of it is shown");
    }
    if (m_layers.empty()) {
        remarks.push_back(m_onMap.front()->Path() + ": the map's extent lies beside " +
                          (m_onMap.size() == 1 ? "it" : "it and the other rasters") +
                          ", so that the map is blank");
    } else if (m_isBlank) {
        remarks.push_back(
            m_onMap.front()->Path() + ": " +
            (m_onMap.size() == 1 ? "it has" : "it and the other rasters have") +
            " no data in the map's extent, so that the map is blank");
    }
    return remarks;
}

/// Keeps only the pixels of each raster that show, so that no others are read.
void MapLayers::CutTo(const Box& extent) {
    m_extent = extent;
    std::vector<Layer> whole;
    whole.swap(m_layers);
    for (Layer& layer : whole) {
        const GdalRaster& raster = *layer.raster;
        const GdalRaster::Window window = WindowIn(extent, raster);
        if (window.width > 0 && window.height > 0) {
            const bool isWhole =
                window.width == raster.Width() && window.height == raster.Height();
            m_layers.push_back(isWhole ? std::move(layer) : Placed(raster.Part(window)));
        }
    }
}

PixelImage MapLayers::RenderLayer(const Layer& layer, int width, int height,
                                  const Progress& progress) {
    PixelImage image;
    try {
        image = layer.raster->Render(width, height, progress);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(layer.raster->Path() + ": " + error.what());
    }
    if (layer.mirrored) {
        MirrorRows(image);
    }
    if (layer.upsideDown) {
        TurnUpsideDown(image);
    }
    return image;
}

bool MapLayers::Fills(const Box& extent) const {
    return extent.left == m_extent.left && extent.bottom == m_extent.bottom &&
           extent.right == m_extent.right && extent.top == m_extent.top;
}

PixelImage MapLayers::Render(int width, int height, const Progress& progress) {
    PixelImage map = RenderLayers(width, height, progress);
    Note(map);
    return map;
}

void MapLayers::Note(const PixelImage& rendered) { m_isBlank = IsBlank(rendered); }

PixelImage MapLayers::RenderLayers(int width, int height,
                                   const Progress& progress) const {
    if (m_layers.size() == 1 && Fills(m_layers.front().extent)) {
        return RenderLayer(m_layers.front(), width, height, progress);
    }
    PixelImage map;
    map.width = width;
    map.height = height;
    map.bgra.assign(
        4 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0);
    double done = 0.0;
    const double share = 1.0 / static_cast<double>(m_layers.size());
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer) {
        const PixelSpan columns = PixelsBetween(
            (layer->extent.left - m_extent.left) / m_extent.Width(),
            (layer->extent.right - m_extent.left) / m_extent.Width(), width);
        const PixelSpan rows = PixelsBetween(
            (m_extent.top - layer->extent.top) / m_extent.Height(),
            (m_extent.top - layer->extent.bottom) / m_extent.Height(), height);
        const auto shareOfProgress = [&](double part) {
            return !progress || progress(done + part * share);
        };
        LayOver(RenderLayer(*layer, columns.size, rows.size, shareOfProgress),
                columns.first, rows.first, map);
        done += share;
    }
    return map;
}

}  // namespace host
