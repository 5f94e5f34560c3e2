#include <gdal_priv.h>
#include <gdal_utils.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "hostile_files/damage.h"
#include "map_page/run_map_page.h"
#include "raster_data/sample_rasters.h"
#include "scratch_folder.h"

namespace {

using host_tests::ContentsOf;
using host_tests::Result;
using host_tests::RunningMapPage;

constexpr unsigned kSecondsAllowed = 120;

void WriteFile(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary)
        .write(contents.data(), static_cast<std::streamsize>(contents.size()));
}

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

enum class Ending { Page, Refused, ContainedCrash, Wrong };

/// Draws a raster in an output folder that holds an older page, and tells how it ended:
/// with a whole page, or with one line and the older page as it was.
Ending Draw(const ScratchFolder& out, const std::string& raster, std::string& said) {
    const std::string older = "an older page";
    WriteFile(out.Path("page.png"), older);
    const RunningMapPage running(out, {raster, "-o", "page.png", "--dpi", "40"},
                                 [] { alarm(kSecondsAllowed); });
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
        return Ending::Wrong;
    }
    if (result.status == 0 && lines.empty() && IsWholePng(page)) {
        return Ending::Page;
    }
    if (result.status == 1 && lines.size() == 1 && BeginsWith(lines[0], "map_page: ") &&
        page == older) {
        return lines[0].find("drawing failed") == std::string::npos
                   ? Ending::Refused
                   : Ending::ContainedCrash;
    }
    said += "(status " + std::to_string(result.status) + ")";
    return Ending::Wrong;
}

/// Rasters of every kind that is damaged here, in a folder of their own.
class HostileRasters : public ::testing::Test {
protected:
    HostileRasters() {
        GDALAllRegister();
        m_samples = host::MakeSampleRasters(m_samplesFolder.Path());
        Convert(m_samples.scene, "scene.tif",
                {"-outsize", "60", "45", "-co", "TILED=YES", "-co", "COMPRESS=LZW"});
        Convert(m_samples.elevation, "elevation.tif",
                {"-outsize", "60", "45", "-co", "COMPRESS=DEFLATE", "-ot", "Float32"});
        Convert(m_samples.landCover, "classes.tif", {"-outsize", "60", "45"});
        Convert(m_samples.scene, "scene.png", {"-of", "PNG", "-outsize", "60", "45"});
        Convert(m_samples.scene, "scene.jpg", {"-of", "JPEG", "-outsize", "60", "45"});
        Convert(m_samples.scene, "scene.bmp", {"-of", "BMP", "-outsize", "60", "45"});
        Convert(m_samples.landCover, "classes.img",
                {"-of", "HFA", "-outsize", "60", "45"});
        Convert(m_samples.elevation, "elevation.asc",
                {"-of", "AAIGrid", "-outsize", "20", "15"});
        Convert(m_seeds.Path("classes.tif"), "classes.vrt", {"-of", "VRT"});
    }

    void Convert(const std::string& from, const std::string& name,
                 const std::vector<std::string>& options) {
        std::vector<char*> arguments;
        std::vector<std::string> kept = options;
        for (std::string& option : kept) {
            arguments.push_back(option.data());
        }
        arguments.push_back(nullptr);
        GDALTranslateOptions* const how =
            GDALTranslateOptionsNew(arguments.data(), nullptr);
        GDALDatasetH source = GDALOpen(from.c_str(), GA_ReadOnly);
        GDALDatasetH made =
            GDALTranslate(m_seeds.Path(name).c_str(), source, how, nullptr);
        ASSERT_NE(made, nullptr) << name;
        GDALClose(made);
        GDALClose(source);
        GDALTranslateOptionsFree(how);
        m_names.push_back(name);
    }

    ScratchFolder m_samplesFolder;
    ScratchFolder m_seeds;
    ScratchFolder m_out;
    host::SampleRasters m_samples;
    std::vector<std::string> m_names;
};

/// How many are tried: a few with the other tests, more when asked.
int HowMany() {
    const char* const asked = std::getenv("HOSTILE_RASTERS");
    return asked == nullptr ? 45 : std::atoi(asked);
}

TEST_F(HostileRasters, EndWithAPageOrOneLine) {
    std::map<Ending, int> endings;
    const int count = HowMany();
    for (int i = 0; i < count; ++i) {
        const std::string& name = m_names[static_cast<std::size_t>(i) % m_names.size()];
        const bool isText = name.find(".vrt") != std::string::npos ||
                            name.find(".asc") != std::string::npos;
        std::mt19937 random(static_cast<unsigned>(i));
        const std::string seed = ContentsOf(m_seeds.Path(name));
        // Beside the seeds, for some of them have companions.
        const std::string path = m_seeds.Path("damaged_" + name);
        WriteFile(path, isText ? hostile_files::DamageText(seed, random)
                               : hostile_files::Damage(seed, random));
        std::string said;
        const Ending ending = Draw(m_out, path, said);
        ++endings[ending];
        EXPECT_NE(ending, Ending::Wrong)
            << "number " << i << ", " << name << ": " << said;
        if (ending == Ending::ContainedCrash) {
            std::printf("contained: number %d, %s: %s", i, name.c_str(), said.c_str());
        }
        std::remove(path.c_str());
    }
    std::printf("%d damaged rasters: %d drawn, %d refused, %d crashes contained\n", count,
                endings[Ending::Page], endings[Ending::Refused],
                endings[Ending::ContainedCrash]);
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
    const std::string elevation = m_seeds.Path("elevation.tif");
    const struct {
        std::string name;
        std::string vrt;
        Ending ending;
    } rows[] = {
        {"zero bands", Vrt(size, place), Ending::Refused},
        {"no geotransform", Vrt(size, Band(elevation)), Ending::Page},
        {"rotated",
         Vrt(size, "<GeoTransform>0, 30, 9, 0, 9, -30</GeoTransform>" + Band(elevation)),
         Ending::Page},
        {"without extent",
         Vrt(size, "<GeoTransform>0, 0, 0, 0, 0, 0</GeoTransform>" + Band(elevation)),
         Ending::Page},
        {"not a number as no-data",
         Vrt(size, place + Band(elevation, "<NoDataValue>nan</NoDataValue>")),
         Ending::Page},
        {"nothing but no-data",
         Vrt(size, place + "<VRTRasterBand dataType=\"Float32\" band=\"1\">"
                           "<NoDataValue>0</NoDataValue></VRTRasterBand>"),
         Ending::Page},
        {"1 x 1", Vrt("rasterXSize=\"1\" rasterYSize=\"1\"", place + Band(elevation)),
         Ending::Page},
        {"a source that is not there", Vrt(size, place + Band("nowhere.tif")),
         Ending::Refused},
        {"claims 2147483647 x 2147483647",
         Vrt("rasterXSize=\"2147483647\" rasterYSize=\"2147483647\"",
             place + Band(elevation)),
         Ending::Page},
        {"negative size",
         Vrt("rasterXSize=\"-5\" rasterYSize=\"5\"", place + Band(elevation)),
         Ending::Refused},
        {"empty file", "", Ending::Refused},
        {"no raster", "Dear Sir or Madam,\n", Ending::Refused},
    };
    for (const auto& row : rows) {
        const std::string path = m_seeds.Path("unusual.vrt");
        WriteFile(path, row.vrt);
        std::string said;
        EXPECT_EQ(Draw(m_out, path, said), row.ending) << row.name << ": " << said;
    }
}

}  // namespace
