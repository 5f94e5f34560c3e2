#include "page/layout/fit_to_map.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/document/document_test.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "page/expect_box.h"
#include "page/map/map_layers.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"

namespace {

using host::Box;

TEST(WidenedExtent, HasTheProportionsOfTheFrame) {
    const struct {
        Box given;
        double aspectRatio;
        Box expected;
    } rows[] = {
        {{0, 0, 10, 10}, 2.0, {-5, 0, 15, 10}},
        {{0, 0, 10, 10}, 0.5, {0, -5, 10, 15}},
        {{100, 200, 140, 220}, 2.0, {100, 200, 140, 220}},
        {{0, 0, 10, 10}, 1.004, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, 0.0, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, HUGE_VAL, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, std::nan(""), {0, 0, 10, 10}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.aspectRatio);
        host_tests::ExpectBox(host::Widened(row.given, row.aspectRatio), row.expected);
    }
}

/// scene.tif has 40 x 30 pixels of 30 m: 1200 m on 400 page units are 3 m a unit.
class FitToMap : public host_tests::DocumentTest {
protected:
    host::PageItem& Fit(const std::string& element, const std::string& extent,
                        const std::string& raster = "scene.tif") {
        page = host::ReadPage(
            R"({"version": 2, "width": 500, "height": 400, "elements": [
                {"type": "map", "rasters": [")" +
                raster + R"("], "extent": )" + extent +
                R"(, "frame": {"left": 50, "top": 350, "width": 400, "height": 300}}, )" +
                element + "]}",
            host::FilePaths(folder.Path("page.json")));
        OpenRasters(page, store);
        remarks = host::FitToMap(page);
        return page.Items()[1];
    }

    host::ScaleBarFrame& FitBar(const std::string& bar, const std::string& extent) {
        return *host::FrameAs<host::ScaleBarFrame>(Fit(bar, extent));
    }

    host::Page page{1.0, 1.0};
    std::vector<std::string> remarks;
};

TEST_F(FitToMap, DivisionsAreTrueToTheMap) {
    const std::string half =
        R"({"left": 500000, "bottom": 8999550, "right": 500600, "top": 9000000})";
    const struct {
        std::string properties;
        std::string extent;
        double value;
        double length;
    } rows[] = {
        // True, and so left alone, though 75 is not round.
        {R"("distances": "map", "divisionValue": 75)", "null", 75, 25},
        // 25 units are 75 m; 50 m are 16.7 units.
        {R"("distances": "map", "divisionValue": 100)", "null", 50, 50.0 / 3.0},
        // There is room for four times as much: 300 m, of which 200 are round.
        {R"("distances": "map", "divisionValue": 100, "longest": 100)", "null", 200,
         200.0 / 3.0},
        // Half the map on the same frame: 1.5 m a unit, and 37.5 m.
        {R"("distances": "map", "divisionValue": 75)", half, 20, 20.0 / 1.5},
        {R"("distances": "fixed", "divisionValue": 75)", half, 75, 25},
        // As version 1 does: any one digit, 70 and 30.
        {R"("distances": "map", "exact": false, "divisionValue": 100)", "null", 70,
         70.0 / 3.0},
        {R"("distances": "map", "exact": false, "divisionValue": 75)", half, 30, 20},
        // 75 m are 246.06 feet.
        {R"("distances": "map", "unit": "ft", "divisionValue": 1)", "null", 200,
         200.0 * 0.3048 / 3.0},
    };
    for (const auto& row : rows) {
        const host::ScaleBarFrame& frame =
            FitBar(R"({"type": "scale-bar-line", "divisions": 1, "units": "m",
                       "divisionLength": 25, )" +
                       row.properties + "}",
                   row.extent);
        EXPECT_DOUBLE_EQ(frame.DivisionValue(), row.value) << row.properties;
        EXPECT_DOUBLE_EQ(frame.DivisionLength(), row.length) << row.properties;
    }
}

TEST_F(FitToMap, KeepsWhatIsToStay) {
    // 400 units of 3 m are to be no longer than 100, which are 300 m: 3 of 100 m are as
    // long, 4 of 50 m are 200 m, and there are ten times 30 m.
    for (const auto& [fit, divisions, value] :
         {std::tuple("width", 3, 100.0), {"count", 4, 50.0}, {"value", 10, 30.0}}) {
        host::ScaleBarFrame& frame = FitBar(
            R"({"type": "scale-bar-line", "distances": "map", "divisions": 4, "units": "m",
                "divisionValue": 30, "divisionLength": 25, "fit": ")" +
                std::string(fit) + "\"}",
            "null");
        EXPECT_EQ(host::ElementOf<CScaleBarBase>(frame)->GetMainDivCount(), divisions)
            << fit;
        EXPECT_DOUBLE_EQ(frame.DivisionValue(), value) << fit;
    }
}

TEST_F(FitToMap, GroundDivisionsAreInTheUnitOfTheBar) {
    // The scale of UTM on its central meridian is 0.9996: 1 km on the ground is 999.6 m
    // on the map, near easting 500 000.
    const host::ScaleBarFrame& inVersion1 = FitBar(
        R"({"type": "scale-bar-line", "distances": "ground", "unitType": "kilometer",
            "exact": false, "divisionValue": 1, "divisionLength": 100})",
        "null");
    EXPECT_DOUBLE_EQ(inVersion1.DivisionValue(), 0.3);
    EXPECT_NEAR(inVersion1.DivisionLength(), 300.0 * 0.9996 / 3.0, 0.01);

    host::ScaleBarFrame& metric = FitBar(
        R"({"type": "scale-bar-line", "distances": "ground", "units": "km",
            "divisions": 1, "divisionValue": 1, "divisionLength": 100})",
        "null");
    EXPECT_DOUBLE_EQ(metric.DivisionValue(), 200.0);
    EXPECT_NEAR(metric.DivisionLength(), 200.0 * 0.9996 / 3.0, 0.01);
    EXPECT_EQ(host::ElementOf<CScaleBarBase>(metric)->GetUnitsName(), L"m");
}

TEST_F(FitToMap, TheScaleInFiguresIsThatOfTheGround) {
    // 3 m on 1/96 inch are 1 : 11 338.58 on the map, 0.9996 of that on the ground.
    host::PageItem& scale = Fit(R"({"type": "numeric-scale"})", "null");
    EXPECT_EQ(host::ElementOf<host::NumericScale>(scale)->Denominator(), 11340.0);
    EXPECT_EQ(host::ElementOf<CMapTitle>(scale)->GetFontValue(),
              L"1\u00A0:\u00A011\u00A0340");
}

TEST_F(FitToMap, AMapKeepsItsScale) {
    host::PageItem& scale = Fit(R"({"type": "numeric-scale"})", R"(null, "scale": 5000)");
    EXPECT_EQ(host::ElementOf<host::NumericScale>(scale)->Denominator(), 5000.0);
    const auto& map = std::get<host::MapFrame>(page.Items()[0]);
    // 400 page units are 105.83 mm, and 529.17 m at that scale.
    const auto& layers = dynamic_cast<const host::MapLayers&>(*map.picture);
    EXPECT_NEAR(layers.Extent().Width() / 0.9996, 400.0 / 96.0 * 0.0254 * 5000.0, 0.01);
    EXPECT_DOUBLE_EQ(layers.Extent().MiddleX(), 500600.0);
}

TEST_F(FitToMap, TellsWhatItCannotMakeTrue) {
    Fit(R"({"type": "scale-bar-line", "name": "bar", "distances": "map", "unit": "deg"})",
        "null");
    ASSERT_EQ(remarks.size(), 1u);
    EXPECT_THAT(remarks[0], ::testing::HasSubstr("bar: the scale bar is not true"));
    Fit(R"({"type": "scale-bar-line", "distances": "map", "unit": "km", "fit": "value",
            "divisionValue": 50})",
        "null");
    EXPECT_EQ(remarks.size(), 1u) << "50 km do not fit";

    for (const auto& [element, what] :
         {std::pair(R"("scale-bar-line", "distances": "ground")",
                    "it: the scale bar is not true to the map"),
          {R"("north-arrow-one", "trueNorth": true)",
           "it: the north arrow does not follow the map"},
          {R"("numeric-scale")", "it: the numeric scale is not that of the map"}}) {
        Fit(std::string(R"({"name": "it", "type": )") + element + "}", "null",
            "logo.png");
        EXPECT_EQ(remarks, std::vector<std::string>{std::string(what) +
                                                    ", which has no georeference"});
    }
    for (const char* const stays :
         {R"("scale-bar-line", "distances": "fixed")", R"("north-arrow-one")"}) {
        Fit(std::string(R"({"type": )") + stays + "}", "null", "logo.png");
        EXPECT_TRUE(remarks.empty());
    }
}

TEST_F(FitToMap, ArrowsThatFollowTrueNorthTurn) {
    const auto angleOf = [this](const std::string& properties) {
        host::PageItem& item =
            Fit("{\"type\": \"north-arrow-one\", " + properties + "}", "null");
        return host::ElementOf<CNorthArrowBase>(item)->GetAngle();
    };
    EXPECT_EQ(angleOf(R"("trueNorth": false, "angle": 33)"), 33.0f);
    // South of the equator and east of the central meridian north leans to the right.
    const float angle = angleOf(R"("trueNorth": true, "angle": 33)");
    EXPECT_GT(angle, 0.0f);
    EXPECT_LT(angle, 0.01f);
}

}  // namespace
