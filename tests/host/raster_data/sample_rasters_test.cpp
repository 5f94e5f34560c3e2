#include "raster_data/sample_rasters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

#include "raster_data/make_raster.h"
#include "raster_data/sample_terrain.h"

namespace {

TEST(SampleRasters, AreASceneAnElevationModelAndALandCoverMapOfOneArea) {
    const ScratchFolder folder;
    const host::SampleRasters samples =
        host::MakeSampleRasters(folder.Path("new/samples"));
    const auto scene = raster_test::Open(samples.scene);
    const auto elevation = raster_test::Open(samples.elevation);
    const auto landCover = raster_test::Open(samples.landCover);
    for (const auto& [raster, name, type] :
         {std::tuple(scene.get(), L"landscape.tif", DisplayRGB),
          {elevation.get(), L"elevation.tif", DisplayGray},
          {landCover.get(), L"land_cover.tif", DisplayClassified}}) {
        EXPECT_EQ(raster->GetFileName(), name);
        EXPECT_EQ(raster->GetDisplayType(), type);
        EXPECT_EQ(raster->Width(), 600);
        EXPECT_EQ(raster->Height(), 450);
        EXPECT_TRUE(raster->HasGeoTransform());
        EXPECT_EQ(raster->GeoTransform(), scene->GeoTransform());
        EXPECT_THAT(raster->Projection(), testing::HasSubstr("UTM zone 33N"));
    }

    const auto heights = raster_test::RangeOf(*elevation, 0, false);
    EXPECT_GT(heights->first, 0.0);  // the sea has no value
    EXPECT_GT(heights->second, 1000.0);
    EXPECT_LT(heights->second, 3000.0);

    CClassifyDisplayTable* const classes = landCover->GetClassifyDisplayTable();
    ASSERT_EQ(classes->GetClassesCount(), 9);
    EXPECT_EQ(classes->GetClassifyItem(0)->GetLable(), L"Water");
    EXPECT_EQ(classes->GetClassifyItem(8)->GetLable(), L"Built-up area");
}

TEST(SampleRasters, AreTheSameEachTime) {
    const ScratchFolder folder;
    for (const char* name : {"first", "second", "second"}) {
        host::MakeSampleRasters(folder.Path(name));
    }
    for (const std::string file :
         {"/landscape.tif", "/elevation.tif", "/land_cover.tif"}) {
        EXPECT_EQ(folder.Contents("first" + file), folder.Contents("second" + file));
    }
}

TEST(SampleRasters, SayWhyTheyCannotBeWritten) {
    const ScratchFolder folder;
    folder.Write("file", "in the way");
    EXPECT_THROW(host::MakeSampleRasters(folder.Path("file")), std::runtime_error);
    EXPECT_THROW(host::MakeSampleRasters(folder.Path("file/below")), std::runtime_error);
}

TEST(SampleTerrain, HasWaterAndHillsAndAllKindsOfLand) {
    const host::SampleTerrain terrain = host::MakeSampleTerrain();
    const std::size_t pixels = 600 * 450;
    ASSERT_EQ(terrain.elevation.size(), pixels);
    ASSERT_EQ(terrain.cover.size(), pixels);
    ASSERT_EQ(terrain.appearance.size(), pixels);
    std::array<std::size_t, 10> counts{};
    for (std::size_t i = 0; i < pixels; ++i) {
        ++counts.at(static_cast<std::size_t>(terrain.cover[i]));
        EXPECT_EQ(terrain.cover[i] == host::LandCover::kWater, terrain.elevation[i] <= 0);
    }
    EXPECT_EQ(counts[0], 0U);
    for (std::size_t kind = 1; kind < counts.size(); ++kind) {
        EXPECT_GT(counts[kind], pixels / 1000) << kind;
    }
}

}  // namespace
