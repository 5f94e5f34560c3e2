#include "system/allowed_sources.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "scratch_folder.h"

namespace {

namespace fs = std::filesystem;

/// Folders `maps` with `a.tif` and `maps-old` with `b.tif`, and links between them.
class AllowedSources : public ::testing::Test {
protected:
    AllowedSources() {
        for (const char* name : {"maps", "maps/tiles", "maps-old"}) {
            fs::create_directory(folder.Path(name));
        }
        for (const char* name : {"maps/a.tif", "maps/tiles/c.tif", "maps-old/b.tif"}) {
            folder.Write(name, "x");
        }
        fs::create_symlink("tiles/c.tif", folder.Path("maps/inside.tif"));
        fs::create_symlink("../maps-old/b.tif", folder.Path("maps/outside.tif"));
        fs::create_symlink("../maps-old", folder.Path("maps/old"));
        fs::create_symlink("maps", folder.Path("link"));
        mkfifo(folder.Path("maps/pipe.tif").c_str(), 0600);
    }

    std::string Outside(const std::string& name) const {
        return "is outside " + Real("maps") + "; --allow-outside " + Real(name) +
               " allows it";
    }
    std::string Real(const std::string& name) const {
        return fs::canonical(folder.Path(name)).string();
    }

    ScratchFolder folder;
};

TEST_F(AllowedSources, ArePlainFilesBelowTheFolder) {
    const std::pair<std::string, std::string> rows[] = {
        {"maps/a.tif", ""},
        {"maps/tiles/c.tif", ""},
        {"maps/tiles/../a.tif", ""},
        {"maps/tiles", ""},
        {"maps", ""},
        {"maps/inside.tif", ""},
        {"link/a.tif", ""},
        {"maps/none.tif", ""},
        {"maps/none/none.tif", ""},
        {"maps/pipe.tif", "is not a plain file"},
        {"maps/outside.tif", Outside("maps-old")},
        {"maps/old/b.tif", Outside("maps-old")},
        {"maps/../maps-old/b.tif", Outside("maps-old")},
        {"maps/none/../../maps-old/b.tif", Outside("maps-old")},
        {"maps-old/b.tif", Outside("maps-old")},
        {"maps-old/none.tif", Outside("maps-old")},
    };
    for (const std::string page : {"maps/page.json", "link/page.json"}) {
        const host::AllowedSources allowed(folder.Path(page),
                                           {"--allow-outside", "--allow-remote", ""});
        for (const auto& [path, why] : rows) {
            EXPECT_EQ(allowed.WhyNot(folder.Path(path)), why) << page << " " << path;
        }
        EXPECT_NE(allowed.WhyNot("/etc/passwd"), "");
        EXPECT_NE(allowed.WhyNot("/dev/null"), "");
        EXPECT_NE(allowed.WhyNot("/proc/self/environ"), "");
        EXPECT_NE(allowed.WhyNot(std::string(100'000, 'x')), "");
        EXPECT_NE(allowed.WhyNot(folder.Path()), "");
    }
}

TEST_F(AllowedSources, AreRelativeToWhereTheProgramRuns) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path("maps"));
    const host::AllowedSources allowed("page.json");
    EXPECT_EQ(allowed.WhyNot("a.tif"), "");
    EXPECT_FALSE(allowed.HasRefused());
    EXPECT_EQ(allowed.WhyNot("../maps-old/b.tif"), "is outside " + Real("maps"));
    EXPECT_TRUE(allowed.HasRefused());
    fs::current_path(before);
}

TEST_F(AllowedSources, AreMoreWhereTheCallerSaysSo) {
    host::AllowedSources allowed(folder.Path("maps/page.json"),
                                 {"", "--allow-remote", "--allow-all"});
    const std::string names[] = {"NETCDF:grid.nc:depth",
                                 "WMS:http://127.0.0.1/",
                                 "/vsicurl/http://127.0.0.1/a.tif",
                                 "/vsistdin/",
                                 "<VRTDataset>x</VRTDataset>",
                                 "maps/<VRTDataset/>",
                                 "{\"type\": \"x\"}"};
    for (const std::string& name : names) {
        EXPECT_EQ(allowed.WhyNot(name), "is not a plain file; --allow-remote allows it");
    }
    EXPECT_EQ(allowed.WhyNot("/vsizip/" + folder.Path("maps/a.zip")), "");
    allowed.Allow(folder.Path("maps-old"));
    allowed.Allow("/etc/hostname");
    allowed.Allow(folder.Path("nowhere"));
    EXPECT_EQ(allowed.WhyNot(folder.Path("maps/outside.tif")), "");
    EXPECT_EQ(allowed.WhyNot("/etc/hostname"), "");
    EXPECT_NE(allowed.WhyNot("/etc/passwd"), "");
    EXPECT_NE(allowed.WhyNot(folder.Path("nowhere")), "");
    EXPECT_EQ(allowed.Places().size(), 3u);
    allowed.AllowNetwork();
    EXPECT_EQ(
        allowed.WhyNotOfThisKind(),
        "is not a raster in a format that page files may name; --allow-all allows it");
    for (const std::string& name : names) {
        EXPECT_EQ(allowed.WhyNot(name), "") << name;
    }
    EXPECT_NE(allowed.WhyNot("/etc/passwd"), "");
}

}  // namespace
