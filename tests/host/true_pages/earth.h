#pragma once

#include <memory>
#include <optional>
#include <string>

struct PJconsts;

namespace true_pages {

/// The Earth under a map, asked of PROJ alone.
class Earth {
public:
    /// @param system anything that PROJ reads: "EPSG:32633", a PROJ string
    explicit Earth(const std::string& system);

    struct Place {
        double longitude = 0.0;
        double latitude = 0.0;
    };

    struct Point {
        double x = 0.0;
        double y = 0.0;
    };

    /// Where a place is on the map; none where the projection does not reach.
    std::optional<Point> Drawn(const Place& place) const;

    /// Metres along the geodesic between two points of the map.
    std::optional<double> Distance(const Point& a, const Point& b) const;

    /// The direction in which the North Pole lies from a point of the map: degrees
    /// clockwise from straight up.
    std::optional<double> North(const Point& point) const;

private:
    std::optional<Place> PlaceUnder(const Point& point) const;

    std::shared_ptr<PJconsts> m_toMap;
};

}  // namespace true_pages
