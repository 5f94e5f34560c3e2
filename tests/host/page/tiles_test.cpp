#include "page/tiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>

#include "page/made_raster.h"
#include "raster_data/make_raster.h"

namespace {

using ::testing::ElementsAre;

/// Rasters of 10 x 10 pixels, 100 by 100 metres unless they say otherwise.
struct Tile {
    const char* name;
    double left = 0.0;
    double top = 0.0;
    double pixel = 10.0;
    std::string projection = "EPSG:32725";
    unsigned argb = 0xFFFF0000;
    const char* stretch = "auto";
    double turn = 0.0;
};

/// Names as they are shown, or "-" for a source that is hidden.
std::vector<std::wstring> Joined(const std::vector<Tile>& tiles,
                                 std::vector<LegendSource> shown = {}) {
    const ScratchFolder folder;
    std::deque<std::unique_ptr<host::GdalRaster>> rasters;
    std::vector<CGISDataSource*> sources;
    for (const Tile& tile : tiles) {
        MadeRaster made;
        made.width = made.height = 10;
        made.transform = {tile.left, tile.pixel, tile.turn,
                          tile.top,  tile.turn,  -tile.pixel};
        made.projection = tile.projection;
        made.argb = tile.argb;
        WriteRaster(folder.Path(tile.name), made);
        rasters.push_back(raster_test::Open(folder.Path(tile.name),
                                            raster_test::Stretched(tile.stretch)));
        sources.push_back(rasters.back().get());
    }
    sources.push_back(nullptr);
    shown.resize(sources.size());
    host::JoinTiles(sources, shown);
    shown.pop_back();
    std::vector<std::wstring> names;
    for (const LegendSource& source : shown) {
        names.push_back(source.isShown ? source.name : L"-");
    }
    return names;
}

TEST(Tiles, OfOneMosaicAreOneEntry) {
    EXPECT_THAT(
        Joined({{"t_1.tif"}, {"s_1.tif", 100}, {"t_02.tif", 100}, {"t_3.tif", 0, 100}}),
        ElementsAre(L"t_1.tif \u2013 t_3.tif", L"", L"-", L"-"));
    EXPECT_THAT(Joined({{"t1.tif"}, {"t1.tif"}}), ElementsAre(L"", L"-"))
        << "the same file";
    EXPECT_THAT(Joined({{"t1.tif"}, {"t2.tif", 100}, {"t3.tif", 200}},
                       {{L"Mosaic"}, {}, {L"Own"}}),
                ElementsAre(L"Mosaic", L"-", L"Own"));
}

TEST(Tiles, LieSideBySideWithPixelsOfOneSizeAndAreShownAlike) {
    const struct {
        const char* what;
        Tile second;
        bool isTile;
    } rows[] = {
        {"beside it", {"t2.tif", 100}, true},
        {"above it", {"t2.tif", 0, 100}, true},
        {"below it, with an edge of a tenth", {"t2.tif", 0, -90}, true},
        {"a tenth beside it, half above", {"t2.tif", 90, 50}, true},
        {"far away", {"t2.tif", 5000, 5000}, true},
        {"another date", {"t2.tif"}, false},
        {"another date, shifted", {"t2.tif", 50, 50}, false},
        {"with an edge above a tenth", {"t2.tif", 89, 0}, false},
        {"far away above a tenth", {"t2.tif", 0, -89}, false},
        {"with larger pixels", {"t2.tif", 100, 0, 11.0}, false},
        {"with pixels larger by less than half of one in all",
         {"t2.tif", 100, 0, 10.4},
         true},
        {"in another system", {"t2.tif", 100, 0, 10.0, "EPSG:32724"}, false},
        {"of other classes", {"t2.tif", 100, 0, 10.0, "EPSG:32725", 0xFF00FF00}, false},
        {"in another style",
         {"t2.tif", 100, 0, 10.0, "EPSG:32725", 0xFFFF0000, "percent 1 99"},
         false},
        {"without a place", {"t2.tif", 0, 0, 0.0}, false},
        {"turned",
         {"t2.tif", 100, 0, 10.0, "EPSG:32725", 0xFFFF0000, "auto", 1.0},
         false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Joined({{"t1.tif"}, row.second}).back(), row.isTile ? L"-" : L"")
            << row.what;
        EXPECT_EQ(Joined({row.second, {"t1.tif"}}).back(), row.isTile ? L"-" : L"")
            << row.what;
    }
}

TEST(Tiles, OfTwoDatesAreTwoMosaics) {
    EXPECT_THAT(
        Joined({{"19_1.tif"}, {"20_1.tif"}, {"19_2.tif", 100}, {"20_2.tif", 100}}),
        ElementsAre(L"19_1.tif \u2013 19_2.tif", L"20_1.tif \u2013 20_2.tif", L"-",
                    L"-"));
}

}  // namespace
