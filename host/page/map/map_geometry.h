#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "page/box.h"

namespace host {

/// The greatest ratio of a map's sides; a longer map would be a line on the page.
constexpr double kLongestMap = 100.0;

/// The unit of a map's coordinates.
struct CoordinateUnit {
    enum class Kind {
        Unknown,  ///< no coordinate system, or one of unknown unit
        Length,
        Angle,
    };

    Kind kind = Kind::Unknown;
    double size = 0.0;      ///< metres of a length, degrees of an angle
    std::string name = {};  ///< as the coordinate system calls it: "US survey foot"
};

/// The unit of a coordinate system.
/// @param projection as WKT
CoordinateUnit UnitOf(const std::string& projection);

/// A place on the ellipsoid, in degrees, positive to the east and north.
struct MapPlace {
    double longitude;
    double latitude;
};

/// The Earth under the middle of a map: everything a page says of a map's scale, in
/// figures or as a bar, and of its north comes from here.
///
/// Distances are lengths of geodesics on the coordinate system's own ellipsoid, between
/// places on a level line through the middle of the map, equally far to the left and
/// right of it.
class MapGround {
public:
    /// Nothing where the coordinate system is unknown, or not valid in the middle of the
    /// map.
    /// @param projection as WKT
    static std::optional<MapGround> Of(const std::string& projection, const Box& extent);

    /// The place under a point of a map, on the map's own ellipsoid; nothing where the
    /// coordinate system is unknown or not valid. East of 180 degrees it continues from
    /// 180 degrees west.
    static std::optional<MapPlace> PlaceAt(const std::string& projection, double x,
                                           double y);

    /// The direction of true north: degrees clockwise from straight up, between -180 and
    /// 180. East of a UTM zone's central meridian, in the northern hemisphere, it is
    /// negative: the meridians lean to the left there.
    /// @return nothing where the coordinate system is not valid
    std::optional<double> TrueNorth() const;

    /// The metres covered by some map units. A hundredth of a degree at 45 degrees north
    /// (WGS 84) is 788.47 m wide.
    /// @return nothing where an end is not on Earth
    std::optional<double> Metres(double mapUnits) const;

    /// The longest span, up to a number of map units, within which distances grow with
    /// the span. On a map of the world they shrink again once the way around the other
    /// side is shorter: 180 of 360 degrees. 0 where there is none.
    double Reach(double most) const;

    /// The map units that cover some metres: the inverse of Metres.
    /// @return nothing for more metres than Reach(most) covers
    std::optional<double> MapUnits(double metres, double most) const;

    /// How much longer a metre is drawn upwards than along the level line: 1 where the
    /// projection is conformal, 0.709 on a map in degrees at 45 degrees north, whose
    /// degrees of longitude are shorter than those of latitude.
    /// @return nothing where the coordinate system is not valid
    std::optional<double> UpwardStretch() const;

private:
    class Ellipsoid;

    MapGround(std::shared_ptr<const Ellipsoid> ellipsoid, double x, double y, double step)
        : m_ellipsoid(std::move(ellipsoid)), m_x(x), m_y(y), m_step(step) {}

    std::shared_ptr<const Ellipsoid> m_ellipsoid;
    double m_x;
    double m_y;
    double m_step;  // map units over which the map is practically flat
};

}  // namespace host
