#include "page/map/shown_map.h"

#include <cmath>

#include "page/units.h"

namespace host {
namespace {

constexpr double kMetresPerPageUnit = 1.0 / (kUnitsPerInch * kInchesPerMetre);

// The share of a map's width over which its scale is measured without a bar.
constexpr double kSpan = 0.25;

}  // namespace

std::optional<double> ScaleOf(const ShownMap& map, double span) {
    const std::optional<MapGround> ground = MapGround::Of(map.projection, map.extent);
    if (!ground) {
        return std::nullopt;
    }
    const double asked =
        span > 0.0 ? span * map.MapUnitsPerPageUnit() : kSpan * map.extent.Width();
    const double reach = ground->Reach(asked);
    const std::optional<double> metres = ground->Metres(reach);
    if (!metres) {
        return std::nullopt;
    }
    return *metres / (reach / map.MapUnitsPerPageUnit() * kMetresPerPageUnit);
}

std::optional<Box> ExtentAtScale(const std::string& projection, const Box& around,
                                 double scale, double width, double height) {
    constexpr double kAmple = 4.0;  // times what it would be on a plane
    const std::optional<MapGround> ground = MapGround::Of(projection, around);
    if (!ground) {
        return std::nullopt;
    }
    const double metres = kSpan * width * kMetresPerPageUnit * scale;
    const double known = ground->Reach(around.Width());
    const std::optional<double> knownMetres = ground->Metres(known);
    const std::optional<double> span =
        knownMetres ? ground->MapUnits(metres, known * metres / *knownMetres * kAmple)
                    : std::nullopt;
    if (!span) {
        return std::nullopt;
    }
    const double halfWidth = *span / kSpan / 2.0;
    const double halfHeight = halfWidth * height / width;
    return Box{around.MiddleX() - halfWidth, around.MiddleY() - halfHeight,
               around.MiddleX() + halfWidth, around.MiddleY() + halfHeight};
}

DistanceUnit UsualUnit(const std::string& projection, BarDistances distances) {
    constexpr double kLongestFoot = 0.306;  // metres; the shortest yard is three
    constexpr double kShortestFoot = 0.304;
    const CoordinateUnit unit = UnitOf(projection);
    if (distances != BarDistances::Ground && unit.kind != CoordinateUnit::Kind::Length) {
        return unit.kind == CoordinateUnit::Kind::Angle ? DistanceUnit::Degree
                                                        : DistanceUnit::Coordinate;
    }
    const bool isFoot = unit.kind == CoordinateUnit::Kind::Length &&
                        unit.size > kShortestFoot && unit.size < kLongestFoot;
    return isFoot ? DistanceUnit::Imperial : DistanceUnit::Metric;
}

std::optional<BarMeasure> MeasureFor(const ShownMap& map, BarDistances distances,
                                     DistanceUnit unit, std::string& why) {
    if (unit == DistanceUnit::Coordinate) {
        return BarMeasure::OfCoordinates(1.0);
    }
    if (IsLength(unit) && distances == BarDistances::Ground) {
        std::optional<MapGround> ground = MapGround::Of(map.projection, map.extent);
        if (!ground) {
            why = map.projection.empty()
                      ? "the map has no coordinate system"
                      : "the map's coordinate system does not reach its middle";
            return std::nullopt;
        }
        return BarMeasure::OfGround(*std::move(ground));
    }
    const CoordinateUnit own = UnitOf(map.projection);
    const auto kind =
        IsLength(unit) ? CoordinateUnit::Kind::Length : CoordinateUnit::Kind::Angle;
    if (own.kind != kind) {
        why = own.kind == CoordinateUnit::Kind::Unknown
                  ? "the unit of the map's coordinates is unknown"
                  : "the map's coordinates are in " + own.name + "s";
        return std::nullopt;
    }
    return BarMeasure::OfCoordinates(own.size);
}

}  // namespace host
