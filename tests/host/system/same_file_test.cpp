#include "system/same_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "scratch_folder.h"

namespace {

using host::InputReplacedBy;

class SameFile : public ::testing::Test {
protected:
    ScratchFolder folder;
    std::string file = folder.Write("a.tif", "raster");
};

TEST_F(SameFile, IsFoundByAnyNameAndLink) {
    const std::string link = folder.Path("link.tif");
    const std::string hardLink = folder.Path("hard.tif");
    std::filesystem::create_symlink(file, link);
    std::filesystem::create_hard_link(file, hardLink);
    const std::string around = folder.Path() + "/../" +
                               std::filesystem::path(folder.Path()).filename().string() +
                               "/a.tif";
    for (const std::string& output : {file, link, hardLink, around}) {
        EXPECT_EQ(InputReplacedBy(output, {"b.tif", file}), file) << output;
    }
}

TEST_F(SameFile, IsNoOtherFile) {
    const std::string copy = folder.Path("copy.tif");
    std::filesystem::copy_file(file, copy);
    EXPECT_EQ(InputReplacedBy(copy, {file}), std::nullopt);
    EXPECT_EQ(InputReplacedBy(folder.Path("new.png"), {file, "/vsizip/a.zip/b.tif"}),
              std::nullopt);
    EXPECT_EQ(InputReplacedBy("", {file, ""}), std::nullopt);
}

}  // namespace
