// Damaged rasters and images: map_page draws a whole page, or says one line and leaves
// the older page.

#include <gdal_priv.h>
#include <gdal_utils.h>
#include <gdiplus.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <map>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

#include "given.h"
#include "hostile_files/damage.h"
#include "hostile_files/png_checksums.h"
#include "map_page/run_map_page.h"
#include "map_surround/picture.h"
#include "page/made_raster.h"
#include "raster_data/sample_rasters.h"
#include "scratch_folder.h"
#include "system/gdiplus_session.h"
#include "system/separate_process.h"

namespace {

using host_tests::Arguments;
using host_tests::Result;

constexpr unsigned kSecondsForAPage = 120;
constexpr unsigned kSecondsForAnImage = 60;

enum class PageEnding { Page, Refused, ContainedCrash, Wrong };

/// Small files of every kind that is damaged here, and a folder for the page.
class HostileFiles : public ::testing::Test {
protected:
    HostileFiles() {
        GDALAllRegister();
        m_samples = host::MakeSampleRasters(m_samplesFolder.Path());
    }

    /// Converts a raster, with gdal_translate's options.
    void Add(const std::string& from, const std::string& name, const Arguments& options) {
        CPLStringList arguments;
        for (const std::string& option : options) {
            arguments.AddString(option.c_str());
        }
        GDALTranslateOptions* const how =
            GDALTranslateOptionsNew(arguments.List(), nullptr);
        GDALDatasetH source = GDALOpen(from.c_str(), GA_ReadOnly);
        GDALDatasetH made = GDALTranslate(seeds.Path(name).c_str(), source, how, nullptr);
        EXPECT_NE(made, nullptr) << name;
        GDALClose(made);
        GDALClose(source);
        GDALTranslateOptionsFree(how);
        names.push_back(name);
    }

    /// Of 60 x 45 pixels unless the options say otherwise: three bands, a band of
    /// heights, and a band of classes with their colours.
    void AddScene(const std::string& name, const Arguments& options) {
        Add(m_samples.scene, name, "-outsize 60 45" + options);
    }
    void AddElevation(const std::string& name, const Arguments& options) {
        Add(m_samples.elevation, name, "-outsize 60 45" + options);
    }
    void AddClasses(const std::string& name, const Arguments& options) {
        Add(m_samples.landCover, name, "-outsize 60 45" + options);
    }

    /// Draws a page where an older one is, and tells how that ended.
    PageEnding Draw(const Arguments& arguments, std::string& said) const {
        const std::string older = "an older page";
        out.Write("page.png", older);
        const Result result = RunMapPage(out, arguments + "-o page.png --dpi 40",
                                         [] { alarm(kSecondsForAPage); });
        said = result.err;
        const std::string lines =
            std::regex_replace(said, std::regex("map_page: warning: .*\n"), "");
        const std::string page = out.Contents("page.png");
        if (out.Names().size() != 1) {
            said += "(left other files behind)";
        } else if (result.status == 0 && lines.empty() && IsWholePng(page)) {
            return PageEnding::Page;
        } else if (result.status == 1 && page == older &&
                   std::regex_match(lines, std::regex("map_page: .*\n"))) {
            return lines.find("drawing failed") == std::string::npos
                       ? PageEnding::Refused
                       : PageEnding::ContainedCrash;
        }
        said += "(status " + std::to_string(result.status) + ")";
        return PageEnding::Wrong;
    }

    /// Writes the n-th damaged file, the same each time, and says where: beside its seed,
    /// for some of them have companions.
    std::string Damaged(std::size_t n) const {
        const std::string& name = names[n % names.size()];
        const auto isOf = [&name](const char* ending) {
            return name.find(ending) != std::string::npos;
        };
        std::mt19937 random(static_cast<unsigned>(n));
        std::string bytes = seeds.Contents(name);
        if (isOf(".vrt") || isOf(".asc")) {
            bytes = hostile_files::DamageText(std::move(bytes), random);
        } else {
            bytes = hostile_files::Damage(std::move(bytes), random);
        }
        if (isOf(".png") && random() % 4 != 0) {
            bytes = hostile_files::WithPngChecksums(std::move(bytes));
        }
        return seeds.Write("damaged_" + name, bytes);
    }

    ScratchFolder seeds;
    std::vector<std::string> names;  ///< of the seeds
    ScratchFolder out;

private:
    static bool IsWholePng(const std::string& bytes) {
        const std::string end("IEND\xAE\x42\x60\x82");
        return bytes.rfind("\x89PNG", 0) == 0 && bytes.size() > end.size() &&
               bytes.compare(bytes.size() - end.size(), end.size(), end) == 0;
    }

    ScratchFolder m_samplesFolder;
    host::SampleRasters m_samples;
};

class HostileRasters : public HostileFiles {
protected:
    HostileRasters() {
        AddScene("scene.tif", "-co TILED=YES -co COMPRESS=LZW");
        AddElevation("elevation.tif", "-co COMPRESS=DEFLATE -ot Float32");
        AddClasses("classes.tif", {});
        AddScene("scene.png", "-of PNG");
        AddScene("scene.jpg", "-of JPEG");
        AddScene("scene.bmp", "-of BMP");
        AddClasses("classes.img", "-of HFA");
        AddElevation("elevation.asc", "-of AAIGrid -outsize 20 15");
        Add(seeds.Path("classes.tif"), "classes.vrt", "-of VRT");
    }
};

TEST_F(HostileRasters, EndWithAPageOrOneLine) {
    std::map<PageEnding, int> endings;
    const std::size_t count = host_tests::Given("HOSTILE_RASTERS", 45);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string path = Damaged(i);
        std::string said;
        const PageEnding ending = Draw({path}, said);
        ++endings[ending];
        EXPECT_NE(ending, PageEnding::Wrong) << "number " << i << ", " << path << said;
        if (ending == PageEnding::ContainedCrash) {
            std::printf("contained: number %zu, %s: %s", i, path.c_str(), said.c_str());
        }
        std::remove(path.c_str());
    }
    std::printf("%zu damaged rasters: %d drawn, %d refused, %d crashes contained\n",
                count, endings[PageEnding::Page], endings[PageEnding::Refused],
                endings[PageEnding::ContainedCrash]);
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
        PageEnding ending;
    } rows[] = {
        {"zero bands", Vrt(size, place), PageEnding::Refused},
        {"no geotransform", Vrt(size, Band(elevation)), PageEnding::Page},
        {"rotated",
         Vrt(size, "<GeoTransform>0, 30, 9, 0, 9, -30</GeoTransform>" + Band(elevation)),
         PageEnding::Page},
        {"without extent",
         Vrt(size, "<GeoTransform>0, 0, 0, 0, 0, 0</GeoTransform>" + Band(elevation)),
         PageEnding::Page},
        {"not a number as no-data",
         Vrt(size, place + Band(elevation, "<NoDataValue>nan</NoDataValue>")),
         PageEnding::Page},
        {"nothing but no-data",
         Vrt(size, place + "<VRTRasterBand dataType=\"Float32\" band=\"1\">"
                           "<NoDataValue>0</NoDataValue></VRTRasterBand>"),
         PageEnding::Page},
        {"1 x 1", Vrt("rasterXSize=\"1\" rasterYSize=\"1\"", place + Band(elevation)),
         PageEnding::Page},
        {"a source that is not there", Vrt(size, place + Band("nowhere.tif")),
         PageEnding::Refused},
        {"claims 2147483647 x 2147483647",
         Vrt("rasterXSize=\"2147483647\" rasterYSize=\"2147483647\"",
             place + Band(elevation)),
         PageEnding::Page},
        {"negative size",
         Vrt("rasterXSize=\"-5\" rasterYSize=\"5\"", place + Band(elevation)),
         PageEnding::Refused},
        {"empty file", "", PageEnding::Refused},
        {"no raster", "Dear Sir or Madam,\n", PageEnding::Refused},
    };
    for (const auto& row : rows) {
        const std::string path = seeds.Write("unusual.vrt", row.vrt);
        std::string said;
        EXPECT_EQ(Draw({path}, said), row.ending) << row.name << ": " << said;
    }
}

/// How a process ends that draws a picture.
enum class PictureEnding : char { Drawn, Refused, SurfaceLost, Died };

/// Opens an image as a picture and draws it, turned, onto a small surface, which must
/// draw afterwards too.
PictureEnding DrawPicture(const std::wstring& path) {
    const host::GdiplusSession session;
    Gdiplus::Bitmap bitmap(120, 90);
    Gdiplus::Graphics graphics(&bitmap);
    CDrawPicture picture;
    picture.Open(path.c_str());
    picture.SetAngle(20.0f);
    picture.ResetAspectRatio();
    picture.Draw(&graphics, CPoint(60, 45), 0.5);
    const bool drawn = graphics.GetLastStatus() == Gdiplus::Ok;

    Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF123456));
    graphics.FillRectangle(&brush, 3, 4, 5, 6);
    Gdiplus::Color pixel;
    bitmap.GetPixel(5, 6, &pixel);
    if (pixel.GetValue() != 0xFF123456) {
        return PictureEnding::SurfaceLost;
    }
    return drawn ? PictureEnding::Drawn : PictureEnding::Refused;
}

PictureEnding DrawPictureInAProcess(const std::string& path, std::string& why) {
    const auto draw = [&path](const host::Progress&) {
        std::signal(SIGSEGV, SIG_DFL);
        // Decoders talk.
        if (std::freopen("/dev/null", "w", stderr) == nullptr) {
            throw std::runtime_error("nothing to be quiet with");
        }
        return std::string(1, static_cast<char>(DrawPicture({path.begin(), path.end()})));
    };
    try {
        const std::string ending =
            host::InSeparateProcess("drawing", draw, {}, {kSecondsForAnImage});
        return static_cast<PictureEnding>(ending.at(0));
    } catch (const std::runtime_error& error) {
        why = error.what();
        return PictureEnding::Died;
    }
}

/// Images in every format that a picture is read from.
class HostileImages : public HostileFiles {
protected:
    HostileImages() {
        AddScene("truecolour.png", "-of PNG");
        AddClasses("palette.png", "-of PNG");
        AddElevation("sixteen_bits.png", "-of PNG -ot UInt16");
        AddScene("baseline.jpg", "-of JPEG");
        AddScene("progressive.jpg", "-of JPEG -co PROGRESSIVE=YES");
        AddElevation("grey.jpg", "-of JPEG -ot Byte");
        AddClasses("plain.gif", "-of GIF");
        AddClasses("interlaced.gif", "-of GIF -co INTERLACING=YES");
        AddScene("lzw.tif", "-co COMPRESS=LZW -co TILED=YES");
        AddScene("planes.tif", "-co COMPRESS=PACKBITS -co INTERLEAVE=BAND");
        AddScene("jpeg.tif", "-co COMPRESS=JPEG -co PHOTOMETRIC=YCBCR");
        AddClasses("palette.tif", "-co COMPRESS=DEFLATE");
        AddScene("truecolour.bmp", "-of BMP");
        AddClasses("palette.bmp", "-of BMP");
    }
};

TEST_F(HostileImages, AreDrawnAsTheyAreWithoutDamage) {
    for (const std::string& name : names) {
        std::string why;
        EXPECT_EQ(DrawPictureInAProcess(seeds.Path(name), why), PictureEnding::Drawn)
            << name << ": " << why;
    }
}

// What a decoder dies of is its own; that no program that embeds the picture element in a
// process of its own comes to harm is map_page's part.
TEST_F(HostileImages, EndWithAPictureOrAStatus) {
    std::map<PictureEnding, int> endings;
    const std::size_t count = host_tests::Given("HOSTILE_IMAGES", 140);
    const std::size_t first = host_tests::Given("HOSTILE_IMAGES_FIRST", 0);
    WriteScene(seeds.Path("scene.tif"), 40, 30);
    for (std::size_t i = first; i < first + count; ++i) {
        const std::string path = Damaged(i);
        std::string said;
        const PictureEnding ending = DrawPictureInAProcess(path, said);
        ++endings[ending];
        EXPECT_NE(ending, PictureEnding::SurfaceLost) << "number " << i << ", " << path;
        if (ending == PictureEnding::Died) {
            std::printf("died: number %zu, %s: %s\n", i, path.c_str(), said.c_str());
        }
        if (ending == PictureEnding::Died || i % 20 == 0) {
            EXPECT_NE(Draw({seeds.Path("scene.tif"), "--picture", path}, said),
                      PageEnding::Wrong)
                << "number " << i << ", " << path << said;
        }
        std::remove(path.c_str());
    }
    std::printf("%zu damaged images: %d drawn, %d refused, %d processes died\n", count,
                endings[PictureEnding::Drawn], endings[PictureEnding::Refused],
                endings[PictureEnding::Died]);
}

}  // namespace
