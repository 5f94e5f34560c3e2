#include "true_pages/random_page.h"

#include <cmath>
#include <iterator>
#include <optional>
#include <random>

#include "page/catalogue.h"
#include "raster_data/make_raster.h"
#include "system/number_text.h"
#include "true_pages/earth.h"

namespace true_pages {
namespace {

/// A coordinate system, and where maps in it are made.
struct System {
    const char* name;
    double west;
    double south;
    double east;
    double north;
    double widest;  ///< metres on the ground, about
};

// One at least of each kind; areas keep clear of where a projection ends.
constexpr System kSystems[] = {
    {"EPSG:32633", 12.0, 1.0, 18.0, 80.0, 3e5},       // UTM
    {"EPSG:32725", -36.0, -79.0, -30.0, -1.0, 3e5},   // UTM, south
    {"EPSG:3395", -170.0, -75.0, 170.0, 75.0, 2e6},   // Mercator
    {"EPSG:3857", -170.0, -75.0, 170.0, 75.0, 2e6},   // Web Mercator
    {"EPSG:2154", -4.0, 42.0, 9.0, 51.0, 5e5},        // Lambert conformal conic
    {"EPSG:5070", -120.0, 26.0, -72.0, 48.0, 1e6},    // Albers
    {"EPSG:3413", -180.0, 62.0, 180.0, 88.0, 1e6},    // polar stereographic
    {"EPSG:3031", -180.0, -88.0, 180.0, -62.0, 1e6},  // the same, south
    {"EPSG:3035", -8.0, 37.0, 38.0, 68.0, 1e6},       // azimuthal equal area
    {"EPSG:4326", -170.0, -78.0, 170.0, 78.0, 2e6},   // degrees
    {"EPSG:4269", -160.0, 10.0, -60.0, 70.0, 1e6},    // degrees, another ellipsoid
    {"EPSG:2263", -74.3, 40.5, -71.8, 41.3, 3e4},     // US survey feet
    {"EPSG:2222", -114.5, 31.5, -113.0, 36.5, 1e5},   // feet
    {"EPSG:3375", 99.7, 1.3, 104.5, 6.7, 2e5},        // oblique Mercator
    {"EPSG:2056", 6.1, 45.9, 10.3, 47.7, 2e5},        // oblique Mercator, Swiss
};

constexpr const char* kSheets[] = {"A6", "A5", "A4", "A3", "Letter", "297x140"};
constexpr const char* kUnits[] = {"metric", "imperial", "m",  "km", "ft",
                                  "us-ft",  "yd",       "mi", "nmi"};
constexpr int kResolutions[] = {96, 100, 150, 200, 300};

class Chance {
public:
    explicit Chance(std::uint32_t seed) : m_engine(seed) {}

    // Not the standard distributions, which differ from library to library.
    double Between(double low, double high) {
        return low + (high - low) * (static_cast<double>(m_engine()) / 4294967296.0);
    }
    double Magnitude(double low, double high) {
        return std::exp(Between(std::log(low), std::log(high)));
    }
    int Whole(int low, int high) {
        return low + static_cast<int>(Between(0.0, high - low + 1.0));
    }
    bool Happens(double probability) { return Between(0.0, 1.0) < probability; }
    template <class List>
    auto OneOf(const List& list) {
        return list[static_cast<std::size_t>(
            Whole(0, static_cast<int>(std::size(list)) - 1))];
    }

private:
    std::mt19937 m_engine;
};

/// A box of about so many metres around a place, in the units of the map.
std::optional<host::Box> BoxAround(const Earth& earth, const Earth::Place& place,
                                   double metres, double aspectRatio) {
    const auto middle = earth.Drawn(place);
    if (!middle) {
        return std::nullopt;
    }
    const auto length =
        earth.Distance({middle->x - 1e-3, middle->y}, {middle->x + 1e-3, middle->y});
    if (!length || !(*length > 0.0)) {
        return std::nullopt;
    }
    const double width = metres / *length * 2e-3;
    const double height = width / aspectRatio;
    return host::Box{middle->x - width / 2.0, middle->y - height / 2.0,
                     middle->x + width / 2.0, middle->y + height / 2.0};
}

/// Grey values that grow from left to right, or strips of classes.
void WriteRaster(const RandomPage& page) {
    constexpr int kColumns = 64;
    constexpr int kRows = 16;
    constexpr int kClasses = static_cast<int>(std::size(kClassColours));
    raster_test::Raster raster{kColumns, {{}}, page.isGrey ? GDT_Float32 : GDT_Byte};
    for (int i = 0; i < kColumns * kRows; ++i) {
        const int column = i % kColumns;
        const double part = column / (kColumns - 1.0);
        raster.bands[0].push_back(page.isGrey ? page.low + part * (page.high - page.low)
                                              : 1 + column * kClasses / kColumns);
    }
    raster_test::Palette colours;
    for (int i = 0; i < kClasses; ++i) {
        colours.emplace_back(i + 1, raster_test::EntryOf(0xFF000000 | kClassColours[i]));
    }
    raster.describe = [&](GDALRasterBand& band) {
        raster_test::Placed({page.extent.left, page.extent.Width() / kColumns, 0.0,
                             page.extent.top, 0.0, -page.extent.Height() / kRows},
                            page.system)(band);
        if (!page.isGrey) {
            raster_test::Coloured(colours)(band);
        }
    };
    raster_test::Write(page.raster, raster);
}

/// A part of an extent, half of it or more, all around a place somewhere in it.
host::Box PartOf(const host::Box& extent, Chance& chance) {
    const double width = extent.Width() * chance.Between(0.5, 0.9);
    const double height = extent.Height() * chance.Between(0.5, 0.9);
    const double left = chance.Between(extent.left, extent.left + extent.Width() - width);
    const double bottom =
        chance.Between(extent.bottom, extent.bottom + extent.Height() - height);
    return {left, bottom, left + width, bottom + height};
}

std::string Text(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.0f", value);
    return buffer;
}

}  // namespace

RandomPage MakeRandomPage(std::uint32_t seed, const std::string& folder) {
    Chance chance(seed);
    RandomPage page;
    const System& system = chance.OneOf(kSystems);
    page.system = system.name;
    const Earth earth(system.name);
    const double metres = chance.Magnitude(500.0, system.widest);
    std::optional<host::Box> box;
    for (int i = 0; i < 50 && !box; ++i) {
        const Earth::Place place = {chance.Between(system.west, system.east),
                                    chance.Between(system.south, system.north)};
        box = BoxAround(earth, place, metres, chance.Magnitude(0.4, 2.5));
    }
    page.extent = box.value_or(host::Box{});
    page.isGrey = chance.Happens(0.5);
    page.low = std::round(chance.Between(-500.0, 500.0));
    page.high = page.low + std::round(chance.Between(50.0, 4000.0));
    page.raster = folder + "/map.tif";
    WriteRaster(page);

    page.dpi = chance.OneOf(kResolutions);
    const auto styles = host::StylesOf(SurroundScaleBar);
    const auto arrows = host::StylesOf(SurroundNorthArrow);
    const auto add = [&](const char* option, const std::string& value) {
        page.arguments.insert(page.arguments.end(), {option, value});
    };
    page.arguments = {page.raster, "--numeric-scale", "--border",
                      "off",       "--shadow",        "off"};
    add("--size", chance.OneOf(kSheets));
    add("--dpi", Text(page.dpi));
    add("--units", chance.OneOf(kUnits));
    add("--scale-bar", chance.OneOf(styles)->Style());
    add("--divisions", Text(chance.Whole(1, 8)));
    add("--north-arrow", chance.OneOf(arrows)->Style());
    if (chance.Happens(0.4)) {
        page.arguments.emplace_back("--portrait");
    }
    page.shown = page.extent;
    if (chance.Happens(0.3)) {
        page.shown = PartOf(page.extent, chance);
        page.arguments.emplace_back("--extent");
        for (const double side :
             {page.shown.left, page.shown.bottom, page.shown.right, page.shown.top}) {
            page.arguments.push_back(host::NumberText(side));
        }
    }
    if (chance.Happens(0.3)) {
        // As large as the map is on about 100 mm, so that most of it is shown.
        page.scale = std::round(metres / 0.1 / 1000.0 + 1.0) * 1000.0;
        add("--scale", "1:" + Text(page.scale));
    }
    return page;
}

}  // namespace true_pages
