#include "page/map/map_geometry.h"

#include <geodesic.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <mutex>
#include <utility>

namespace host {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

struct MapPoint {
    double x;
    double y;
};

bool ReadSystem(const std::string& projection, OGRSpatialReference& system) {
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return !projection.empty() && system.importFromWkt(projection.c_str()) == OGRERR_NONE;
}

/// The transformed point; nothing where the transformation is not valid.
std::optional<MapPoint> Transformed(OGRCoordinateTransformation& way, MapPoint point) {
    if (way.Transform(1, &point.x, &point.y) == 0 || !std::isfinite(point.x) ||
        !std::isfinite(point.y)) {
        return std::nullopt;
    }
    return point;
}

}  // namespace

/// The ellipsoid under a map, with the transformations to it and back.
class MapGround::Ellipsoid {
public:
    /// Kept for as long as the same system is asked for, as on one page: making one takes
    /// milliseconds.
    static std::shared_ptr<const Ellipsoid> Of(const std::string& projection) {
        struct Last {
            std::mutex mutex;
            std::string projection;
            std::shared_ptr<const Ellipsoid> ellipsoid;
        };
        // Never destroyed: at exit, what it needs of PROJ may already be gone.
        static Last& last = *new Last;
        const std::lock_guard<std::mutex> lock(last.mutex);
        if (last.ellipsoid == nullptr || last.projection != projection) {
            last.ellipsoid = Made(projection);
            last.projection = projection;
        }
        return last.ellipsoid;
    }

    std::optional<MapPlace> PlaceOf(MapPoint point) const {
        const std::optional<MapPoint> place = Way(*m_toPlace, point);
        if (!place) {
            return std::nullopt;
        }
        return MapPlace{place->x * m_degreesPerUnit, place->y * m_degreesPerUnit};
    }

    std::optional<MapPoint> PointOf(const MapPlace& place) const {
        return Way(*m_toMap, {place.longitude / m_degreesPerUnit,
                              place.latitude / m_degreesPerUnit});
    }

    /// The place a number of metres due north.
    MapPlace NorthOf(const MapPlace& place, double metres) const {
        MapPlace north = {};
        geod_direct(&m_geodesic, place.latitude, place.longitude, 0.0, metres,
                    &north.latitude, &north.longitude, nullptr);
        return north;
    }

    /// The metres along the geodesic between the places under two points.
    std::optional<double> Distance(MapPoint a, MapPoint b) const {
        const std::optional<MapPlace> from = PlaceOf(a);
        const std::optional<MapPlace> to = PlaceOf(b);
        if (!from || !to) {
            return std::nullopt;
        }
        double metres = 0.0;
        geod_inverse(&m_geodesic, from->latitude, from->longitude, to->latitude,
                     to->longitude, &metres, nullptr, nullptr);
        return std::isfinite(metres) && metres > 0.0 ? std::optional<double>(metres)
                                                     : std::nullopt;
    }

private:
    static std::shared_ptr<const Ellipsoid> Made(const std::string& projection) {
        OGRSpatialReference system;
        if (!ReadSystem(projection, system)) {
            return nullptr;
        }
        const std::unique_ptr<OGRSpatialReference> geographic(system.CloneGeogCS());
        if (geographic == nullptr) {
            return nullptr;
        }
        geographic->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        auto ellipsoid = std::make_shared<Ellipsoid>();
        ellipsoid->m_toPlace.reset(
            OGRCreateCoordinateTransformation(&system, geographic.get()));
        if (ellipsoid->m_toPlace == nullptr) {
            return nullptr;
        }
        ellipsoid->m_toMap.reset(ellipsoid->m_toPlace->GetInverse());
        if (ellipsoid->m_toMap == nullptr) {
            return nullptr;
        }
        ellipsoid->m_degreesPerUnit = geographic->GetAngularUnits() * kDegrees;
        const double inverseFlattening = system.GetInvFlattening();
        geod_init(&ellipsoid->m_geodesic, system.GetSemiMajor(),
                  inverseFlattening == 0.0 ? 0.0 : 1.0 / inverseFlattening);
        return ellipsoid;
    }

    /// One thread at a time transforms.
    std::optional<MapPoint> Way(OGRCoordinateTransformation& way, MapPoint point) const {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return Transformed(way, point);
    }

    mutable std::mutex m_mutex;
    std::unique_ptr<OGRCoordinateTransformation> m_toPlace;
    std::unique_ptr<OGRCoordinateTransformation> m_toMap;
    double m_degreesPerUnit = 1.0;
    geod_geodesic m_geodesic = {};
};

CoordinateUnit UnitOf(const std::string& projection) {
    OGRSpatialReference system;
    if (!ReadSystem(projection, system)) {
        return {};
    }
    const char* name = nullptr;
    if (system.IsGeographic() != 0) {
        const double degrees = system.GetAngularUnits(&name) * kDegrees;
        return {CoordinateUnit::Kind::Angle, degrees, name};
    }
    const double metres = system.GetLinearUnits(&name);
    const bool isLength = (system.IsProjected() != 0 || system.IsLocal() != 0) &&
                          std::isfinite(metres) && metres > 0.0;
    return isLength ? CoordinateUnit{CoordinateUnit::Kind::Length, metres, name}
                    : CoordinateUnit{};
}

std::optional<MapGround> MapGround::Of(const std::string& projection, const Box& extent) {
    std::shared_ptr<const Ellipsoid> ellipsoid = Ellipsoid::Of(projection);
    const MapPoint middle = {extent.MiddleX(), extent.MiddleY()};
    if (ellipsoid == nullptr || !ellipsoid->PlaceOf(middle)) {
        return std::nullopt;
    }
    const double step = std::min(extent.Width(), extent.Height()) / 1000.0;
    return MapGround(std::move(ellipsoid), middle.x, middle.y, step);
}

std::optional<MapPlace> MapGround::PlaceAt(const std::string& projection, double x,
                                           double y) {
    const std::shared_ptr<const Ellipsoid> ellipsoid = Ellipsoid::Of(projection);
    std::optional<MapPlace> place =
        ellipsoid == nullptr ? std::nullopt : ellipsoid->PlaceOf({x, y});
    constexpr double kBeyondEarth = 1.0e-9;  // degrees
    if (!place || std::fabs(place->latitude) > 90.0 + kBeyondEarth ||
        std::fabs(place->longitude) > 720.0) {
        return std::nullopt;
    }
    // 180 degrees west must not come out as east.
    if (std::fabs(place->longitude) > 180.0 + kBeyondEarth) {
        place->longitude = std::remainder(place->longitude, 360.0);
    }
    return place;
}

std::optional<double> MapGround::TrueNorth() const {
    constexpr double kStep = 10.0;  // metres, short enough for meridians to be straight
    // Both points are transformed there and back, so that the losses cancel out.
    const std::optional<MapPlace> place = m_ellipsoid->PlaceOf({m_x, m_y});
    const std::optional<MapPoint> here = m_ellipsoid->PointOf(*place);
    const std::optional<MapPoint> north =
        m_ellipsoid->PointOf(m_ellipsoid->NorthOf(*place, kStep));
    if (!here || !north) {
        return std::nullopt;
    }
    return std::atan2(north->x - here->x, north->y - here->y) * kDegrees;
}

std::optional<double> MapGround::Metres(double mapUnits) const {
    const double half = mapUnits / 2.0;
    return m_ellipsoid->Distance({m_x - half, m_y}, {m_x + half, m_y});
}

double MapGround::Reach(double most) const {
    constexpr double kLess = 0.95;
    constexpr int kMostTries = 200;  // to a thirty-thousandth
    std::optional<double> metres = Metres(most);
    for (int i = 0; i < kMostTries; ++i, most *= kLess) {
        const std::optional<double> shorter = Metres(most * kLess);
        if (metres && shorter && *metres > *shorter) {
            return most;
        }
        metres = shorter;
    }
    return 0.0;
}

std::optional<double> MapGround::MapUnits(double metres, double most) const {
    constexpr int kHalvings = 60;  // more than a double has bits
    double less = 0.0;
    double more = Reach(most);
    const std::optional<double> reached = Metres(more);
    if (!(metres > 0.0) || !reached || metres > *reached) {
        return std::nullopt;
    }
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = less + (more - less) / 2.0;
        const std::optional<double> length = Metres(middle);
        (length && *length >= metres ? more : less) = middle;
    }
    return more;
}

std::optional<double> MapGround::UpwardStretch() const {
    const double half = m_step / 2.0;
    const std::optional<double> across = Metres(m_step);
    const std::optional<double> upwards =
        m_ellipsoid->Distance({m_x, m_y - half}, {m_x, m_y + half});
    if (!across || !upwards) {
        return std::nullopt;
    }
    return *across / *upwards;
}

}  // namespace host
