// Random automatic pages: sheets from A6 to A0, maps from 1 : 6 to 6 : 1, legends of 0 to
// 256 rows. What a cartographer would send back is a failure.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>

#include "given.h"
#include "legend/fake_sources.h"
#include "page/layout/laid_out.h"
#include "page/layout/page_remarks.h"
#include "page/layout/text_size.h"
#include "system/utf8.h"

namespace {

using host::LayoutDesign;
using host_tests::Given;
using host_tests::LaidOut;

constexpr const char* kProjection =
    R"(PROJCS["UTM 25S",GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,)"
    R"(298.257223563]],PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]],)"
    R"(PROJECTION["Transverse_Mercator"],PARAMETER["latitude_of_origin",0],)"
    R"(PARAMETER["central_meridian",-33],PARAMETER["scale_factor",0.9996],)"
    R"(PARAMETER["false_easting",500000],PARAMETER["false_northing",10000000],)"
    R"(UNIT["metre",1]])";

constexpr const wchar_t* kNames[] = {
    L"Water",
    L"Dense ombrophilous forest",
    L"Urban fabric, discontinuous",
    L"\u5E38\u7EFF\u9614\u53F6\u6797\u4E0E\u7EA2\u6811\u6797",
    L"Transitional woodland and shrub on sandy soils",
    L"\u063A\u0627\u0628\u0629 \u0643\u062B\u064A\u0641\u0629",
    L"Broad-leaved_forest_2024.v2"};

constexpr const wchar_t* kTitles[] = {
    L"", L"Olinda", L"Land cover of the coast of Pernambuco",
    L"\u5965\u6797\u8FBE\u5730\u533A\u7684\u571F\u5730\u8986\u76D6\u56FE",
    L"Land cover of the coast of Pernambuco and the islands off it, as interpreted from "
    L"pictures of 1999 to 2004"};

/// Everything that is drawn by lot.
struct Case {
    std::string sheet;
    bool isUpright;
    double aspectRatio;
    int rows;
    bool hasLongNames;
    LayoutDesign layout;
    int language;
    int title;
    bool hasScale;
};

std::ostream& operator<<(std::ostream& out, const Case& page) {
    constexpr const char* kLayouts[] = {"classic", "side", "bottom"};
    return out << page.sheet << (page.isUpright ? " upright" : "") << ", map "
               << page.aspectRatio << ", " << page.rows
               << (page.hasLongNames ? " long" : "") << " rows, "
               << kLayouts[static_cast<int>(page.layout)] << ", language "
               << page.language << ", title " << page.title
               << (page.hasScale ? ", scale" : "");
}

template <typename T, std::size_t Count>
T OneOf(std::mt19937& lot, const T (&values)[Count]) {
    return values[std::uniform_int_distribution<std::size_t>(0, Count - 1)(lot)];
}

Case CaseOf(std::uint32_t seed) {
    std::mt19937 lot(seed);
    Case page;
    page.sheet = OneOf(lot, {"A6", "A5", "A4", "A3", "A2", "A1", "A0"});
    page.isUpright = OneOf(lot, {false, true});
    page.aspectRatio = OneOf(lot, {1.0 / 6.0, 0.3, 0.5, 0.71, 1.0, 1.41, 2.0, 3.5, 6.0});
    page.rows = OneOf(lot, {0, 1, 3, 8, 8, 14, 24, 40, 60, 120, 256});
    page.hasLongNames = OneOf(lot, {false, true});
    page.layout = OneOf(lot, {LayoutDesign::Classic, LayoutDesign::Classic,
                              LayoutDesign::Side, LayoutDesign::Bottom});
    page.language = std::uniform_int_distribution<int>(0, 8)(lot);
    page.title = std::uniform_int_distribution<int>(0, 4)(lot);
    page.hasScale = OneOf(lot, {false, true});
    return page;
}

/// The part of the largest map that the sheet could hold, from edge to edge, which is to
/// be left to the map at least: less on small sheets, where type cannot shrink as they
/// do, and beside long legends.
double LeastShare(const Case& page) {
    struct Row {
        int mostRows;
        double largeSheet;  // A4 and above
        double smallSheet;
    };
    constexpr Row kClassic[] = {{8, 0.50, 0.40}, {60, 0.45, 0.11}, {256, 0.18, 0.11}};
    // A design that is asked for may not suit the shape of the map.
    constexpr Row kAskedFor[] = {{8, 0.33, 0.25}, {60, 0.28, 0.11}, {256, 0.15, 0.10}};
    const bool isSmall = page.sheet == "A5" || page.sheet == "A6";
    for (const Row& row : page.layout == LayoutDesign::Classic ? kClassic : kAskedFor) {
        if (page.rows <= row.mostRows) {
            return isSmall ? row.smallSheet : row.largeSheet;
        }
    }
    return 0.0;
}

/// The page of a case, with the sources that its legend explains.
struct MadePage {
    explicit MadePage(const Case& page)
        : source(L"land_cover_of_2024.tif", DisplayClassified) {
        EXPECT_TRUE(host::ParsePaperSize(page.sheet, design.paper));
        if (page.isUpright) {
            std::swap(design.paper.width, design.paper.height);
        }
        for (int i = 0; i < page.rows; ++i) {
            const std::wstring name =
                page.hasLongNames ? kNames[i % 7] : L"Class " + std::to_wstring(i + 1);
            source.table.items.emplace_back(name, static_cast<unsigned char>(37 * i),
                                            static_cast<unsigned char>(91 * i), 128);
        }
        design.layout = page.layout;
        design.language = &host::LanguageAt(page.language);
        design.title.text = kTitles[page.title];
        EXPECT_TRUE(host::Widen(MAP_SURROUND_SOURCES "/docs/images/logo.png",
                                design.picture.path));
        design.scaleBar.numeric = page.hasScale;
        map.aspectRatio = page.aspectRatio;
        map.extent = host::Box{290000.0, 9110000.0, 290000.0 + 9000.0 * page.aspectRatio,
                               9119000.0};
        map.projection = kProjection;
        if (page.rows > 0) {
            map.sources = {&source};
        }
    }

    fakes::Raster source;
    host::PageDesign design;
    host::MapOnPage map;
};

class LayoutTrial : public ::testing::TestWithParam<int> {};

void Check(std::uint32_t seed) {
    const Case page = CaseOf(seed);
    std::ostringstream told;
    told << "LAYOUT_PAGES_FIRST=" << seed << ": " << page;
    SCOPED_TRACE(told.str());
    MadePage made(page);
    const LaidOut laid(made.design, made.map);

    EXPECT_THAT(host::RemarksOf(laid.page), ::testing::IsEmpty());
    double mapArea = 0.0;
    bool hasLegend = false;
    for (const host::PageItem& item : laid.page.Items()) {
        const host::Box box = host::BoxOf(host::FrameOf(item).GetExtent());
        if (std::holds_alternative<host::MapFrame>(item)) {
            mapArea = box.Width() * box.Height();
        }
        hasLegend = hasLegend || host::NameOf(item) == "legend";
        if (const std::optional<double> points = host::SmallestText(item)) {
            EXPECT_GE(*points, 5.99) << host::NameOf(item);
        }
    }
    const CSurroundFrame* const arrow = laid.Of(SurroundNorthArrow);
    const CSurroundFrame* const picture = laid.Of(SurroundPicture);
    ASSERT_TRUE(arrow != nullptr && picture != nullptr);
    EXPECT_LE(arrow->GetMapSurround()->GetSize(), picture->GetMapSurround()->GetSize());

    // Only a legend may be too long for its sheet, and that is told.
    const bool isLeftOut = page.rows > 0 && !hasLegend;
    EXPECT_EQ(laid.remarks.size(), isLeftOut ? 1u : 0u)
        << ::testing::PrintToString(laid.remarks);
    const bool isLong = page.rows > (page.hasLongNames ? 14 : 24);
    EXPECT_FALSE(isLeftOut && !isLong);

    const double width =
        std::min(laid.page.Width(), laid.page.Height() * page.aspectRatio);
    const double share = mapArea / (width * width / page.aspectRatio);
    EXPECT_GE(share, LeastShare(page));
}

constexpr int kParts = 4;

TEST_P(LayoutTrial, IsAPageThatACartographerWouldSign) {
    const std::uint32_t first = Given("LAYOUT_PAGES_FIRST", 0);
    const std::uint32_t count = Given("LAYOUT_PAGES", 24);
    for (std::uint32_t seed = first + static_cast<std::uint32_t>(GetParam());
         seed < first + count; seed += kParts) {
        Check(seed);
    }
}

INSTANTIATE_TEST_SUITE_P(Part, LayoutTrial, ::testing::Range(0, kParts));

}  // namespace
