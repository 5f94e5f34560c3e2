#include "page/map/map_geometry.h"

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <memory>

namespace host {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

/// A place on the ellipsoid, in degrees.
struct Place {
    double longitude;
    double latitude;
};

struct MapPoint {
    double x;
    double y;
};

/// The way between a map's coordinates and its own ellipsoid.
class Ellipsoid {
public:
    static std::optional<Ellipsoid> Of(const std::string& projection) {
        OGRSpatialReference system;
        system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        if (projection.empty() ||
            system.importFromWkt(projection.c_str()) != OGRERR_NONE) {
            return std::nullopt;
        }
        const std::unique_ptr<OGRSpatialReference> geographic(system.CloneGeogCS());
        if (geographic == nullptr) {
            return std::nullopt;
        }
        geographic->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        Ellipsoid ellipsoid;
        ellipsoid.m_toPlace.reset(
            OGRCreateCoordinateTransformation(&system, geographic.get()));
        ellipsoid.m_toMap.reset(
            OGRCreateCoordinateTransformation(geographic.get(), &system));
        if (ellipsoid.m_toPlace == nullptr || ellipsoid.m_toMap == nullptr) {
            return std::nullopt;
        }
        ellipsoid.m_degreesPerUnit = geographic->GetAngularUnits() * kDegrees;
        const double inverseFlattening = system.GetInvFlattening();
        geod_init(&ellipsoid.m_geodesic, system.GetSemiMajor(),
                  inverseFlattening == 0.0 ? 0.0 : 1.0 / inverseFlattening);
        return ellipsoid;
    }

    std::optional<Place> PlaceOf(MapPoint point) const {
        if (m_toPlace->Transform(1, &point.x, &point.y) == 0 || !std::isfinite(point.x) ||
            !std::isfinite(point.y)) {
            return std::nullopt;
        }
        return Place{point.x * m_degreesPerUnit, point.y * m_degreesPerUnit};
    }

    std::optional<MapPoint> PointOf(const Place& place) const {
        MapPoint point = {place.longitude / m_degreesPerUnit,
                          place.latitude / m_degreesPerUnit};
        if (m_toMap->Transform(1, &point.x, &point.y) == 0 || !std::isfinite(point.x) ||
            !std::isfinite(point.y)) {
            return std::nullopt;
        }
        return point;
    }

    /// The place that many metres due north.
    Place NorthOf(const Place& place, double metres) const {
        Place north = {};
        geod_direct(&m_geodesic, place.latitude, place.longitude, 0.0, metres,
                    &north.latitude, &north.longitude, nullptr);
        return north;
    }

    /// The length of the geodesic between two places, in metres.
    double Distance(const Place& a, const Place& b) const {
        double metres = 0.0;
        geod_inverse(&m_geodesic, a.latitude, a.longitude, b.latitude, b.longitude,
                     &metres, nullptr, nullptr);
        return metres;
    }

private:
    std::unique_ptr<OGRCoordinateTransformation> m_toPlace;
    std::unique_ptr<OGRCoordinateTransformation> m_toMap;
    double m_degreesPerUnit = 1.0;
    geod_geodesic m_geodesic = {};
};

}  // namespace

MapUnit UnitOf(const std::string& projection) {
    OGRSpatialReference system;
    if (projection.empty() || system.importFromWkt(projection.c_str()) != OGRERR_NONE) {
        return MapUnit::Unknown;
    }
    constexpr double kClose = 1e-9;
    if (system.IsGeographic() != 0) {
        return std::fabs(system.GetAngularUnits() * kDegrees - 1.0) < kClose
                   ? MapUnit::Degree
                   : MapUnit::Unknown;
    }
    return system.IsProjected() != 0 && std::fabs(system.GetLinearUnits() - 1.0) < kClose
               ? MapUnit::Metre
               : MapUnit::Unknown;
}

std::optional<double> TrueNorthAt(const std::string& projection, const Box& extent) {
    constexpr double kStep = 10.0;  // metres, short enough for meridians to be straight
    const std::optional<Ellipsoid> ellipsoid = Ellipsoid::Of(projection);
    if (!ellipsoid) {
        return std::nullopt;
    }
    const MapPoint middle = {extent.MiddleX(), extent.MiddleY()};
    const std::optional<Place> place = ellipsoid->PlaceOf(middle);
    if (!place) {
        return std::nullopt;
    }
    // Both points go the same way there and back, so that what that loses cancels out.
    const std::optional<MapPoint> here = ellipsoid->PointOf(*place);
    const std::optional<MapPoint> north =
        ellipsoid->PointOf(ellipsoid->NorthOf(*place, kStep));
    if (!here || !north) {
        return std::nullopt;
    }
    return std::atan2(north->x - here->x, north->y - here->y) * kDegrees;
}

std::optional<double> GroundMetresPerUnit(const std::string& projection,
                                          const Box& extent) {
    const std::optional<Ellipsoid> ellipsoid = Ellipsoid::Of(projection);
    if (!ellipsoid) {
        return std::nullopt;
    }
    const double step = extent.Width() / 1000.0;
    const std::optional<Place> west =
        ellipsoid->PlaceOf({extent.MiddleX() - step / 2.0, extent.MiddleY()});
    const std::optional<Place> east =
        ellipsoid->PlaceOf({extent.MiddleX() + step / 2.0, extent.MiddleY()});
    if (!west || !east) {
        return std::nullopt;
    }
    const double metres = ellipsoid->Distance(*west, *east) / step;
    return std::isfinite(metres) && metres > 0.0 ? std::optional<double>(metres)
                                                 : std::nullopt;
}

}  // namespace host
