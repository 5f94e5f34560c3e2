#include "raster_data/confined_gdal.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "raster_data/gdal_session.h"
#include "raster_data/make_raster.h"
#include "system/separate_process.h"

namespace {

namespace fs = std::filesystem;

std::string VrtOf(const std::string& sources, const std::string& band = "") {
    return "<VRTDataset rasterXSize=\"2\" rasterYSize=\"1\"><VRTRasterBand "
           "dataType=\"Byte\" band=\"1\"" +
           band + ">" + sources + "</VRTRasterBand></VRTDataset>";
}

std::string SourceOf(const std::string& file) {
    return "<SimpleSource><SourceFilename relativeToVRT=\"0\">" + file +
           "</SourceFilename><SourceBand>1</SourceBand></SimpleSource>";
}

/// Folders `maps`, below which reading is allowed, and `other`, each with `a.tif`.
class ConfinedGdal : public ::testing::Test {
protected:
    ConfinedGdal() {
        for (const char* name : {"maps", "other"}) {
            fs::create_directory(folder.Path(name));
        }
        raster_test::Write(Maps("a.tif"), {2, {{10, 20}}});
        raster_test::Write(Other("a.tif"), {2, {{30, 40}}});
    }

    std::string Maps(const std::string& name) const {
        return folder.Path("maps/" + name);
    }
    std::string Other(const std::string& name) const {
        return folder.Path("other/" + name);
    }

    /// Writes a file in maps; its path.
    std::string Write(const std::string& name, const std::string& text) const {
        return folder.Write("maps/" + name, text);
    }

    /// A copy of a.tif with a side file of that ending, which is a link to another's.
    std::string WithLinkedSideFile(const std::string& ending) const {
        fs::copy_file(Maps("a.tif"), Maps("side.tif"));
        fs::copy_file(Other("a.tif"), Other("side" + ending));
        fs::create_symlink(Other("side" + ending), Maps("side.tif" + ending));
        return Maps("side.tif");
    }

    /// Its first pixel, or why it is not read, in a process where GDAL is confined.
    std::string Read(const std::string& raster,
                     const host::AllowedSources& allowed) const {
        return host::InSeparateProcess("reading", [&](const host::Progress&) {
            host::ConfineGdal(allowed);
            std::string why;
            const auto opened = host::GdalRaster::Open(raster, why);
            if (opened == nullptr) {
                return why;
            }
            return std::to_string(
                static_cast<int>(raster_test::RangeOf(*opened, 0, false)->first));
        });
    }
    std::string Read(const std::string& raster) const { return Read(raster, Allowed()); }

    host::AllowedSources Allowed() const {
        return host::AllowedSources(Maps("page.json"),
                                    {"--outside", "--remote", "--all"});
    }
    std::string Outside(const std::string& path) const {
        return path + " is outside " + fs::canonical(folder.Path("maps")).string() +
               "; --outside " + fs::canonical(folder.Path("other")).string() +
               " allows it";
    }

    ScratchFolder folder;
};

TEST_F(ConfinedGdal, ReadsPlainFilesBelowTheFolder) {
    EXPECT_EQ(Read(Maps("a.tif")), "10");
    EXPECT_EQ(Read(Other("a.tif")), Outside("").substr(1));
    EXPECT_EQ(Read(Maps("none.tif")), "no such file");
    fs::create_symlink("../other/a.tif", Maps("link.tif"));
    EXPECT_EQ(Read(Maps("link.tif")), Outside("").substr(1));
    mkfifo(Maps("pipe.tif").c_str(), 0600);
    EXPECT_EQ(Read(Maps("pipe.tif")), "is not a plain file");
    host::AllowedSources both = Allowed();
    both.Allow(folder.Path("other"));
    EXPECT_EQ(Read(Maps("link.tif"), both), "30");
}

TEST_F(ConfinedGdal, ReadsKindsThatNameNoOtherFile) {
    host::StartGdal();
    const raster_test::Dataset original =
        raster_test::Owned(GDALDataset::Open(Maps("a.tif").c_str(), GDAL_OF_RASTER));
    const std::string refused =
        "is not a raster in a format that page files may name; --all allows it";
    for (const auto& [kind, read] : {std::pair<const char*, std::string>{"PNG", "10"},
                                     {"HFA", "10"},
                                     {"AAIGrid", "10"},
                                     {"NITF", refused},
                                     {"netCDF", refused},
                                     {"PCIDSK", refused}}) {
        raster_test::Copy(original, kind, Maps(kind));
        EXPECT_EQ(Read(Maps(kind)), read) << kind;
    }
}

TEST_F(ConfinedGdal, ReadsVrtsOfSuchFiles) {
    const std::string ofA = SourceOf(Maps("a.tif"));
    const std::string outside = "reads " + Other("a.tif") + ", which" + Outside("");
    const std::string more = "is a VRT of more than rasters";
    const struct {
        const char* name;
        std::string vrt;
        std::string read;
    } rows[] = {
        {"good.vrt", VrtOf(ofA), "10"},
        {"outside.vrt", VrtOf(SourceOf(Other("a.tif"))), outside},
        {"nested.vrt", VrtOf(SourceOf(Maps("outside.vrt"))), outside},
        {"service.vrt", VrtOf(SourceOf("/vsicurl/http://127.0.0.1:1/a.tif")),
         "reads /vsicurl/http://127.0.0.1:1/a.tif, which is not a plain file; "
         "--remote allows it"},
        {"raw.vrt",
         VrtOf("<SourceFilename>a.tif</SourceFilename><ImageOffset>0</ImageOffset>",
               " subClass=\"VRTRawRasterBand\""),
         more},
        {"code.vrt",
         VrtOf("<PixelFunctionLanguage>Python</PixelFunctionLanguage>" + ofA,
               " subClass=\"VRTDerivedRasterBand\""),
         more},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Read(Write(row.name, row.vrt)), row.read) << row.name;
    }
    for (const std::string& text : {VrtOf(ofA), Maps(VrtOf(ofA))}) {
        EXPECT_EQ(Read(text), "is not a plain file; --remote allows it");
    }
}

TEST_F(ConfinedGdal, FollowsNoSideFileThatIsALink) {
    for (const std::string ending : {".ovr", ".msk", ".aux.xml"}) {
        const std::string raster = WithLinkedSideFile(ending);
        // GDAL asks for the link, or for what it leads to.
        const std::string why = Read(raster);
        EXPECT_TRUE(why == Outside(raster + ending) ||
                    why == Outside(Other("side" + ending)))
            << why;
        host::AllowedSources both = Allowed();
        both.Allow(folder.Path("other"));
        EXPECT_EQ(Read(raster, both), "10") << ending;
        fs::remove(raster);
        fs::remove(raster + ending);
    }
}

TEST_F(ConfinedGdal, FollowsNoReferenceInMetadata) {
    const auto withOverviewsIn = [&](const std::string& file) {
        Write("a.tif.aux.xml",
              "<PAMDataset><Metadata domain=\"OVERVIEWS\"><MDI key=\"OVERVIEW_FILE\">" +
                  file + "</MDI></Metadata></PAMDataset>");
        return Maps("a.tif");
    };
    EXPECT_EQ(Read(withOverviewsIn(Other("a.tif"))), Outside(Other("a.tif")));
    EXPECT_EQ(
        Read(withOverviewsIn("/vsicurl/http://127.0.0.1:1/a.tif")),
        "/vsicurl/http://127.0.0.1:1/a.tif is not a plain file; --remote allows it");
    EXPECT_EQ(Read(withOverviewsIn(":::BASE:::a.tif")), "10");
}

TEST_F(ConfinedGdal, LooksIntoArchives) {
    host::StartGdal();
    for (const char* place : {"maps", "other"}) {
        const std::string archive = folder.Path(std::string(place) + "/a.zip");
        VSILFILE* const file = VSIFOpenL(("/vsizip/" + archive + "/b.tif").c_str(), "wb");
        const std::string bytes = folder.Contents("maps/a.tif");
        VSIFWriteL(bytes.data(), 1, bytes.size(), file);
        VSIFCloseL(file);
    }
    EXPECT_EQ(Read("/vsizip/" + Maps("a.zip/b.tif")), "10");
    EXPECT_EQ(Read("/vsizip/" + Other("a.zip/b.tif")), Outside(Other("a.zip")));
}

TEST_F(ConfinedGdal, WritesNothing) {
    const host::SeparateWork write = [&](const host::Progress&) -> std::string {
        host::ConfineGdal(Allowed());
        for (const char* how : {"wb", "ab", "rb+"}) {
            if (VSIFOpenL(Maps("a.tif").c_str(), how)) {
                return how;
            }
        }
        return VSIUnlink(Maps("a.tif").c_str()) == 0 ? "removed" : "";
    };
    EXPECT_EQ(host::InSeparateProcess("writing", write), "");
}

}  // namespace
