#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "page/box.h"

namespace host {

/// A map that is longer than wide by more is a line; nothing is shown of it beyond.
constexpr double kLongestMap = 100.0;

/// What one unit of a map's coordinates is.
struct CoordinateUnit {
    enum class Kind {
        Unknown,  ///< the map has no coordinate system, or one of no known unit
        Length,
        Angle,
    };

    Kind kind = Kind::Unknown;
    double size = 0.0;      ///< metres of a length, degrees of an angle
    std::string name = {};  ///< as the coordinate system calls it: "US survey foot"
};

/// What a coordinate system counts in.
/// @param projection as WKT
CoordinateUnit UnitOf(const std::string& projection);

/// A place on the ellipsoid, in degrees, east and north positive.
struct MapPlace {
    double longitude;
    double latitude;
};

/// The Earth under the middle of a map: whatever a page says of a map's scale, in figures
/// or as a bar, and of its north comes from here.
///
/// Distances are lengths of geodesics on the coordinate system's own ellipsoid, between
/// places that lie on a level line through the middle of the map, as far to the left of
/// it as to the right.
class MapGround {
public:
    /// Nothing where the coordinate system is unknown, or does not reach the middle.
    /// @param projection as WKT
    static std::optional<MapGround> Of(const std::string& projection, const Box& extent);

    /// The place under a point of a map, on the map's own ellipsoid; nothing where the
    /// coordinate system is unknown or does not reach. East of 180 degrees it goes on
    /// from 180 degrees west.
    static std::optional<MapPlace> PlaceAt(const std::string& projection, double x,
                                           double y);

    /// The direction of true north: degrees clockwise from straight up, between -180 and
    /// 180. East of a UTM zone's central meridian, on the northern half, it is negative:
    /// the meridians lean to the left there.
    /// @return nothing where the coordinate system does not reach
    std::optional<double> TrueNorth() const;

    /// The metres under so many map units. A hundredth of a degree at 45 degrees north
    /// (WGS 84) is 788.47 m wide.
    /// @return nothing where one of the ends is nowhere on Earth
    std::optional<double> Metres(double mapUnits) const;

    /// The longest span, of at most so many map units, up to which distances grow with
    /// what they span. On a map of the world they shrink again once the way around the
    /// other side is shorter: 180 of 360 degrees. 0 where there is none.
    double Reach(double most) const;

    /// The map units over so many metres: the way back.
    /// @return nothing where so many metres are not reached within Reach(most)
    std::optional<double> MapUnits(double metres, double most) const;

    /// By how much a metre is drawn longer upwards than along the level line: 1 where the
    /// projection is conformal, 0.709 on a map in degrees at 45 degrees north, whose
    /// degrees of longitude are shorter than those of latitude.
    /// @return nothing where the coordinate system does not reach
    std::optional<double> UpwardStretch() const;

private:
    class Ellipsoid;

    MapGround(std::shared_ptr<const Ellipsoid> ellipsoid, double x, double y, double step)
        : m_ellipsoid(std::move(ellipsoid)), m_x(x), m_y(y), m_step(step) {}

    std::shared_ptr<const Ellipsoid> m_ellipsoid;
    double m_x;
    double m_y;
    double m_step;  // map units over which the map is as good as flat
};

}  // namespace host
