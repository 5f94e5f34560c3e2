#include <gmock/gmock.h>

#include <tuple>

#include "map_surround/legend.h"
#include "page/document/document_test.h"
#include "page/document/item_type.h"
#include "page/document/legend_sources.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "page/made_raster.h"
#include "page/placed_frame.h"

namespace {

using host::MapFrame;
using host::PageItem;
using ::testing::ThrowsMessage;
using OpeningRasters = host_tests::DocumentTest;

PageItem MapOf(const std::vector<std::string>& paths) {
    PageItem item = host::FindItemType("map")->make();
    std::get<MapFrame>(item).rasterPaths = paths;
    return item;
}

PageItem LegendOf(const std::vector<std::string>& paths) {
    PageItem item = host::FindItemType("legend")->make();
    host::FrameAs<host::LegendFrame>(item)->SetRasterPaths(paths);
    return item;
}

CMapLegend& LegendIn(PageItem& item) { return *host::ElementOf<CMapLegend>(item); }

TEST_F(OpeningRasters, AnItemReadAgainSharesItsMap) {
    PageItem item = MapOf({folder.Path("scene.tif")});
    OpenRasters(item, store);
    PageItem again = host::ReadItem(WriteItem(item));
    const auto& map = std::get<MapFrame>(item);
    auto& mapAgain = std::get<MapFrame>(again);
    EXPECT_EQ(mapAgain.picture, nullptr) << "before it is opened";
    OpenRasters(again, store);
    EXPECT_NE(map.picture, nullptr);
    EXPECT_EQ(map.picture, mapAgain.picture);
    EXPECT_EQ(store.Raster(folder.Path("scene.tif")),
              store.Raster(folder.Path("scene.tif")));

    mapAgain.extent = host::Box{500000.0, 8999700.0, 500300.0, 9000000.0};
    OpenRasters(again, store);
    EXPECT_NE(map.picture, mapAgain.picture);
}

TEST_F(OpeningRasters, ALegendIsMeasuredButKeepsItsSize) {
    PageItem natural = LegendOf({folder.Path("scene.tif")});
    OpenRasters(natural, store);
    EXPECT_GT(LegendIn(natural).GetSize(), 40);
    EXPECT_EQ(LegendIn(natural).GetTitleSize(), 20.0f);

    PageItem smaller = LegendOf({folder.Path("scene.tif")});
    LegendIn(smaller).SetSize(40);
    LegendIn(smaller).SetAspectRatio(0.7f);
    OpenRasters(smaller, store);
    EXPECT_EQ(LegendIn(smaller).GetSize(), 40);
    EXPECT_EQ(LegendIn(smaller).GetAspectRatio(), 0.7f);
}

TEST_F(OpeningRasters, MeasuringAgainDoesNotMultiplyTheFontsOfALegendAgain) {
    PageItem item = LegendOf({folder.Path("scene.tif")});
    host::FrameAs<host::LegendFrame>(item)->SetSizeFactor(2.0f);
    OpenRasters(item, store);
    OpenRasters(item, store);
    EXPECT_EQ(LegendIn(item).GetTitleSize(), 20.0f);
    LegendIn(item).ResetAspectRatio();
    EXPECT_EQ(LegendIn(item).GetTitleSize(), 40.0f) << "the factor is kept";
}

TEST_F(OpeningRasters, WhatIsMissingIsToldWithItsPlace) {
    host::Page page(400.0, 300.0);
    page.Items().push_back(host::FindItemType("frame")->make());
    page.Items().push_back(MapOf({folder.Path("scene.tif"), folder.Path("none.tif")}));
    EXPECT_THAT(
        [&] { OpenRasters(page, store); },
        ThrowsMessage<host::PageError>("elements[1].rasters: " + folder.Path("none.tif") +
                                       ": no such file"));
    EXPECT_EQ(std::get<MapFrame>(page.Items()[1]).picture, nullptr);
}

std::vector<std::string> Explained(const PageItem& legend) {
    std::vector<std::string> said;
    for (CGISDataSource* source : host::FrameAs<host::LegendFrame>(legend)->Sources()) {
        const auto& raster = dynamic_cast<const host::GdalRaster&>(*source);
        said.push_back(raster.Path() + " " + raster.Style().stretch.Text());
    }
    return said;
}

TEST_F(OpeningRasters, ALegendExplainsWhatTheMapsShow) {
    const std::string scene = folder.Path("scene.tif");
    const std::string lost = folder.Path("plain.tif");
    const std::string alone = folder.Path("alone.tif");
    for (const std::string& plain : {lost, alone}) {
        WriteRaster(plain, {});  // without georeference
    }
    host::Page page(400.0, 300.0);
    page.Items().push_back(LegendOf({scene, lost, alone}));
    page.Items().push_back(MapOf({scene, lost}));
    page.Items().push_back(MapOf({scene}));
    const auto style = [&](std::size_t i) -> host::RasterStyle& {
        return std::get<MapFrame>(page.Items()[i]).style;
    };
    style(1).stretch = *host::ParseStretch("minmax");
    style(2).stretch = *host::ParseStretch("none");
    OpenRasters(page, store);
    EXPECT_EQ(Explained(page.Items()[0]),
              (std::vector<std::string>{scene + " minmax", alone + " auto"}));

    EXPECT_TRUE(FitLegendsToMaps(page, store).empty());
    style(1).stretch = *host::ParseStretch("percent 1 99");
    OpenRasters(page.Items()[1], store);
    EXPECT_EQ(FitLegendsToMaps(page, store), std::vector<std::size_t>{0});
    EXPECT_EQ(Explained(page.Items()[0]),
              (std::vector<std::string>{scene + " percent 1 99", alone + " auto"}));
}

TEST_F(OpeningRasters, BandsThatThereAreNotAreToldWithTheirFile) {
    WriteRaster(folder.Path("one.tif"), MadeRaster());
    for (const auto& [name, bands, why] :
         {std::tuple{"scene.tif", std::vector{1, 2, 7}, "has no band 7 (it has 3)"},
          {"one.tif", std::vector{1}, "has only one band, so none can be chosen"}}) {
        PageItem item = MapOf({folder.Path(name)});
        std::get<MapFrame>(item).style.bands = bands;
        EXPECT_THAT(
            [&] { OpenRasters(item, store); },
            ThrowsMessage<host::PageError>("rasters: " + folder.Path(name) + ": " + why));
    }
}

TEST_F(OpeningRasters, FilesAndFontsThatCannotBeUsedAreTold) {
    const struct {
        std::string element;
        std::string error;
    } rows[] = {
        {R"({"type": "picture", "path": "logo.png"})", ""},
        {R"({"type": "picture", "path": "none.png"})",
         "elements[0].path: " + folder.Path("none.png") + ": No such file or directory"},
        {R"({"type": "picture", "path": "."})",
         "elements[0].path: " + folder.Path("") + ": Is a directory"},
        {R"({"type": "picture", "path": "scene.json"})",
         "elements[0].path: " + folder.Path("scene.json") +
             ": No such file or directory"},
        {R"({"type": "title", "font": "Arial"})", ""},
        {R"({"type": "title", "font": "Nosuch Grotesk"})",
         "elements[0].font: no font family \"Nosuch Grotesk\" is installed"},
        {R"({"type": "legend", "titleFont": "Nosuch Grotesk"})",
         "elements[0].titleFont: no font family \"Nosuch Grotesk\" is installed"},
    };
    for (const auto& row : rows) {
        const host::Page page = host::ReadPage(host_tests::PageText(row.element),
                                               host::FilePaths(folder.Path("page.json")));
        EXPECT_EQ(host_tests::PageErrorOf([&] { CheckFilesAndFonts(page); }), row.error);
    }
}

}  // namespace
