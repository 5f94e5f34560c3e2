// Draws random pages with map_page and reads back from the pixels what they say: the
// length of the bar, the numeric scale, the turn of the north arrow, the colours.

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "given.h"
#include "map_page/run_map_page.h"
#include "true_pages/earth.h"
#include "true_pages/page_reading.h"
#include "true_pages/picture.h"
#include "true_pages/printed_page.h"
#include "true_pages/random_page.h"
#include "true_pages/turn.h"

namespace {

using host_tests::Arguments;
using host_tests::Given;
using true_pages::Area;
using true_pages::Earth;
using true_pages::Picture;
using true_pages::Pixel;
using true_pages::RandomPage;
using true_pages::TurnBetween;
using true_pages::WrittenPage;

constexpr Pixel kInk = {0x1E, 0x28, 0x32};
constexpr double kInch = 0.0254;  // metres
const std::map<std::string, double> kMetres = {
    {"m", 1.0},     {"km", 1000.0},   {"ft", 0.3048},  {"US ft", 1200.0 / 3937.0},
    {"yd", 0.9144}, {"mi", 1609.344}, {"nmi", 1852.0},
};
// Ratios that a page may be off by, beyond a pixel.
constexpr double kTrue = 0.001;

/// A page on paper and what it was drawn from.
struct DrawnPage {
    const RandomPage& asked;
    const WrittenPage& written;
    const Picture& picture;
    Earth earth = Earth(asked.system);
    Area map = written.FrameOf(*written.Find("map"));      ///< its frame
    double width = written.WidthOf(*written.Find("map"));  ///< and that on paper

    /// Map units in a pixel of the map.
    double MapUnitsPerPixel() const { return Shown().Width() / (map.right - map.left); }

    /// The part of the map that is shown: all of it, or at a scale what the frame holds
    /// of it. A scale is measured over a quarter of the frame.
    host::Box Shown() const {
        if (!(asked.scale > 0.0)) {
            return asked.shown;
        }
        const double metres = width / 4.0 / asked.dpi * kInch * asked.scale;
        const double x = asked.shown.MiddleX();
        const double y = asked.shown.MiddleY();
        double less = 0.0;
        double more = asked.extent.Width() * 2.0;  // farther, the way around is shorter
        for (int i = 0; i < 100; ++i) {
            const double span = (less + more) / 2.0;
            const auto length = earth.Distance({x - span / 2.0, y}, {x + span / 2.0, y});
            (length && *length < metres ? less : more) = span;
        }
        const double half = more * 2.0;
        const double halfHeight = half * (map.bottom - map.top) / width;
        return {x - half, y - halfHeight, x + half, y + halfHeight};
    }

    /// The metres under so many pixels in the middle of the map as it is on paper: its
    /// frame ends with a pixel.
    std::optional<double> Metres(double pixels) const {
        const host::Box shown = Shown();
        const double half = pixels * shown.Width() / width / 2.0;
        return earth.Distance({shown.MiddleX() - half, shown.MiddleY()},
                              {shown.MiddleX() + half, shown.MiddleY()});
    }
};

/// What a bar's texts say: the largest number, and what it counts in metres.
struct BarTexts {
    double total = 0.0;
    double unit = 0.0;
};

std::optional<BarTexts> ReadBarTexts(const std::vector<std::string>& texts) {
    BarTexts read;
    for (const std::string& text : texts) {
        char* end = nullptr;
        const double number = std::strtod(text.c_str(), &end);
        if (*end == '\0' && end != text.c_str()) {
            read.total = std::fmax(read.total, number);
            continue;
        }
        const auto unit = kMetres.find(text);
        read.unit = unit == kMetres.end() ? read.unit : unit->second;
    }
    return read.total > 0.0 && read.unit > 0.0 ? std::optional<BarTexts>(read)
                                               : std::nullopt;
}

/// Whether a bar has ticks, or boxes.
bool HasTicks(const nlohmann::json& bar) {
    return bar["type"].get<std::string>().find("alternating") == std::string::npos;
}

/// The pixels between the ends of a bar: of the ticks at the ends of its longest level
/// line. Without ticks, that line reaches half a pen further at each end, and the pen is
/// as wide as the line is thick, or as a page unit where all boxes are filled.
double BarPixels(const DrawnPage& page, const nlohmann::json& bar) {
    const Area frame = page.written.FrameOf(bar);
    const true_pages::Run run = LongestRun(page.picture, frame, kInk, 90);
    // A narrow box at the end is no tick.
    const double ticks =
        HasTicks(bar) ? BetweenEndTicks(page.picture, frame, run, kInk, 90) : 0.0;
    if (ticks > 0.0) {
        return ticks;
    }
    int pen = std::max(1, static_cast<int>(std::lround(page.asked.dpi / 96.0)));
    for (int x = run.first; x < run.end; ++x) {
        int top = run.y;
        int bottom = run.y;
        while (IsNear(page.picture.At(x, top - 1), kInk, 90)) {
            --top;
        }
        while (IsNear(page.picture.At(x, bottom + 1), kInk, 90)) {
            ++bottom;
        }
        pen = std::min(pen, bottom + 1 - top);
    }
    return run.Length() - pen;
}

void CheckBar(const DrawnPage& page) {
    const nlohmann::json* const bar = page.written.Find("scale-bar-");
    if (bar == nullptr) {
        return;
    }
    const auto texts = ReadBarTexts(page.written.TextsOf(*bar));
    ASSERT_TRUE(texts.has_value());
    const double said = texts->total * texts->unit;
    const double pixels = BarPixels(page, *bar);
    const std::optional<double> metres = page.Metres(pixels);
    ASSERT_TRUE(metres.has_value());
    // One pixel, and what its edges, which are not smoothed, leave open: each end of a
    // row of boxes may lose a pixel of its outline.
    const bool hasTicks = HasTicks(*bar);
    const double pixel = *metres / pixels * (hasTicks ? 1.25 : 2.0);
    EXPECT_NEAR(*metres, said, pixel + kTrue * said)
        << "the bar is " << pixels << " pixels long and says " << texts->total;

    const nlohmann::json* const scale = page.written.Find("numeric-scale");
    if (scale == nullptr) {
        return;
    }
    std::string digits;
    for (const char c : page.written.TextsOf(*scale).at(0).substr(1)) {
        digits += c >= '0' && c <= '9' ? std::string(1, c) : "";
    }
    const double denominator = std::strtod(digits.c_str(), nullptr);
    const double onPaper = pixels * kInch / page.asked.dpi;
    EXPECT_NEAR(denominator, said / onPaper,
                denominator * ((hasTicks ? 1.25 : 2.0) / pixels + kTrue) + 0.5);
    if (page.asked.scale > 0.0) {
        EXPECT_EQ(denominator, page.asked.scale);
    }
}

/// Draws a page with map_page.
host_tests::Result Draw(const Arguments& arguments) {
    const ScratchFolder scratch;
    const host_tests::Result result = host_tests::RunMapPage(scratch, arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    return result;
}

/// An arrow of a page and the same pointing up, on a sheet of their own, at a resolution.
class Arrows {
public:
    Arrows(const WrittenPage& page, const nlohmann::json& arrow,
           const std::string& folder, double dpi)
        : m_radius(arrow["size"].get<double>() * dpi / 96.0 / 2.0),
          m_angle(arrow["angle"]) {
        const std::string file = folder + "arrows.json";
        const std::string image = folder + "arrows.png";
        page.WriteArrows(arrow, file);
        Draw({file, "--dpi", std::to_string(dpi), "-o", image});
        m_written.emplace(file, dpi);
        m_picture.emplace(image);
    }

    double Radius() const { return m_radius; }

    /// The degrees by which an arrow of this size on a page is turned.
    double TurnOf(const Picture& picture, const WrittenPage& page) const {
        return TurnBetween(DrawingOf(*m_picture, *m_written, *m_written->Last()),
                           DrawingOf(picture, page, *page.Find("north-arrow-")), m_radius,
                           m_angle);
    }
    double Turn() const { return TurnOf(*m_picture, *m_written); }

private:
    static true_pages::Drawing DrawingOf(const Picture& picture, const WrittenPage& page,
                                         const nlohmann::json& arrow) {
        const auto [x, y] = page.CentreOf(arrow);
        return {picture, page.FrameOf(arrow), x, y};
    }

    double m_radius;
    double m_angle;
    std::optional<WrittenPage> m_written;
    std::optional<Picture> m_picture;
};

void CheckArrow(const DrawnPage& page, const std::string& folder) {
    const nlohmann::json* const arrow = page.written.Find("north-arrow-");
    if (arrow == nullptr) {
        return;
    }
    const host::Box shown = page.Shown();
    const auto north = page.earth.North({shown.MiddleX(), shown.MiddleY()});
    ASSERT_TRUE(north.has_value());
    const auto off = [&](double degrees) {
        return std::remainder(degrees - *north, 360.0);
    };
    EXPECT_NEAR(off((*arrow)["angle"]), 0.0, 0.01);

    // Pens and letters move by up to two pixels as they are turned, which is more than is
    // allowed for a small arrow: that one is measured larger as well.
    constexpr double kLarge = 150.0;  // pixels from its middle to its tip
    constexpr double kAllowed = 0.5;
    const Arrows arrows(page.written, *arrow, folder, page.asked.dpi);
    const double radius = arrows.Radius();
    const bool isLarge = radius >= kLarge;
    const double pixel = isLarge ? 0.0 : 2.0 / radius * 180.0 / std::acos(-1.0);
    const double turn = arrows.TurnOf(page.picture, page.written);
    EXPECT_NEAR(off(turn), 0.0, kAllowed + pixel)
        << "true north is " << *north << ", the arrow is turned by " << turn;
    if (!isLarge) {
        const double large =
            Arrows(page.written, *arrow, folder, page.asked.dpi * kLarge / radius).Turn();
        EXPECT_NEAR(off(large), 0.0, kAllowed)
            << "true north is " << *north << ", the arrow is turned by " << large;
    }
}

/// Where a pixel of the map lies in the raster, from 0 at its left to 1 at its right.
double PartOfRaster(const DrawnPage& page, int pixel) {
    const host::Box shown = page.Shown();
    const double x = shown.left + (pixel + 0.5) * page.MapUnitsPerPixel();
    return (x - page.asked.extent.left) / page.asked.extent.Width();
}

/// The ramp of a legend's greys: its pixels from the top, each with its grey. The stem of
/// a letter goes from white to black, too, but in steps that no ramp of four rows has.
std::vector<int> RampIn(const Picture& picture, const Area& legend) {
    constexpr int kLargestStep = 100;
    std::vector<int> longest;
    for (int x = legend.left; x < legend.right; ++x) {
        std::vector<int> ramp;
        for (int y = legend.top; y < legend.bottom; ++y) {
            const Pixel pixel = picture.At(x, y);
            const bool isGrey = pixel.red == pixel.green && pixel.green == pixel.blue;
            const int step = ramp.empty() ? 0 : ramp.back() - pixel.red;
            if (!isGrey || step < 0 || step > kLargestStep) {
                ramp.clear();
            }
            if (isGrey) {
                ramp.push_back(pixel.red);
            }
            if (!ramp.empty() && ramp.front() - ramp.back() > 200 &&
                ramp.size() > longest.size()) {
                longest = ramp;
            }
        }
    }
    return longest;
}

void CheckColours(const DrawnPage& page) {
    const Area& map = page.map;
    const nlohmann::json* const legend = page.written.Find("legend");
    ASSERT_NE(legend, nullptr);
    const Area inLegend = page.written.FrameOf(*legend);
    const int middle = (map.top + map.bottom) / 2;
    constexpr int kColumns = 64;
    for (int i = 1; i < 8; ++i) {
        const int pixel = (map.right - map.left) * i / 8;
        const double part = PartOfRaster(page, pixel);
        const int column = static_cast<int>(part * kColumns);
        // Nearer to an edge of the raster's pixel than this, another may be drawn.
        const double within = part * kColumns - column;
        if (part < 0.0 || part >= 1.0 || within < 0.1 || within > 0.9) {
            continue;
        }
        const Pixel drawn = page.picture.At(map.left + pixel, middle);
        if (page.asked.isGrey) {
            // From low to high, column by column: black to white.
            const double grey = 255.0 * column / (kColumns - 1.0);
            EXPECT_TRUE(drawn.red == drawn.green && drawn.green == drawn.blue);
            EXPECT_NEAR(drawn.red, grey, 1.5) << "column " << column;
            continue;
        }
        const std::uint32_t colour = true_pages::kClassColours[column * 4 / kColumns];
        const Pixel expected = {static_cast<int>(colour >> 16 & 0xFF),
                                static_cast<int>(colour >> 8 & 0xFF),
                                static_cast<int>(colour & 0xFF)};
        EXPECT_TRUE(IsNear(drawn, expected, 0)) << "column " << column;
        EXPECT_GT(LongestRun(page.picture, inLegend, expected, 0).Length(), 2)
            << "no swatch of class " << column * 4 / kColumns;
    }
    if (page.asked.isGrey) {
        const std::vector<int> ramp = RampIn(page.picture, inLegend);
        ASSERT_GT(ramp.size(), 3u) << "no ramp";
        EXPECT_GE(ramp.front(), 255 - 3 * 255 / static_cast<int>(ramp.size()) - 4);
        EXPECT_LE(ramp.back(), 3 * 255 / static_cast<int>(ramp.size()) + 4);
        const std::vector<std::string> texts = page.written.TextsOf(*legend);
        for (const double value : {page.asked.low, page.asked.high}) {
            EXPECT_THAT(texts, ::testing::Contains(::testing::EndsWith(
                                   std::to_string(std::lround(value)))));
        }
    }
}

/// The pages that say what is not so stay there, with their rasters, to be looked at.
/// @param isPrinted whether it is drawn as PDF, too
void TryPage(std::uint32_t seed, bool isPrinted) {
    const std::string folder = TRUE_PAGES_FOLDER "/" + std::to_string(seed) + "/";
    std::filesystem::create_directories(folder);
    const RandomPage asked = true_pages::MakeRandomPage(seed, folder);
    std::string command = "page " + std::to_string(seed) + ": map_page";
    for (const std::string& argument : asked.arguments) {
        command += " " + argument;
    }
    SCOPED_TRACE(command);
    const host_tests::Result drawn =
        Draw(asked.arguments +
             Arguments{"-o", folder + "page.png", "--save", folder + "page.json"});
    // What is small on a small sheet is told; the layout lays nothing over another.
    for (const char* const place : {" lies ", " leaves ", " covered "}) {
        EXPECT_EQ(drawn.err.find(place), std::string::npos) << drawn.err;
    }
    if (drawn.status != 0) {
        return;
    }
    const WrittenPage written(folder + "page.json", asked.dpi);
    const Picture picture(folder + "page.png");
    const DrawnPage page{asked, written, picture};
    CheckBar(page);
    CheckArrow(page, folder);
    CheckColours(page);
    if (isPrinted) {
        const std::string file = folder + "page.pdf";
        ASSERT_EQ(Draw(asked.arguments + Arguments{"-o", file}).status, 0);
        true_pages::CheckPrint(file, asked.dpi, picture);
    }
}

/// A tenth of the pages each, so that they can be tried beside one another.
class TruePages : public ::testing::TestWithParam<std::uint32_t> {};

constexpr std::uint32_t kParts = 10;

TEST_P(TruePages, SayWhatIsSo) {
    const std::uint32_t first = Given("TRUE_PAGES_FIRST", 0);
    const std::uint32_t count = Given("TRUE_PAGES", 40);
    const bool printsAll = Given("TRUE_PAGES_PRINT", 0) != 0;  // else a tenth of them
    const auto failures = [] {
        return ::testing::UnitTest::GetInstance()
            ->current_test_info()
            ->result()
            ->total_part_count();
    };
    for (std::uint32_t seed = first + GetParam(); seed < first + count; seed += kParts) {
        const int before = failures();
        TryPage(seed, GetParam() == 0 || printsAll);
        if (failures() == before) {
            std::filesystem::remove_all(TRUE_PAGES_FOLDER "/" + std::to_string(seed));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Part, TruePages, ::testing::Range(std::uint32_t{0}, kParts));

}  // namespace
