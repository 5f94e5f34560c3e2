#include "page/map/map_layers.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace host {
namespace {

bool IsTurned(const std::array<double, 6>& transform) {
    return transform[2] != 0.0 || transform[4] != 0.0;
}

/// Whether map coordinates follow from the transform at all.
bool IsUsable(const std::array<double, 6>& transform) {
    return std::all_of(transform.begin(), transform.end(),
                       [](double value) { return std::isfinite(value); }) &&
           transform[1] * transform[5] - transform[2] * transform[4] != 0.0;
}

using SpatialReference = std::unique_ptr<OGRSpatialReference>;

/// Coordinates in the usual order of maps: east before north. Null for no valid WKT.
SpatialReference SystemOf(const GdalRaster& raster) {
    auto system = std::make_unique<OGRSpatialReference>();
    system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system->importFromWkt(raster.Projection().c_str()) == OGRERR_NONE
               ? std::move(system)
               : nullptr;
}

/// Whether the corners of a raster keep their coordinates in another system, to half a
/// pixel. So systems that say the same in different words count as one.
bool KeepsItsPlace(const Box& extent, double pixelSize, const OGRSpatialReference& own,
                   const OGRSpatialReference& other) {
    const std::unique_ptr<OGRCoordinateTransformation> transformation(
        OGRCreateCoordinateTransformation(&own, &other));
    if (transformation == nullptr) {
        return false;
    }
    const std::array<double, 4> fromX = {extent.left, extent.right, extent.left,
                                         extent.right};
    const std::array<double, 4> fromY = {extent.bottom, extent.bottom, extent.top,
                                         extent.top};
    std::array<double, 4> x = fromX;
    std::array<double, 4> y = fromY;
    if (transformation->Transform(static_cast<int>(x.size()), x.data(), y.data()) == 0) {
        return false;
    }
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (!(std::hypot(x[i] - fromX[i], y[i] - fromY[i]) <= pixelSize / 2.0)) {
            return false;
        }
    }
    return true;
}

Box ExtentOf(const GdalRaster& raster) {
    const std::array<double, 6>& transform = raster.GeoTransform();
    const double x = transform[0] + raster.Width() * transform[1];
    const double y = transform[3] + raster.Height() * transform[5];
    return {std::min(transform[0], x), std::min(transform[3], y),
            std::max(transform[0], x), std::max(transform[3], y)};
}

/// Unknown is the same as unknown.
bool IsSameSystem(const GdalRaster& raster, const GdalRaster& first) {
    if (raster.Projection() == first.Projection()) {
        return true;
    }
    if (raster.Projection().empty() || first.Projection().empty()) {
        return false;
    }
    const SpatialReference own = SystemOf(raster);
    const SpatialReference other = SystemOf(first);
    return own != nullptr && other != nullptr &&
           KeepsItsPlace(ExtentOf(raster), std::fabs(raster.GeoTransform()[1]), *own,
                         *other);
}

/// Why a raster cannot be laid under or over the first; empty when it can.
std::string WhyNotPlaced(const GdalRaster& raster, const GdalRaster& first) {
    if (!first.HasGeoTransform() || !IsUsable(first.GeoTransform())) {
        return "the first raster has no georeference to place it by";
    }
    if (IsTurned(first.GeoTransform())) {
        return "the first raster is turned against north";
    }
    if (!raster.HasGeoTransform() || !IsUsable(raster.GeoTransform())) {
        return "it has no georeference";
    }
    if (IsTurned(raster.GeoTransform())) {
        return "it is turned against north";
    }
    if (!IsSameSystem(raster, first)) {
        return "its coordinate system is not that of the first raster";
    }
    return {};
}

/// A map edge where all rasters end, or where the first ends when that is nearly there.
double MapEdge(double ofAll, double ofFirst, double firstLength) {
    return std::fabs(ofAll - ofFirst) <= firstLength / 100.0 ? ofFirst : ofAll;
}

Box Union(const Box& a, const Box& b) {
    return {std::min(a.left, b.left), std::min(a.bottom, b.bottom),
            std::max(a.right, b.right), std::max(a.top, b.top)};
}

std::size_t OffsetOf(const PixelImage& image, int row, int column) {
    return 4 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(image.width) +
                static_cast<std::size_t>(column));
}

const std::uint8_t* PixelOf(const PixelImage& image, int row, int column) {
    return image.bgra.data() + OffsetOf(image, row, column);
}

std::uint8_t* PixelOf(PixelImage& image, int row, int column) {
    return image.bgra.data() + OffsetOf(image, row, column);
}

void MirrorRows(PixelImage& image) {
    for (int row = 0; row < image.height; ++row) {
        for (int left = 0, right = image.width - 1; left < right; ++left, --right) {
            std::uint8_t* const pixel = PixelOf(image, row, left);
            std::swap_ranges(pixel, pixel + 4, PixelOf(image, row, right));
        }
    }
}

void TurnUpsideDown(PixelImage& image) {
    for (int top = 0, bottom = image.height - 1; top < bottom; ++top, --bottom) {
        std::swap_ranges(PixelOf(image, top, 0), PixelOf(image, top, image.width),
                         PixelOf(image, bottom, 0));
    }
}

/// Lays one pixel over another; colours are not premultiplied by alpha.
void LayOver(const std::uint8_t* above, std::uint8_t* below) {
    const unsigned alpha = above[3];
    if (alpha == 255 || below[3] == 0) {
        std::copy_n(above, 4, below);
        return;
    }
    if (alpha == 0) {
        return;
    }
    const unsigned rest = below[3] * (255 - alpha) / 255;
    const unsigned total = alpha + rest;
    for (int channel = 0; channel < 3; ++channel) {
        below[channel] = static_cast<std::uint8_t>(
            (above[channel] * alpha + below[channel] * rest + total / 2) / total);
    }
    below[3] = static_cast<std::uint8_t>(total);
}

/// What stands out is cut off.
void LayOver(const PixelImage& above, int left, int top, PixelImage& below) {
    const int firstRow = std::max(0, -top);
    const int lastRow = std::min(above.height, below.height - top);
    const int firstColumn = std::max(0, -left);
    const int lastColumn = std::min(above.width, below.width - left);
    for (int row = firstRow; row < lastRow; ++row) {
        for (int column = firstColumn; column < lastColumn; ++column) {
            LayOver(PixelOf(above, row, column),
                    PixelOf(below, top + row, left + column));
        }
    }
}

/// A stretch of whole pixels.
struct Span {
    int first;
    int size;
};

/// The pixels of a picture that the part from `from` to `to`, fractions of it, covers,
/// at least one.
Span PixelsOf(double from, double to, int size) {
    // Far out of the picture, and small enough that differences stay within 32 bits.
    static constexpr double kFarthest = 1.0e9;
    const auto edge = [size](double fraction) {
        return static_cast<int>(std::lround(
            std::clamp(fraction * static_cast<double>(size), -kFarthest, kFarthest)));
    };
    const int first = edge(from);
    return {first, std::max(1, edge(to) - first)};
}

/// The pixels or lines of a raster, from `origin` on and each of a `step`, that a stretch
/// of the map touches; none where it passes the raster by.
Span TouchedBy(double low, double high, double origin, double step, int count) {
    const auto [first, last] =
        std::minmax({(low - origin) / step, (high - origin) / step});
    const double from = std::floor(std::clamp(first, 0.0, 1.0 * count));
    const double to = std::ceil(std::clamp(last, 0.0, 1.0 * count));
    return {static_cast<int>(from), static_cast<int>(to - from)};
}

}  // namespace

MapLayers::Layer MapLayers::AsStored(std::shared_ptr<GdalRaster> raster) {
    double pixelWidth = 1.0;
    double pixelHeight = 1.0;
    if (raster->HasGeoTransform() && IsUsable(raster->GeoTransform())) {
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
    : m_asked(extent) {
    if (rasters.empty()) {
        throw std::invalid_argument("a map needs a raster");
    }
    for (const std::shared_ptr<GdalRaster>& raster : rasters) {
        m_paths.push_back(raster->Path());
    }
    const std::shared_ptr<GdalRaster> first = rasters.front();
    const std::string whyNotPlaced = WhyNotPlaced(*first, *first);
    m_isPlaced = whyNotPlaced.empty();
    m_layers.push_back(m_isPlaced ? Placed(first) : AsStored(first));
    if (m_isPlaced) {
        m_projection = first->Projection();
    }
    Box all = m_layers.front().extent;
    for (std::size_t i = 1; i < rasters.size(); ++i) {
        std::string why = WhyNotPlaced(*rasters[i], *first);
        if (why.empty()) {
            m_layers.push_back(Placed(std::move(rasters[i])));
            all = Union(all, m_layers.back().extent);
        } else {
            m_leftOut.push_back({std::move(rasters[i]), std::move(why)});
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

std::unique_ptr<MapLayers> MapLayers::Reopened() const {
    std::vector<std::shared_ptr<GdalRaster>> rasters;
    for (const std::string& path : m_paths) {
        std::string why;
        rasters.push_back(GdalRaster::Open(path, why));
        if (rasters.back() == nullptr) {
            throw std::runtime_error(why.insert(0, path + ": "));
        }
    }
    return std::make_unique<MapLayers>(std::move(rasters), m_asked);
}

/// Keeps of each raster the pixels that show, so that no others are read.
void MapLayers::CutTo(const Box& extent) {
    m_extent = extent;
    std::vector<Layer> whole;
    whole.swap(m_layers);
    for (Layer& layer : whole) {
        const GdalRaster& raster = *layer.raster;
        const std::array<double, 6>& transform = raster.GeoTransform();
        const Span columns = TouchedBy(extent.left, extent.right, transform[0],
                                       transform[1], raster.Width());
        const Span rows = TouchedBy(extent.bottom, extent.top, transform[3], transform[5],
                                    raster.Height());
        if (columns.size > 0 && rows.size > 0) {
            m_layers.push_back(columns.size == raster.Width() &&
                                       rows.size == raster.Height()
                                   ? std::move(layer)
                                   : Placed(raster.Part({columns.first, rows.first,
                                                         columns.size, rows.size})));
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
    if (m_layers.size() == 1 && Fills(m_layers.front().extent)) {
        return RenderLayer(m_layers.front(), width, height, progress);
    }
    PixelImage map;
    map.width = width;
    map.height = height;
    map.bgra.assign(OffsetOf(map, height, 0), 0);
    double done = 0.0;
    const double share = 1.0 / static_cast<double>(m_layers.size());
    for (auto layer = m_layers.rbegin(); layer != m_layers.rend(); ++layer) {
        const Span columns =
            PixelsOf((layer->extent.left - m_extent.left) / m_extent.Width(),
                     (layer->extent.right - m_extent.left) / m_extent.Width(), width);
        const Span rows =
            PixelsOf((m_extent.top - layer->extent.top) / m_extent.Height(),
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
