#include "raster_data/vrt_sources.h"

#include <gtest/gtest.h>

#include <string>

#include "raster_data/make_raster.h"

namespace {

/// A raster `0.vrt` of `a.tif`, and VRTs `1.vrt` of `0.vrt` and so on.
class VrtSources : public ::testing::Test {
protected:
    VrtSources() { raster_test::Write(folder.Path("a.tif"), {2, {{10, 20}}}); }

    /// A VRT of one band that has the source, as often as told, written beside it.
    void WriteVrt(const std::string& name, const std::string& source, int times) const {
        std::string sources;
        for (int i = 0; i < times; ++i) {
            sources += "<SimpleSource><SourceFilename relativeToVRT=\"1\">" + source +
                       "</SourceFilename><SourceBand>1</SourceBand></SimpleSource>";
        }
        folder.Write(name,
                     "<VRTDataset rasterXSize=\"2\" rasterYSize=\"1\">"
                     "<VRTRasterBand dataType=\"Byte\" band=\"1\">" +
                         sources + "</VRTRasterBand></VRTDataset>");
    }
    void WriteNested(int deepest, int times) const {
        for (int depth = 0; depth <= deepest; ++depth) {
            WriteVrt(std::to_string(depth) + ".vrt",
                     depth == 0 ? "a.tif" : std::to_string(depth - 1) + ".vrt", times);
        }
    }
    std::string WhyNot(const std::string& name) const {
        return host::WhyNotVrt(folder.Path(name));
    }

    ScratchFolder folder;
};

TEST_F(VrtSources, AreNestedAtMostThreeDeep) {
    WriteNested(4, 1);
    EXPECT_EQ(WhyNot("a.tif"), "");
    EXPECT_EQ(WhyNot("0.vrt"), "");
    EXPECT_EQ(WhyNot("2.vrt"), "");
    WriteVrt("round.vrt", "round.vrt", 1);
    for (const char* deeper : {"3.vrt", "4.vrt", "round.vrt"}) {
        EXPECT_EQ(WhyNot(deeper), "has VRTs in VRTs, more than 3 deep") << deeper;
    }
    std::string why;
    EXPECT_NE(host::GdalRaster::Open(folder.Path("2.vrt"), why), nullptr) << why;
    EXPECT_EQ(host::GdalRaster::Open(folder.Path("3.vrt"), why), nullptr);
    EXPECT_EQ(why, "has VRTs in VRTs, more than 3 deep");
}

TEST_F(VrtSources, StandForAtMostTenThousandRastersTogether) {
    WriteNested(1, 101);  // 101 times 101 are 10 201
    EXPECT_EQ(WhyNot("1.vrt"),
              "has VRTs in VRTs, which stand for more than 10000 rasters");
    WriteNested(1, 100);
    EXPECT_EQ(WhyNot("1.vrt"), "");
    // As many as one likes beside each other: a mosaic.
    WriteVrt("flat.vrt", "a.tif", 20'000);
    EXPECT_EQ(WhyNot("flat.vrt"), "");
    // Ten thousand times ten thousand times ten thousand.
    WriteNested(2, 10'000);
    EXPECT_EQ(WhyNot("2.vrt"),
              "has VRTs in VRTs, which stand for more than 10000 rasters");
}

TEST_F(VrtSources, MayStandDeepInADescription) {
    std::string description = "<VRTDataset>";
    for (int i = 0; i < 100'000; ++i) {
        description += "<a>";
    }
    folder.Write("deep.vrt", description);
    EXPECT_EQ(WhyNot("deep.vrt"), "");
    folder.Write("many.vrt",
                 "<VRTDataset>" + std::string(3'000'000, ' ') + "</VRTDataset>");
    EXPECT_EQ(WhyNot("many.vrt"), "");
}

TEST_F(VrtSources, AreNoneOfWhatIsNoVrt) {
    folder.Write("broken.vrt", "<VRTDataset><VRTRasterBand>");
    folder.Write("empty.vrt", "");
    EXPECT_EQ(WhyNot("broken.vrt"), "");
    EXPECT_EQ(WhyNot("empty.vrt"), "");
    EXPECT_EQ(WhyNot("none.vrt"), "");
}

}  // namespace
