#include "page/map/map_geometry.h"

#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <memory>
#include <string>

#include "page/map/wkt.h"

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kRadians = kPi / 180.0;

// WGS 84
constexpr double kSemiMajor = 6378137.0;
constexpr double kFlattening = 1.0 / 298.257223563;
constexpr double kEccentricity2 = kFlattening * (2.0 - kFlattening);

using host_tests::Wkt;

/// A small map around a place, in the map's own coordinates.
host::Box Around(int epsg, double longitude, double latitude, double size) {
    OGRSpatialReference geographic;
    geographic.importFromEPSG(4326);
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRSpatialReference system;
    system.importFromEPSG(epsg);
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> toMap(
        OGRCreateCoordinateTransformation(&geographic, &system));
    toMap->Transform(1, &longitude, &latitude);
    return {longitude - size, latitude - size, longitude + size, latitude + size};
}

/// The length of a degree of longitude on the ellipsoid, in metres.
double DegreeOfLongitude(double latitude) {
    const double sine = std::sin(latitude * kRadians);
    return kRadians * kSemiMajor * std::cos(latitude * kRadians) /
           std::sqrt(1.0 - kEccentricity2 * sine * sine);
}

/// Meridian convergence of a transverse Mercator map by its series: how far grid north
/// stands clockwise from true north, in degrees.
double Convergence(double fromCentralMeridian, double latitude) {
    const double sine = std::sin(latitude * kRadians);
    const double cosine = std::cos(latitude * kRadians);
    const double east = fromCentralMeridian * kRadians;
    const double eta2 = kEccentricity2 / (1.0 - kEccentricity2) * cosine * cosine;
    return (east * sine + east * east * east * sine * cosine * cosine / 3.0 *
                              (1.0 + 3.0 * eta2 + 2.0 * eta2 * eta2)) /
           kRadians;
}

host::MapGround GroundAt(int epsg, double longitude, double latitude, double size) {
    return host::MapGround::Of(Wkt(epsg), Around(epsg, longitude, latitude, size))
        .value();
}

TEST(MapGeometry, KnowsWhatCoordinatesCount) {
    using Kind = host::CoordinateUnit::Kind;
    const struct {
        std::string projection;
        Kind kind;
        double size;
        std::string name;
    } rows[] = {
        {Wkt(32725), Kind::Length, 1.0, "metre"},
        {Wkt(3857), Kind::Length, 1.0, "metre"},
        {Wkt(4326), Kind::Angle, 1.0, "degree"},
        {Wkt(4807), Kind::Angle, 0.9, "grad"},
        {Wkt(2263), Kind::Length, 1200.0 / 3937.0, "US survey foot"},
        {Wkt(2222), Kind::Length, 0.3048, "foot"},
        {"", Kind::Unknown, 0.0, ""},
        {"no WKT", Kind::Unknown, 0.0, ""},
    };
    for (const auto& row : rows) {
        const host::CoordinateUnit unit = host::UnitOf(row.projection);
        EXPECT_EQ(unit.kind, row.kind) << row.projection;
        EXPECT_NEAR(unit.size, row.size, 1e-12) << row.projection;
        EXPECT_EQ(unit.name, row.name);
    }
}

TEST(MapGeometry, TurnsTowardsTrueNorth) {
    const struct {
        int epsg;
        double centralMeridian;
        double longitude;
        double latitude;
    } rows[] = {
        {32725, -33.0, -34.9, -8.0},  // the west of a zone south of the equator
        {32633, 15.0, 17.9, 52.0},    // the east of one north of it
        {32633, 15.0, 12.1, 70.0},
        {32633, 15.0, 15.0, 52.0},
    };
    for (const auto& row : rows) {
        const auto ground = GroundAt(row.epsg, row.longitude, row.latitude, 1000.0);
        EXPECT_NEAR(ground.TrueNorth().value(),
                    -Convergence(row.longitude - row.centralMeridian, row.latitude), 0.01)
            << row.epsg << " at " << row.longitude << " " << row.latitude;
    }
    // Around the South Pole, the meridian of 90 degrees east lies level, the pole left.
    EXPECT_NEAR(GroundAt(3031, 90.0, -75.0, 1000.0).TrueNorth().value(), 90.0, 1e-6);
    EXPECT_NEAR(GroundAt(4326, 10.0, 45.0, 0.5).TrueNorth().value(), 0.0, 1e-6);
}

TEST(MapGeometry, MeasuresOnTheGround) {
    for (const double latitude : {0.0, 45.0, 70.0, -45.0}) {
        const double metres = DegreeOfLongitude(latitude);
        const auto inDegrees = GroundAt(4326, 10.0, latitude, 0.5);
        EXPECT_NEAR(inDegrees.Metres(0.01).value() / metres, 0.01, 1e-5) << latitude;

        // Mercator's unit is a metre at the equator only.
        const auto mercator = GroundAt(3857, 10.0, latitude, 5000.0);
        EXPECT_NEAR(mercator.Metres(100.0).value() / (metres / DegreeOfLongitude(0.0)),
                    100.0, 0.1)
            << latitude;
    }
    // A UTM zone's central meridian is drawn at 0.9996 of its length.
    EXPECT_NEAR(GroundAt(32633, 15.0, 45.0, 1000.0).Metres(100.0).value(), 100.0 / 0.9996,
                1e-4);
}

TEST(MapGeometry, FindsTheWayBack) {
    const auto ground = GroundAt(4326, 10.0, 45.0, 20.0);
    for (const double metres : {1.0, 1000.0, 1.0e6}) {
        const double units = ground.MapUnits(metres, 40.0).value();
        EXPECT_NEAR(ground.Metres(units).value() / metres, 1.0, 1e-9);
    }
    EXPECT_FALSE(ground.MapUnits(1.0e7, 40.0).has_value()) << "longer than the map";
    EXPECT_FALSE(ground.MapUnits(-1.0, 40.0).has_value());
}

TEST(MapGeometry, GoesNoFurtherThanDistancesGrow) {
    // Half around the equator is as far as anything is.
    const auto world =
        host::MapGround::Of(Wkt(4326), {-180.0, -90.0, 180.0, 90.0}).value();
    EXPECT_LE(world.Reach(360.0), 180.0);
    EXPECT_GT(world.Reach(360.0), 160.0);
    EXPECT_EQ(world.Reach(90.0), 90.0);
    // What is drawn around the disc of the Earth is nowhere on it.
    const auto disc =
        host::MapGround::Of(Wkt(3035), {-2.0e7, -2.0e7, 2.0e7, 2.0e7}).value();
    EXPECT_GT(disc.Reach(4.0e7), 1.0e6);
}

TEST(MapGeometry, TellsWhereUpwardsIsAnotherScale) {
    // A degree of latitude at 45 degrees is 111 132 m on WGS 84.
    EXPECT_NEAR(GroundAt(4326, 10.0, 45.0, 0.5).UpwardStretch().value(),
                DegreeOfLongitude(45.0) / 111132.0, 1e-5);
    EXPECT_NEAR(GroundAt(32633, 15.0, 45.0, 1000.0).UpwardStretch().value(), 1.0, 1e-6);
}

TEST(MapGeometry, SaysNothingOfWhatItDoesNotKnow) {
    EXPECT_FALSE(host::MapGround::Of("", {0.0, 0.0, 10.0, 10.0}).has_value());
    EXPECT_FALSE(host::MapGround::Of(Wkt(32633), {1e30, 1e30, 2e30, 2e30}).has_value());
}

}  // namespace
