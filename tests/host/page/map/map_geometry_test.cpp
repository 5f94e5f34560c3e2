#include "page/map/map_geometry.h"

#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <cmath>
#include <string>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kRadians = kPi / 180.0;

// WGS 84
constexpr double kSemiMajor = 6378137.0;
constexpr double kFlattening = 1.0 / 298.257223563;
constexpr double kEccentricity2 = kFlattening * (2.0 - kFlattening);

std::string Wkt(int epsg) {
    OGRSpatialReference system;
    EXPECT_EQ(system.importFromEPSG(epsg), OGRERR_NONE);
    char* text = nullptr;
    system.exportToWkt(&text);
    std::string wkt = text;
    CPLFree(text);
    return wkt;
}

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

TEST(MapGeometry, KnowsMetresAndDegrees) {
    EXPECT_EQ(host::UnitOf(Wkt(32725)), host::MapUnit::Metre);
    EXPECT_EQ(host::UnitOf(Wkt(3857)), host::MapUnit::Metre);
    EXPECT_EQ(host::UnitOf(Wkt(4326)), host::MapUnit::Degree);
    EXPECT_EQ(host::UnitOf(Wkt(2263)), host::MapUnit::Unknown) << "feet";
    EXPECT_EQ(host::UnitOf(""), host::MapUnit::Unknown);
    EXPECT_EQ(host::UnitOf("no WKT"), host::MapUnit::Unknown);
}

TEST(MapGeometry, TurnsTowardsTrueNorth) {
    struct Row {
        int epsg;
        double centralMeridian;
        double longitude;
        double latitude;
    };
    const Row rows[] = {
        {32725, -33.0, -34.9, -8.0},  // the west of a zone south of the equator
        {32633, 15.0, 17.9, 52.0},    // the east of one north of it
        {32633, 15.0, 12.1, 70.0},
        {32633, 15.0, 15.0, 52.0},
    };
    for (const Row& row : rows) {
        const auto angle = host::TrueNorthAt(
            Wkt(row.epsg), Around(row.epsg, row.longitude, row.latitude, 1000.0));
        ASSERT_TRUE(angle.has_value());
        EXPECT_NEAR(*angle,
                    -Convergence(row.longitude - row.centralMeridian, row.latitude), 0.01)
            << row.epsg << " at " << row.longitude << " " << row.latitude;
    }
    const auto geographic = host::TrueNorthAt(Wkt(4326), {10.0, 45.0, 11.0, 46.0});
    ASSERT_TRUE(geographic.has_value());
    EXPECT_NEAR(*geographic, 0.0, 1e-6);
}

TEST(MapGeometry, MeasuresOnTheGround) {
    for (const double latitude : {0.0, 45.0, 70.0, -45.0}) {
        const double metres = DegreeOfLongitude(latitude);
        const auto inDegrees =
            host::GroundMetresPerUnit(Wkt(4326), Around(4326, 10.0, latitude, 0.5));
        ASSERT_TRUE(inDegrees.has_value());
        EXPECT_NEAR(*inDegrees / metres, 1.0, 0.001) << latitude;

        // Mercator's unit is a metre at the equator only.
        const auto mercator =
            host::GroundMetresPerUnit(Wkt(3857), Around(3857, 10.0, latitude, 5000.0));
        ASSERT_TRUE(mercator.has_value());
        EXPECT_NEAR(*mercator / (metres / DegreeOfLongitude(0.0)), 1.0, 0.001)
            << latitude;
    }
    // A UTM zone's central meridian is drawn at 0.9996 of its length.
    const auto utm =
        host::GroundMetresPerUnit(Wkt(32633), Around(32633, 15.0, 45.0, 1000.0));
    ASSERT_TRUE(utm.has_value());
    EXPECT_NEAR(*utm, 1.0 / 0.9996, 1e-6);
}

TEST(MapGeometry, SaysNothingOfWhatItDoesNotKnow) {
    const host::Box extent = {0.0, 0.0, 10.0, 10.0};
    EXPECT_FALSE(host::TrueNorthAt("", extent).has_value());
    EXPECT_FALSE(host::GroundMetresPerUnit("", extent).has_value());
    const host::Box offTheEarth = {1e30, 1e30, 2e30, 2e30};
    EXPECT_FALSE(host::GroundMetresPerUnit(Wkt(32633), offTheEarth).has_value());
    EXPECT_FALSE(host::TrueNorthAt(Wkt(32633), offTheEarth).has_value());
}

}  // namespace
