// Where the pixels of a page lie: what GDAL says of the file, beside what the page shows.

#include <gdal_priv.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "map_page/page_file_folder.h"
#include "page/output/world_file.h"
#include "true_pages/picture.h"

namespace {

using host_tests::Arguments;
using ::testing::HasSubstr;

using Opened = std::unique_ptr<GDALDataset>;

Opened Open(const std::string& path) {
    GDALAllRegister();
    return Opened(GDALDataset::Open(path.c_str(), GDAL_OF_RASTER));
}

/// Around the pixels that are blue.
true_pages::Area BluePart(const true_pages::Picture& page) {
    true_pages::Area part = {page.Width(), page.Height(), 0, 0};
    for (int y = 0; y < page.Height(); ++y) {
        for (int x = 0; x < page.Width(); ++x) {
            const true_pages::Pixel pixel = page.At(x, y);
            if (pixel.blue > pixel.red + 60) {
                part = {std::min(part.left, x), std::min(part.top, y),
                        std::max(part.right, x + 1), std::max(part.bottom, y + 1)};
            }
        }
    }
    return part;
}

class Georeference : public host_tests::PageFileTest {
protected:
    /// A raster of which the first pixel alone is blue.
    void WriteMap(const std::string& name, double x, double y, double across, double down,
                  const std::string& projection) const {
        MadeRaster map;
        map.width = 12;
        map.transform = {x, across, 0.0, y, 0.0, down};
        map.projection = projection;
        WriteRaster(folder.Path(name), map);
    }

    /// A page of two maps.
    void WriteTwoMaps(const std::string& name) const {
        const std::string map =
            R"({"type": "map", "rasters": ["map.tif"], "frame": {"left": 9, "top": 99, )"
            R"("width": 90, "height": 90}})";
        Write(name, R"({"version": 2, "width": 400, "height": 300, "elements": [)" + map +
                        "," + map + "]}");
    }
};

TEST_F(Georeference, IsThatOfWhatThePageShows) {
    const std::array<double, 4> metres = {500000.0, 9000000.0, 450.0, -450.0};
    const std::array<double, 4> degrees = {10.25, 48.5, 0.002, -0.002};
    const Arguments world = "--world-file --dpi 96";
    const struct {
        const char* output;
        Arguments options;
        std::array<double, 4> map;  ///< of its first pixel: x, y, across, down
        const char* projection;
    } rows[] = {
        {"page.tif", "--dpi 96", metres, "EPSG:32725"},
        {"page.tif", "--portrait --size A5 --dpi 100", degrees, "EPSG:4326"},
        {"page.tif", "--dpi 96", {-500.0, -800.0, 2.0, 3.0}, "EPSG:2193"},
        {"page.tif", "--dpi 96", metres, ""},
        {"page.png", world, metres, "EPSG:32725"},
        {"page.png", world, degrees, "EPSG:4326"},
        {"page.jpeg", world, {1500000.0, 5400000.0, 10.0, -10.0}, "EPSG:2193"},
        {"page.png", world, metres, ""},
        {"page.pdf", {}, metres, "EPSG:32725"},
        {"page.pdf", "--portrait", degrees, "EPSG:4326"},
        {"page.pdf", "--size A5", {600000.0, 2200000.0, 9.0, -9.0}, "EPSG:27572"},
    };
    for (const auto& row : rows) {
        const auto& [x, y, across, down] = row.map;
        WriteMap("map.tif", x, y, across, down, row.projection);
        RunWell(Arguments{"map.tif", "--no-legend", "-o", row.output} + row.options);
        const Opened page = Open(folder.Path(row.output));
        ASSERT_NE(page, nullptr);
        std::array<double, 6> transform{};
        ASSERT_EQ(page->GetGeoTransform(transform.data()), CE_None) << row.output;
        const true_pages::Area blue =
            BluePart(true_pages::Picture(folder.Path(row.output)));
        ASSERT_GT(blue.right, blue.left) << row.output;
        // One that is stored from the south begins below.
        const double top = std::max(y, y + down);
        const double pixel = transform[1];
        // The border covers where it begins. Colours run over by a pixel in a JPEG, and
        // what renders a PDF makes whole pixels of its page's height.
        const std::string output = row.output;
        const bool isExact = output == "page.tif" || output == "page.png";
        const double begins = pixel * (isExact ? 1.02 : 2.02);
        const double ends = begins - pixel / 2.0;
        EXPECT_NEAR(transform[0] + blue.left * pixel, x, begins);
        EXPECT_NEAR(transform[3] + blue.top * transform[5], top, begins);
        EXPECT_NEAR(transform[0] + blue.right * pixel, x + across, ends);
        EXPECT_NEAR(transform[3] + blue.bottom * transform[5], top - std::abs(down),
                    ends);
        const OGRSpatialReference* const system = page->GetSpatialRef();
        ASSERT_EQ(system != nullptr, row.projection[0] != '\0') << row.projection;
        if (system != nullptr) {
            OGRSpatialReference expected;
            expected.SetFromUserInput(row.projection);
            expected.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
            EXPECT_TRUE(system->IsSame(&expected)) << row.output << row.projection;
        }
    }
}

TEST(WorldFile, BeginsInTheMiddleOfTheFirstPixel) {
    EXPECT_EQ(host::WorldText({{497000.0, 30.0, 0.0, 9001500.0, 0.0, -30.0}, {}}),
              "30\n0\n0\n-30\n497015\n9001485\n");
    EXPECT_EQ(host::WorldText({{0.25, 0.5, 2.0, 8.0, 4.0, -1.0}, {}}),
              "0.5\n4\n2\n-1\n1.5\n9.5\n");
}

TEST_F(Georeference, OfAPdfIsThatOfEveryMap) {
    WriteMap("map.tif", 500000.0, 9000000.0, 450.0, -450.0, "EPSG:32725");
    WriteMap("nowhere.tif", 500000.0, 9000000.0, 450.0, -450.0, "");
    WriteTwoMaps("two.json");
    const std::pair<const char*, int> rows[] = {
        {"map.tif", 1}, {"two.json", 2}, {"nowhere.tif", 0}};
    for (const auto& [input, count] : rows) {
        RunWell({input, "-o", "page.pdf"});
        EXPECT_EQ(host_tests::Said("qpdf --qdf --object-streams=disable " +
                                   folder.Path("page.pdf") +
                                   " - | grep -ac '/Type /Viewport' || true"),
                  std::to_string(count) + "\n")
            << input;
    }
}

TEST_F(Georeference, IsLeftOutWhereThePageHasNoMapOrSeveral) {
    WriteMap("map.tif", 500000.0, 9000000.0, 450.0, -450.0, "EPSG:32725");
    WriteRaster(folder.Path("plain.tif"), {});
    WriteTwoMaps("two.json");
    for (const char* input : {"plain.tif", "two.json"}) {
        RunWell({input, "-o", "page.tif"});
        std::array<double, 6> transform{};
        EXPECT_EQ(Open(folder.Path("page.tif"))->GetGeoTransform(transform.data()),
                  CE_Failure)
            << input;
    }
    const struct {
        const char* input;
        const char* output;
        int status;
        const char* why;
    } rows[] = {
        {"plain.tif", "a.png", 1, "--world-file: the page's map has no coordinates"},
        {"two.json", "a.png", 1, "--world-file: the page has 2 maps"},
        {"map.tif", "a.tif", 2, "--world-file: needs an output in .png or .jpg"},
        {"map.tif", "a.pdf", 2, "--world-file: needs an output in .png or .jpg"},
        {"own.jpg", "own.jpeg", 1, "own.jgw: would replace "},
    };
    RunWell("map.tif -o own.jpg --world-file");
    EXPECT_THAT(Run("map.tif -o own.jpg").err,
                HasSubstr("own.jgw is not of this page; --world-file renews it"));
    for (const auto& row : rows) {
        const host_tests::Result result =
            Run({row.input, "-o", row.output, "--world-file"});
        EXPECT_EQ(result.status, row.status) << row.input;
        EXPECT_THAT(result.err, HasSubstr(row.why));
        EXPECT_FALSE(std::filesystem::exists(folder.Path(row.output)));
        EXPECT_FALSE(std::filesystem::exists(folder.Path("a.pgw")));
    }
}

}  // namespace
