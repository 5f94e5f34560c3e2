// No page is written over what it is drawn from.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;
using ::testing::HasSubstr;

class InputsStay : public host_tests::PageFileTest {
protected:
    /// The call fails, and the file holds what it held.
    void ExpectRefused(const Arguments& arguments, const std::string& file) const {
        const std::string before = ContentsOf(folder.Path(file));
        const Result result = Run(arguments);
        EXPECT_EQ(result.status, 1) << result.out;
        EXPECT_THAT(result.err, HasSubstr("would replace "));
        EXPECT_TRUE(ContentsOf(folder.Path(file)) == before) << file;
    }
};

TEST_F(InputsStay, ByNameByLinkAndByHardLink) {
    fs::create_symlink("data/scene.tif", folder.Path("link.tif"));
    fs::create_hard_link(folder.Path("data/scene.tif"), folder.Path("hard.tif"));
    for (const char* output : {"data/scene.tif", "link.tif", "hard.tif"}) {
        ExpectRefused({"data/scene.tif", "-o", output}, "data/scene.tif");
    }
    ExpectRefused({"data/scene.tif", "--picture", "logo.png", "-o", "logo.png"},
                  "logo.png");
}

TEST_F(InputsStay, OfAPageFileToo) {
    ASSERT_EQ(
        Run({"data/scene.tif", "--picture", "logo.png", "--save", "page.json"}).status,
        0);
    ExpectRefused({"page.json", "-o", "data/scene.tif"}, "data/scene.tif");
    ExpectRefused({"page.json", "-o", "logo.png"}, "logo.png");
    EXPECT_EQ(Run({"data/scene.tif", "-o", "new.png"}).status, 0);
}

TEST_F(InputsStay, SideFilesAndSources) {
    const std::string vrt =
        "<VRTDataset rasterXSize=\"120\" rasterYSize=\"120\"><VRTRasterBand "
        "dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename "
        "relativeToVRT=\"1\">data/scene.tif</SourceFilename><SourceBand>1</SourceBand>"
        "</SimpleSource></VRTRasterBand></VRTDataset>";
    host_tests::WriteFile(folder.Path("scene.vrt"), vrt);
    ExpectRefused({"scene.vrt", "-o", "data/scene.tif"}, "data/scene.tif");
}

}  // namespace
