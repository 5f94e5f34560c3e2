#include "page/map/bar_division.h"

#include <gtest/gtest.h>

#include <cmath>

#include "map_surround/scale_bar.h"
#include "page/map/wkt.h"

namespace {

using host::BarMeasure;
using host::DistanceUnit;

TEST(DistanceUnits, KeepTheSizesOfTheirDefinitions) {
    EXPECT_EQ(host::FactsOf(DistanceUnit::Foot).size, 0.3048);
    EXPECT_EQ(host::FactsOf(DistanceUnit::UsSurveyFoot).size * 3937.0, 1200.0);
    EXPECT_DOUBLE_EQ(host::FactsOf(DistanceUnit::Yard).size, 0.9144);
    EXPECT_DOUBLE_EQ(host::FactsOf(DistanceUnit::Mile).size, 1609.344);
    EXPECT_EQ(host::FactsOf(DistanceUnit::NauticalMile).size, 1852.0);
    for (const host::DistanceUnitFacts& facts : host::DistanceUnits()) {
        EXPECT_EQ(&host::FactsOf(facts.unit), &facts) << facts.word;
    }
}

TEST(DistanceUnits, ChooseTheLargerAsSoonAsADivisionIsOneOfIt) {
    EXPECT_EQ(host::UnitFor(DistanceUnit::Metric, 999.0), DistanceUnit::Metre);
    EXPECT_EQ(host::UnitFor(DistanceUnit::Metric, 1000.0), DistanceUnit::Kilometre);
    EXPECT_EQ(host::UnitFor(DistanceUnit::Imperial, 1609.0), DistanceUnit::Foot);
    EXPECT_EQ(host::UnitFor(DistanceUnit::Imperial, 1609.344), DistanceUnit::Mile);
    EXPECT_EQ(host::UnitFor(DistanceUnit::Metre, 1.0e6), DistanceUnit::Metre);
}

TEST(BarDivision, CountsCoordinatesInTheUnitThatIsAskedFor) {
    // A bar of at most 10 000 map units, which are metres.
    const BarMeasure metres = BarMeasure::OfCoordinates(1.0);
    const auto kilometres =
        host::LargestDivision(metres, DistanceUnit::Metric, 4, 10000.0).value();
    EXPECT_EQ(kilometres.unit, DistanceUnit::Kilometre);
    EXPECT_EQ(kilometres.value, 2.0);
    EXPECT_DOUBLE_EQ(kilometres.mapUnits, 2000.0);

    const auto miles =
        host::LargestDivision(metres, DistanceUnit::Mile, 3, 10000.0).value();
    EXPECT_EQ(miles.value, 2.0);
    EXPECT_DOUBLE_EQ(miles.mapUnits, 3218.688);

    // Feet over coordinates in US survey feet: 2 000 000 of one are 2 000 004 of the
    // other.
    const BarMeasure survey = BarMeasure::OfCoordinates(1200.0 / 3937.0);
    const auto feet =
        host::DivisionOfValue(survey, DistanceUnit::Foot, 2000004.0, 1, 1e9).value();
    EXPECT_NEAR(feet.mapUnits, 2000000.0, 1e-3);
}

TEST(BarDivision, IsNoneWhereNothingFits) {
    const BarMeasure metres = BarMeasure::OfCoordinates(1.0);
    EXPECT_FALSE(host::LargestDivision(metres, DistanceUnit::Metric, 4, 0.0));
    EXPECT_FALSE(host::LargestDivision(metres, DistanceUnit::Metric, 4, HUGE_VAL));
    EXPECT_FALSE(host::DivisionOfValue(metres, DistanceUnit::Metre, 100.0, 4, 399.0));
    EXPECT_TRUE(host::DivisionOfValue(metres, DistanceUnit::Metre, 100.0, 4, 400.0));
}

TEST(BarDivision, MakesTheWholeBarTrueOnTheGround) {
    // Europe on a map in degrees: the ends of a bar of 30 degrees at 50 degrees north.
    const auto ground =
        host::MapGround::Of(host_tests::Wkt(4326), {-20.0, 30.0, 40.0, 70.0}).value();
    const auto division =
        host::LargestDivision(BarMeasure::OfGround(ground), DistanceUnit::Metric, 4, 30.0)
            .value();
    EXPECT_EQ(division.unit, DistanceUnit::Kilometre);
    EXPECT_EQ(division.value, 500.0);
    // On a sphere of the Earth's mean radius, within the flattening.
    const double half = division.mapUnits * 2.0 * std::acos(-1.0) / 180.0;
    const double latitude = 50.0 * std::acos(-1.0) / 180.0;
    const double chord = std::cos(latitude) * std::sin(half);
    EXPECT_NEAR(2.0 * 6371.0 * std::asin(chord), 2000.0, 2000.0 / 298.0);
}

}  // namespace
