#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "hostile_files/damage.h"
#include "map_page/run_map_page.h"
#include "map_page/seed_rasters.h"
#include "scratch_folder.h"

namespace {

using host_tests::ContentsOf;
using host_tests::Result;
using host_tests::RunningMapPage;
using host_tests::WriteFile;

constexpr unsigned kSecondsForARaster = 120;

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t to = std::min(text.find('\n', from), text.size());
        lines.push_back(text.substr(from, to - from));
        from = to + 1;
    }
    return lines;
}

bool BeginsWith(const std::string& text, const std::string& beginning) {
    return text.rfind(beginning, 0) == 0;
}

bool IsWholePng(const std::string& bytes) {
    const std::string end("IEND\xAE\x42\x60\x82");
    return BeginsWith(bytes, "\x89PNG") && bytes.size() > end.size() &&
           bytes.compare(bytes.size() - end.size(), end.size(), end) == 0;
}

enum class RasterEnding { Page, Refused, ContainedCrash, Wrong };

/// Draws a raster in an output folder that holds an older page, and tells how it ended:
/// with a whole page, or with one line and the older page as it was.
RasterEnding Draw(const ScratchFolder& out, const std::string& raster,
                  std::string& said) {
    const std::string older = "an older page";
    WriteFile(out.Path("page.png"), older);
    const RunningMapPage running(out, {raster, "-o", "page.png", "--dpi", "40"},
                                 [] { alarm(kSecondsForARaster); });
    const Result result = running.Wait();
    said = result.err;
    std::vector<std::string> lines = LinesOf(result.err);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& line) {
                                   return BeginsWith(line, "map_page: warning: ");
                               }),
                lines.end());
    const std::string page = ContentsOf(out.Path("page.png"));
    if (out.Names() != std::vector<std::string>{"page.png"}) {
        said += "(left other files behind)";
        return RasterEnding::Wrong;
    }
    if (result.status == 0 && lines.empty() && IsWholePng(page)) {
        return RasterEnding::Page;
    }
    if (result.status == 1 && lines.size() == 1 && BeginsWith(lines[0], "map_page: ") &&
        page == older) {
        return lines[0].find("drawing failed") == std::string::npos
                   ? RasterEnding::Refused
                   : RasterEnding::ContainedCrash;
    }
    said += "(status " + std::to_string(result.status) + ")";
    return RasterEnding::Wrong;
}

/// Rasters of every kind that is damaged here, in a folder of their own.
class HostileRasters : public ::testing::Test {
protected:
    HostileRasters() {
        seeds.AddScene("scene.tif", "-co TILED=YES -co COMPRESS=LZW");
        seeds.AddElevation("elevation.tif", "-co COMPRESS=DEFLATE -ot Float32");
        seeds.AddClasses("classes.tif", {});
        seeds.AddScene("scene.png", "-of PNG");
        seeds.AddScene("scene.jpg", "-of JPEG");
        seeds.AddScene("scene.bmp", "-of BMP");
        seeds.AddClasses("classes.img", "-of HFA");
        seeds.AddElevation("elevation.asc", "-of AAIGrid -outsize 20 15");
        seeds.Add(seeds.Path("classes.tif"), "classes.vrt", "-of VRT");
    }

    host_tests::SeedRasters seeds;
    ScratchFolder out;
};

/// How many are tried: a few with the other tests, more when asked.
int HowMany() {
    const char* const asked = std::getenv("HOSTILE_RASTERS");
    return asked == nullptr ? 45 : std::atoi(asked);
}

TEST_F(HostileRasters, EndWithAPageOrOneLine) {
    std::map<RasterEnding, int> endings;
    const int count = HowMany();
    for (int i = 0; i < count; ++i) {
        const std::string& name =
            seeds.Names()[static_cast<std::size_t>(i) % seeds.Names().size()];
        const bool isText = name.find(".vrt") != std::string::npos ||
                            name.find(".asc") != std::string::npos;
        std::mt19937 random(static_cast<unsigned>(i));
        const std::string seed = ContentsOf(seeds.Path(name));
        // Beside the seeds, for some of them have companions.
        const std::string path = seeds.Path("damaged_" + name);
        WriteFile(path, isText ? hostile_files::DamageText(seed, random)
                               : hostile_files::Damage(seed, random));
        std::string said;
        const RasterEnding ending = Draw(out, path, said);
        ++endings[ending];
        EXPECT_NE(ending, RasterEnding::Wrong)
            << "number " << i << ", " << name << ": " << said;
        if (ending == RasterEnding::ContainedCrash) {
            std::printf("contained: number %d, %s: %s", i, name.c_str(), said.c_str());
        }
        std::remove(path.c_str());
    }
    std::printf("%d damaged rasters: %d drawn, %d refused, %d crashes contained\n", count,
                endings[RasterEnding::Page], endings[RasterEnding::Refused],
                endings[RasterEnding::ContainedCrash]);
}

std::string Vrt(const std::string& size, const std::string& inside) {
    return "<VRTDataset " + size + ">" + inside + "</VRTDataset>";
}

std::string Band(const std::string& source, const std::string& more = "") {
    return "<VRTRasterBand dataType=\"Float32\" band=\"1\">" + more +
           "<SimpleSource><SourceFilename>" + source +
           "</SourceFilename><SourceBand>1</SourceBand></SimpleSource></VRTRasterBand>";
}

TEST_F(HostileRasters, OfUnusualKindsEndAsTheyShould) {
    const std::string size = "rasterXSize=\"60\" rasterYSize=\"45\"";
    const std::string place = "<GeoTransform>0, 30, 0, 0, 0, -30</GeoTransform>";
    const std::string elevation = seeds.Path("elevation.tif");
    const struct {
        std::string name;
        std::string vrt;
        RasterEnding ending;
    } rows[] = {
        {"zero bands", Vrt(size, place), RasterEnding::Refused},
        {"no geotransform", Vrt(size, Band(elevation)), RasterEnding::Page},
        {"rotated",
         Vrt(size, "<GeoTransform>0, 30, 9, 0, 9, -30</GeoTransform>" + Band(elevation)),
         RasterEnding::Page},
        {"without extent",
         Vrt(size, "<GeoTransform>0, 0, 0, 0, 0, 0</GeoTransform>" + Band(elevation)),
         RasterEnding::Page},
        {"not a number as no-data",
         Vrt(size, place + Band(elevation, "<NoDataValue>nan</NoDataValue>")),
         RasterEnding::Page},
        {"nothing but no-data",
         Vrt(size, place + "<VRTRasterBand dataType=\"Float32\" band=\"1\">"
                           "<NoDataValue>0</NoDataValue></VRTRasterBand>"),
         RasterEnding::Page},
        {"1 x 1", Vrt("rasterXSize=\"1\" rasterYSize=\"1\"", place + Band(elevation)),
         RasterEnding::Page},
        {"a source that is not there", Vrt(size, place + Band("nowhere.tif")),
         RasterEnding::Refused},
        {"claims 2147483647 x 2147483647",
         Vrt("rasterXSize=\"2147483647\" rasterYSize=\"2147483647\"",
             place + Band(elevation)),
         RasterEnding::Page},
        {"negative size",
         Vrt("rasterXSize=\"-5\" rasterYSize=\"5\"", place + Band(elevation)),
         RasterEnding::Refused},
        {"empty file", "", RasterEnding::Refused},
        {"no raster", "Dear Sir or Madam,\n", RasterEnding::Refused},
    };
    for (const auto& row : rows) {
        const std::string path = seeds.Path("unusual.vrt");
        WriteFile(path, row.vrt);
        std::string said;
        EXPECT_EQ(Draw(out, path, said), row.ending) << row.name << ": " << said;
    }
}

}  // namespace
