#include "page/tiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "legend/fake_sources.h"

namespace {

using fakes::Raster;

/// Names as they are shown, or "-" for a source that is hidden.
std::vector<std::wstring> Joined(const std::vector<CGISDataSource*>& sources,
                                 std::vector<LegendSource> shown = {}) {
    shown.resize(sources.size());
    host::JoinTiles(sources, shown);
    std::vector<std::wstring> names;
    for (const LegendSource& source : shown) {
        names.push_back(source.isShown ? source.name : L"-");
    }
    return names;
}

TEST(Tiles, OfOneMosaicAreOneEntry) {
    using ::testing::ElementsAre;
    Raster first(L"tile_1.tif", DisplayRGB);
    Raster second(L"tile_02.tif", DisplayRGB);
    Raster third(L"tile_3.tif", DisplayRGB);
    Raster otherBands(L"tile_4.tif", DisplayRGB);
    otherBands.blue = 5;
    Raster otherName(L"scene_1.tif", DisplayRGB);
    Raster away(L"tile_5.tif", DisplayRGB);
    away.available = false;
    fakes::Vector vector;
    EXPECT_THAT(Joined({&first, &otherName, &second, &away, &third, &vector}),
                ElementsAre(L"tile_1.tif – tile_3.tif", L"", L"-", L"", L"-", L""));
    EXPECT_THAT(Joined({&first, &otherBands}), ElementsAre(L"", L""));
    EXPECT_THAT(Joined({&first, &first}), ElementsAre(L"", L"-")) << "the same file";
    EXPECT_THAT(Joined({&first, &second, &third}, {{L"Mosaic"}, {}, {L"Own"}}),
                ElementsAre(L"Mosaic", L"-", L"Own"));
}

TEST(Tiles, AreShownAlike) {
    using ::testing::ElementsAre;
    Raster low(L"dem1", DisplayGray);
    Raster high(L"dem2", DisplayGray);
    EXPECT_THAT(Joined({&low, &high}), ElementsAre(L"dem1 – dem2", L"-"));
    high.band.highest = 9.0;
    EXPECT_THAT(Joined({&low, &high}), ElementsAre(L"", L""));
    high.hasBand = false;
    EXPECT_THAT(Joined({&low, &high}), ElementsAre(L"dem1 – dem2", L"-"));

    Raster north(L"lc1", DisplayClassified);
    Raster south(L"lc2", DisplayClassified);
    north.table.items =
        south.table.items = {{L"water", 1, 2, 3, 0}, {L"ice", 9, 9, 9, 0}};
    EXPECT_THAT(Joined({&north, &south}), ElementsAre(L"lc1 – lc2", L"-"));
    south.table.items[1].blue = 8;
    EXPECT_THAT(Joined({&north, &south}), ElementsAre(L"", L""));
    south.table.items[1] = {L"snow", 9, 9, 9, 0};
    EXPECT_THAT(Joined({&north, &south}), ElementsAre(L"", L""));
    south.hasTable = false;
    EXPECT_THAT(Joined({&north, &south}), ElementsAre(L"", L""));
}

}  // namespace
