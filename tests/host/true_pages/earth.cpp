#include "true_pages/earth.h"

#include <gtest/gtest.h>
#include <proj.h>

#include <cmath>

namespace true_pages {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;

}  // namespace

Earth::Earth(const std::string& system) {
    PJ* const map = proj_create(nullptr, system.c_str());
    PJ* const geodetic = proj_crs_get_geodetic_crs(nullptr, map);
    PJ* const way =
        proj_create_crs_to_crs_from_pj(nullptr, geodetic, map, nullptr, nullptr);
    m_toMap.reset(
        way == nullptr ? nullptr : proj_normalize_for_visualization(nullptr, way),
        [](PJ* made) { proj_destroy(made); });
    proj_destroy(way);
    proj_destroy(geodetic);
    proj_destroy(map);
    EXPECT_NE(m_toMap, nullptr) << system;
}

std::optional<Earth::Point> Earth::Drawn(const Place& place) const {
    const PJ_COORD drawn =
        proj_trans(m_toMap.get(), PJ_FWD,
                   proj_coord(place.longitude, place.latitude, 0.0, HUGE_VAL));
    if (!std::isfinite(drawn.xy.x) || !std::isfinite(drawn.xy.y)) {
        return std::nullopt;
    }
    return Point{drawn.xy.x, drawn.xy.y};
}

std::optional<Earth::Place> Earth::PlaceUnder(const Point& point) const {
    const PJ_COORD place =
        proj_trans(m_toMap.get(), PJ_INV, proj_coord(point.x, point.y, 0.0, HUGE_VAL));
    if (!std::isfinite(place.xy.x) || !std::isfinite(place.xy.y)) {
        return std::nullopt;
    }
    return Place{place.xy.x, place.xy.y};
}

std::optional<double> Earth::Distance(const Point& a, const Point& b) const {
    const std::optional<Place> from = PlaceUnder(a);
    const std::optional<Place> to = PlaceUnder(b);
    if (!from || !to) {
        return std::nullopt;
    }
    const auto radians = [](const Place& place) {
        return proj_coord(place.longitude / kDegrees, place.latitude / kDegrees, 0.0,
                          0.0);
    };
    return proj_geod(m_toMap.get(), radians(*from), radians(*to)).lpzt.lam;
}

std::optional<double> Earth::North(const Point& point) const {
    const std::optional<Place> place = PlaceUnder(point);
    if (!place) {
        return std::nullopt;
    }
    // A ten-thousandth of a degree, half to each side: some 11 m of the meridian.
    const auto south = Drawn({place->longitude, place->latitude - 5e-5});
    const auto north = Drawn({place->longitude, place->latitude + 5e-5});
    if (!south || !north) {
        return std::nullopt;
    }
    return std::atan2(north->x - south->x, north->y - south->y) * kDegrees;
}

}  // namespace true_pages
