#include "map_page/map_options.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "map_page/values.h"
#include "page/map/distance_unit.h"
#include "system/number_text.h"

namespace map_page {
namespace {

constexpr const char* kTrueNorth = "true";
constexpr const char* kMap = "Map";
constexpr const char* kScaleBar = "Scale bar";
constexpr std::string_view kOneTo = "1:";

/// The denominator of "1:25000" or "25000"; nothing for any other text.
std::optional<double> ScaleIn(const std::string& text) {
    constexpr double kLargest = 1.0e12;
    const bool hasOne = text.compare(0, kOneTo.size(), kOneTo) == 0;
    const std::string_view digits =
        std::string_view(text).substr(hasOne ? kOneTo.size() : 0);
    double scale = 0.0;
    const bool isScale =
        host::ParseNumber(digits, scale) && scale >= 1.0 && scale <= kLargest;
    return isScale ? std::optional<double>(scale) : std::nullopt;
}

CLI::Validator IsScale() {
    return {[](std::string& text) -> std::string {
                return ScaleIn(text) ? "" : text + " is not a scale such as 1:25000";
            },
            ""};
}

std::string UnitsHelp() {
    std::string help = "Unit of the bar:";
    for (const host::DistanceUnitFacts& facts : host::DistanceUnits()) {
        help += std::string("\n") + facts.word + ": " + facts.about;
    }
    return help + "\n(metric; imperial where the coordinates are feet)";
}

}  // namespace

void DeclareMap(CLI::App& app, Options& options) {
    host::MapDesign& map = options.design.map;
    app.add_option_function<std::vector<double>>(
           "--extent",
           [&map](const std::vector<double>& sides) {
               map.extent = host::Box{sides[0], sides[1], sides[2], sides[3]};
           },
           "The part to show, in map coordinates (all of it)")
        ->expected(4)
        ->type_name("LEFT BOTTOM RIGHT TOP")
        ->group(kMap);
    app.add_option_function<std::string>(
           "--scale", [&map](const std::string& given) { map.scale = ScaleIn(given); },
           "1:25000: the scale on paper (as large as fits)")
        ->check(IsScale())
        ->type_name("1:N")
        ->group(kMap);
}

void DeclareScaleBar(CLI::App& app, Options& options) {
    host::ScaleBarDesign& bar = options.design.scaleBar;
    AddChoice(app, kScaleBar, "--scale-bar", bar.style, "STYLE", Styles(SurroundScaleBar),
              "Style " + UsualStyle(SurroundScaleBar));
    AddOption(app, kScaleBar, "--divisions", bar.divisions, "COUNT",
              "Main divisions (4, or as many as fit)")
        ->check(CLI::Range(1, 100, "1 to 100"));
    AddOption(app, kScaleBar, "--subdivisions", bar.subdivisions, "COUNT",
              "Ticks or boxes within a division (2)")
        ->check(CLI::Range(0, 100, "0 to 100"));
    AddChoice(app, kScaleBar, "--units", bar.unit, "UNIT",
              ChoicesOfBars<host::DistanceUnit>("unit"), UnitsHelp());
    app.add_option_function<std::string>(
           "--unit-name",
           [&bar](const std::string& given) {
               bar.unitName = ReadText("--unit-name", given);
           },
           "The name of the unit on the page (its symbol); converts nothing")
        ->type_name("TEXT")
        ->group(kScaleBar);
    AddChoice(app, kScaleBar, "--unit-position", bar.unitPosition, "WHERE",
              ChoicesOfBars<ScaleBarPostion>("unitPosition"),
              "The unit beside the numbers (after)");
    const Words<host::BarDistances> distances = {{"ground", host::BarDistances::Ground},
                                                 {"map", host::BarDistances::Map}};
    AddChoice(app, kScaleBar, "--distances", bar.distances, "WHAT", distances,
              "What is measured: the ground in the middle of the map, along the "
              "ellipsoid, or the map's coordinates (ground)");
    AddChoice(app, kScaleBar, "--fit", bar.fit, "WHAT",
              ChoicesOfBars<host::BarFit>("fit"),
              "What it keeps when a page file gets another map: the number of its\n"
              "divisions, its width, or the value of one (count)");
    app.add_flag("--numeric-scale", bar.numeric, "Write the scale in figures, too")
        ->group(kScaleBar);
}

void DeclareNorthArrow(CLI::App& app, Options& options) {
    host::NorthArrowDesign& arrow = options.design.northArrow;
    AddChoice(app, "North arrow", "--north-arrow", arrow.style, "STYLE",
              Styles(SurroundNorthArrow), "Style " + UsualStyle(SurroundNorthArrow));
    const auto turn = [&arrow](const std::string& given) {
        double angle = 0.0;
        arrow.angle =
            host::ParseNumber(given, angle) ? std::optional<double>(angle) : std::nullopt;
    };
    app.add_option_function<std::string>(
           "--north-angle", turn,
           "Degrees clockwise, or towards true north in the middle of the map (true)")
        ->check((NumberIn(-360.0, 360.0) | CLI::IsMember({kTrueNorth}))
                    .description("-360 to 360, or true"))
        ->type_name("DEGREES")
        ->group("North arrow");
}

}  // namespace map_page
