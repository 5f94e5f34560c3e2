#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "map_page/run_map_page.h"
#include "page/made_raster.h"
#include "png_encoder.h"
#include "scratch_folder.h"
#include "system/confinement.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;
using host_tests::RunMapPage;

/// GDI+ for reading the pictures back.
class GdiplusRunning : public ::testing::Environment {
    void SetUp() override {
        const Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(m_token); }
    ULONG_PTR m_token = 0;
};
const auto* const kRunning = ::testing::AddGlobalTestEnvironment(new GdiplusRunning);

/// A picture file, read back.
class Pixels {
public:
    explicit Pixels(const std::string& path)
        : m_bitmap(std::wstring(path.begin(), path.end()).c_str()) {}

    int Width() { return static_cast<int>(m_bitmap.GetWidth()); }
    int Height() { return static_cast<int>(m_bitmap.GetHeight()); }

    Gdiplus::Color At(int x, int y) {
        Gdiplus::Color color;
        m_bitmap.GetPixel(x, y, &color);
        return color;
    }

    /// The share of pixels that are not white in a part of the page, whose sides are
    /// fractions of it from the top left.
    double Ink(double left, double top, double right, double bottom) {
        int inked = 0;
        int all = 0;
        for (int y = static_cast<int>(top * Height()); y < bottom * Height(); ++y) {
            for (int x = static_cast<int>(left * Width()); x < right * Width(); ++x) {
                ++all;
                const Gdiplus::Color color = At(x, y);
                const bool white =
                    color.GetR() > 250 && color.GetG() > 250 && color.GetB() > 250;
                inked += white ? 0 : 1;
            }
        }
        return static_cast<double>(inked) / all;
    }

private:
    Gdiplus::Bitmap m_bitmap;
};

class MapPage : public ::testing::Test {
protected:
    MapPage() {
        WriteScene(folder.Path("scene.tif"), 120, 120);
        Gdiplus::Bitmap logo(64, 64, PixelFormat32bppARGB);
        {
            Gdiplus::Graphics graphics(&logo);
            graphics.Clear(Gdiplus::Color(0, 128, 0));
        }
        logo.Save(WidePath("logo.png").c_str(), &host_tests::kPngEncoder);
    }

    std::wstring WidePath(const std::string& name) const {
        const std::string path = folder.Path(name);
        return {path.begin(), path.end()};
    }

    Result Draw(Arguments arguments) const { return RunMapPage(folder, arguments); }

    ScratchFolder folder;
};

struct SizeRow {
    Arguments options;
    int width;
    int height;
};

TEST_F(MapPage, HasTheSizeAskedFor) {
    const SizeRow rows[] = {
        {{}, 1754, 1240},
        {{"--dpi", "96"}, 1123, 794},
        {{"--dpi", "300"}, 3508, 2480},
        {{"--portrait"}, 1240, 1754},
        {{"--size", "Letter", "--dpi", "100"}, 1100, 850},
        {{"--size", "a5", "--portrait", "--dpi", "96"}, 559, 794},
        {{"--size", "240x120", "--dpi", "127"}, 1200, 600},
        {{"--size", "120x240", "--dpi", "127", "--portrait"}, 600, 1200},
    };
    for (const SizeRow& row : rows) {
        Arguments arguments = {"scene.tif", "-o", "page.png"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        const Result result = Draw(arguments);
        ASSERT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.out, "page.png: " + std::to_string(row.width) + " x " +
                                  std::to_string(row.height) + " pixels, " +
                                  std::to_string(fs::file_size(folder.Path("page.png"))) +
                                  " bytes\n");
        Pixels pixels(folder.Path("page.png"));
        EXPECT_EQ(pixels.Width(), row.width);
        EXPECT_EQ(pixels.Height(), row.height);
    }
}

Arguments Join(Arguments first, const Arguments& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST_F(MapPage, ShowsMapTitleAndPicture) {
    const Arguments noMore = {"--no-legend", "--scale-bar", "none", "--north-arrow",
                              "none"};
    ASSERT_EQ(Draw(Join({"scene.tif", "-o", "page.png", "--title", "A scene", "--picture",
                         "logo.png"},
                        noMore))
                  .status,
              0);
    Pixels page(folder.Path("page.png"));
    EXPECT_GT(page.Ink(0.4, 0.06, 0.6, 0.13), 0.1) << "the title";
    EXPECT_GT(page.Ink(0.25, 0.25, 0.6, 0.9), 0.99) << "the map";
    EXPECT_GT(page.Ink(0.77, 0.84, 0.835, 0.94), 0.4) << "the picture";
    EXPECT_LT(page.Ink(0.77, 0.3, 0.835, 0.75), 0.01) << "above the picture";
    EXPECT_LT(page.Ink(0.03, 0.03, 0.97, 0.055), 0.01) << "above the title";
    // North-west is dark and the scene gets redder eastwards, as it was made.
    EXPECT_GT(page.At(1100, 700).GetR(), page.At(400, 700).GetR() + 50);

    ASSERT_EQ(Draw(Join({"scene.tif", "-o", "bare.png"}, noMore)).status, 0);
    Pixels bare(folder.Path("bare.png"));
    EXPECT_LT(bare.Ink(0.83, 0.1, 0.97, 0.95), 0.01) << "no picture";
    EXPECT_GT(bare.Ink(0.3, 0.1, 0.7, 0.9), 0.99) << "the map takes the title's room";
}

TEST_F(MapPage, DrawsFramesAsAskedFor) {
    const Arguments base = {
        "scene.tif", "-o",      "page.png", "--title", "Title",        "--dpi",    "96",
        "--border",  "#FF0000", "--shadow", "lime",    "--background", "#0000FFFF"};
    const auto count = [this](Gdiplus::ARGB argb) {
        Pixels page(folder.Path("page.png"));
        int found = 0;
        for (int y = 0; y < page.Height() / 5; ++y) {
            for (int x = 0; x < page.Width(); ++x) {
                found += page.At(x, y).GetValue() == argb ? 1 : 0;
            }
        }
        return found;
    };
    ASSERT_EQ(Draw(base).status, 0);
    EXPECT_GT(count(0xFFFF0000), 100);
    EXPECT_GT(count(0xFF00FF00), 100);
    EXPECT_GT(count(0xFF0000FF), 1000);

    Arguments off = base;
    off[8] = off[10] = off[12] = "off";
    ASSERT_EQ(Draw(off).status, 0);
    EXPECT_EQ(count(0xFFFF0000), 0);
    EXPECT_EQ(count(0xFF00FF00), 0);
    EXPECT_EQ(count(0xFF0000FF), 0);
}

TEST_F(MapPage, WritesTheFormatOfTheEnding) {
    const std::pair<std::string, std::string> rows[] = {
        {"page.png", "\x89PNG\r\n\x1A\n"},
        {"page.PNG", "\x89PNG\r\n\x1A\n"},
        {"page.jpg", "\xFF\xD8\xFF"},
        {"page.jpeg", "\xFF\xD8\xFF"},
        {"page.bmp", "BM"},
        {"page.tif", std::string("II*\0", 4)},
        {"page.tiff", std::string("II*\0", 4)},
    };
    for (const auto& [name, magic] : rows) {
        const Result result = Draw({"scene.tif", "-o", name, "--dpi", "40"});
        ASSERT_EQ(result.status, 0) << name << result.err;
        EXPECT_EQ(ContentsOf(folder.Path(name)).substr(0, magic.size()), magic) << name;
        EXPECT_EQ(Pixels(folder.Path(name)).Width(), 468) << name;
    }
}

TEST_F(MapPage, DrawsTheSameEachTime) {
    const Arguments arguments = {"scene.tif", "-o",        "a.png",   "--title",
                                 "Same",      "--picture", "logo.png"};
    ASSERT_EQ(Draw(arguments).status, 0);
    const std::string first = ContentsOf(folder.Path("a.png"));
    ASSERT_EQ(Draw(arguments).status, 0);
    EXPECT_TRUE(ContentsOf(folder.Path("a.png")) == first);
    EXPECT_GT(first.size(), 10000u);
}

TEST_F(MapPage, EndsCleanlyAfterAnyTitle) {
    for (const char* title : {"奥林达和累西腓", "Olinda 奥林达", "\xF0\x9F\x97\xBA map",
                              "مدينة", " ", "", "%s %n \\ \"", "-"}) {
        const Result result =
            Draw({"scene.tif", "-o", "page.png", "--dpi", "60", "--title", title});
        EXPECT_EQ(result.status, 0) << title << ": " << result.err;
        EXPECT_EQ(result.err, title[0] != '\xF0'
                                  ? ""
                                  : "map_page: warning: title: no font has "
                                    "\"\xF0\x9F\x97\xBA\" (U+1F5FA): a "
                                    "box is drawn\n")
            << title;
    }
}

TEST_F(MapPage, TakesTheFontAskedFor) {
    const auto draw = [this](const std::string& font, const std::string& style) {
        const Result result =
            Draw({"scene.tif", "-o", "page.png", "--dpi", "60", "--title", "Recife",
                  "--title-font", font, "--title-style", style});
        EXPECT_EQ(result.status, 0) << result.err;
        return ContentsOf(folder.Path("page.png"));
    };
    const std::string sans = draw("Arial", "bold");
    EXPECT_TRUE(draw("Liberation Sans", "bold") == sans);
    EXPECT_FALSE(draw("Times New Roman", "bold") == sans);
    EXPECT_FALSE(draw("Arial", "regular") == sans);
    EXPECT_FALSE(draw("Arial", "bold-italic") == sans);
}

TEST_F(MapPage, WarnsOfARasterItCannotPlace) {
    MadeRaster other;
    other.transform = {0.0, 1.0, 0.0, 0.0, 0.0, -1.0};
    other.projection = "EPSG:4326";
    WriteRaster(folder.Path("other.tif"), other);
    const Result result = Draw({"scene.tif", "other.tif", "-o", "page.png"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "map_page: warning: other.tif: left off the map: its coordinate system is "
              "not that of the first raster\n");
}

TEST_F(MapPage, TellsItsOptionsAndItsVersion) {
    const Result help = Draw({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    for (const char* option :
         {"RASTER", "--output", "--title ", "--title-font", "--title-size",
          "--title-style", "--picture", "--size", "--portrait", "--dpi", "--border",
          "--shadow", "--background", "--version", "--help"}) {
        EXPECT_NE(help.out.find(option), std::string::npos) << option;
    }
    const Result version = Draw({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "map_page " MAP_PAGE_VERSION
                           "\nThe process that draws a page file: " +
                               host::ConfinementHere() + "\n");
}

// The real rasters, where a folder with them is named.
TEST_F(MapPage, DrawsRealRasters) {
    const char* const rasters = std::getenv("MAP_SURROUND_RASTERS");
    if (rasters == nullptr) {
        GTEST_SKIP() << "MAP_SURROUND_RASTERS names no folder";
    }
    const std::string in = std::string(rasters) + "/";
    const Result result =
        Draw({in + "L7_ETMs.tif", in + "olinda_dem_utm25s.tif", in + "lc.tif", "-o",
              "page.png", "--title", "Olinda", "--picture", "logo.png"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "map_page: warning: " + in +
                              "lc.tif: left off the map: its coordinate system is not "
                              "that of the first raster\n");
    Pixels page(folder.Path("page.png"));
    EXPECT_GT(page.Ink(0.4, 0.06, 0.6, 0.13), 0.1) << "the title";
    EXPECT_GT(page.Ink(0.25, 0.25, 0.6, 0.9), 0.95) << "the map";
    EXPECT_GT(page.Ink(0.69, 0.17, 0.88, 0.65), 0.05) << "the legend";
    EXPECT_GT(page.Ink(0.69, 0.71, 0.86, 0.77), 0.05) << "the scale bar";
    EXPECT_GT(page.Ink(0.69, 0.83, 0.76, 0.93), 0.03) << "the north arrow";
    EXPECT_GT(page.Ink(0.8, 0.83, 0.88, 0.95), 0.4) << "the picture";
    for (const char* raster : {"olinda_dem_utm25s.tif", "lc.tif"}) {
        EXPECT_EQ(Draw({in + raster, "-o", "page.png"}).status, 0) << raster;
    }
}

}  // namespace
