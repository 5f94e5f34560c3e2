// What a page file may have read, and how much of it.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "page/document/document_test.h"
#include "page/document/opened_page.h"
#include "page/document/page_text.h"
#include "page/document/picture_file.h"
#include "page/document/property.h"
#include "raster_data/make_raster.h"
#include "system/allowed_sources.h"
#include "system/separate_process.h"

namespace host_tests {
namespace {

namespace fs = std::filesystem;

/// A folder `maps` for the page file, with a.tif, and a folder `other`, with b.tif.
class StrangersPage : public DocumentTest {
protected:
    StrangersPage() {
        for (const char* name : {"maps", "other"}) {
            fs::create_directory(folder.Path(name));
        }
        WriteRaster(folder.Path("maps/a.tif"), {});
        WriteRaster(folder.Path("other/b.tif"), {});
    }

    std::string Page() const { return folder.Path("maps/page.json"); }

    /// What is said of a page file with the element, in a process that must not hang.
    std::string Loading(const std::string& element) const {
        folder.Write("maps/page.json", PageText("{" + element + "}", 2));
        const host::AllowedSources allowed(Page(), {"--out", "--net", "--all"});
        try {
            return host::InSeparateProcess("loading",
                                           [&](const host::Progress&) -> std::string {
                                               host::LoadPage(Page(), &allowed);
                                               return "";
                                           },
                                           {}, {20, 0});
        } catch (const std::exception& error) {
            return error.what();
        }
    }
    std::string Real(const std::string& name) const {
        return fs::canonical(folder.Path(name)).string();
    }
};

TEST_F(StrangersPage, NamesFilesBelowItsFolder) {
    const std::string outside =
        " is outside " + Real("maps") + "; --out " + Real("other") + " allows it";
    EXPECT_EQ(Loading(R"("type": "map", "rasters": ["a.tif", "none.tif"])"), "");
    EXPECT_EQ(Loading(R"("type": "map", "rasters": ["a.tif", "../other/b.tif"])"),
              "elements[0].rasters[1]: " + folder.Path("other/b.tif") + outside);
    EXPECT_EQ(Loading(R"("type": "legend", "rasters": [")" + folder.Path("other/b.tif") +
                      "\"]"),
              "elements[0].rasters[0]: " + folder.Path("other/b.tif") + outside);
    EXPECT_EQ(Loading(R"("type": "picture", "path": "../other/b.tif")"),
              "elements[0].path: " + folder.Path("other/b.tif") + outside);
    EXPECT_EQ(
        Loading(R"("type": "map", "rasters": ["WMS:http://127.0.0.1:1/"])"),
        "elements[0].rasters[0]: WMS:http://127.0.0.1:1/ is not a plain file; --net "
        "allows it");
    EXPECT_EQ(Loading(R"("type": "picture", "path": "")"), "");
}

TEST_F(StrangersPage, MayNameAPipe) {
    mkfifo(folder.Path("maps/pipe").c_str(), 0600);
    EXPECT_EQ(Loading(R"("type": "picture", "path": "pipe")"),
              "elements[0].path: " + folder.Path("maps/pipe") + " is not a plain file");
    // The caller's own does not hang either.
    EXPECT_EQ(host::CheckImageFile(folder.Path("maps/pipe")),
              folder.Path("maps/pipe") + ": is not a plain file");
}

TEST_F(StrangersPage, MayNameAPictureThatTakesAllMemory) {
    const std::string large = folder.Path("maps/large.tif");
    const auto write = [&](int width, int height) {
        raster_test::Create(large, width, height, 3, GDT_Byte,
                            {"SPARSE_OK=YES", "COMPRESS=DEFLATE"});
    };
    const std::string atMost = " pixels; at most 100 million are drawn";
    write(16000, 16000);
    EXPECT_EQ(Loading(R"("type": "picture", "path": "large.tif")"),
              "elements[0].path: " + large + ": has 16000 x 16000" + atMost);
    EXPECT_EQ(host::CheckImageFile(large), large + ": has 16000 x 16000" + atMost);
    write(10000, 10001);
    EXPECT_EQ(host::WhyNotOpened(large), "has 10000 x 10001" + atMost);
    write(32768, 1);
    EXPECT_EQ(host::WhyNotOpened(large),
              "has 32768 x 1 pixels; at most 32767 a side are drawn");
    write(10000, 10000);
    EXPECT_EQ(host::WhyNotOpened(large), "");
}

TEST_F(StrangersPage, HasTextsOfAThousandLines) {
    EXPECT_EQ(host::CheckText(std::string(999, '\n')), "");
    EXPECT_EQ(host::CheckText(std::string(1000, '\n')), "must have at most 1000 lines");
    EXPECT_EQ(host::CheckText(std::string(10'001, 'x')),
              "must have at most 10000 characters");
}

}  // namespace
}  // namespace host_tests
