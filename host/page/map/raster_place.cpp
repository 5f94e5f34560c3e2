#include "page/map/raster_place.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace host {
namespace {

using SpatialReference = std::unique_ptr<OGRSpatialReference>;

/// With coordinates in the usual order of maps: east before north. Null for invalid WKT.
SpatialReference SystemOf(const GdalRaster& raster) {
    auto system = std::make_unique<OGRSpatialReference>();
    system->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system->importFromWkt(raster.Projection().c_str()) == OGRERR_NONE
               ? std::move(system)
               : nullptr;
}

/// Whether a raster's corners keep their coordinates in another system, to half a pixel,
/// so that one system in different words counts as the same.
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

/// A run of whole pixels or lines.
struct Run {
    int first;
    int count;
};

/// The pixels or lines of a raster, the first at `origin` and each a `step` long, that an
/// interval of the map touches; none where it misses the raster.
Run TouchedBy(double low, double high, double origin, double step, int count) {
    const auto [first, last] =
        std::minmax({(low - origin) / step, (high - origin) / step});
    const double from = std::floor(std::clamp(first, 0.0, 1.0 * count));
    const double to = std::ceil(std::clamp(last, 0.0, 1.0 * count));
    return {static_cast<int>(from), static_cast<int>(to - from)};
}

}  // namespace

bool IsGeoreferenced(const GdalRaster& raster) {
    const std::array<double, 6>& transform = raster.GeoTransform();
    return raster.HasGeoTransform() &&
           std::all_of(transform.begin(), transform.end(),
                       [](double value) { return std::isfinite(value); }) &&
           transform[1] * transform[5] - transform[2] * transform[4] != 0.0;
}

bool IsTurned(const GdalRaster& raster) {
    return raster.GeoTransform()[2] != 0.0 || raster.GeoTransform()[4] != 0.0;
}

Box ExtentOf(const GdalRaster& raster) {
    const std::array<double, 6>& transform = raster.GeoTransform();
    const double x = transform[0] + raster.Width() * transform[1];
    const double y = transform[3] + raster.Height() * transform[5];
    return {std::min(transform[0], x), std::min(transform[3], y),
            std::max(transform[0], x), std::max(transform[3], y)};
}

GdalRaster::Window WindowIn(const Box& extent, const GdalRaster& raster) {
    const std::array<double, 6>& transform = raster.GeoTransform();
    const Run columns =
        TouchedBy(extent.left, extent.right, transform[0], transform[1], raster.Width());
    const Run rows =
        TouchedBy(extent.bottom, extent.top, transform[3], transform[5], raster.Height());
    return {columns.first, rows.first, columns.count, rows.count};
}

std::string WhyNotPlaced(const GdalRaster& raster, const GdalRaster& first) {
    if (!IsGeoreferenced(first)) {
        return "the first raster has no georeference to place it by";
    }
    if (IsTurned(first)) {
        return "the first raster is shown as it is stored";
    }
    if (!IsGeoreferenced(raster)) {
        return "it has no georeference";
    }
    if (!IsSameSystem(raster, first)) {
        return "its coordinate system is not that of the first raster";
    }
    return {};
}

}  // namespace host
