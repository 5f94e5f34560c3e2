#include "page/layout/fit_to_map.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/document/document_test.h"
#include "page/document/page_text.h"
#include "page/document/raster_store.h"
#include "page/element_of.h"
#include "page/placed_frame.h"

namespace {

using host::Box;

struct WidenedRow {
    Box given;
    double aspectRatio;
    Box expected;
};

TEST(WidenedExtent, HasTheProportionsOfTheFrame) {
    const WidenedRow rows[] = {
        {{0, 0, 10, 10}, 2.0, {-5, 0, 15, 10}},
        {{0, 0, 10, 10}, 0.5, {0, -5, 10, 15}},
        {{100, 200, 140, 220}, 2.0, {100, 200, 140, 220}},
        {{0, 0, 10, 10}, 1.004, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, 0.0, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, HUGE_VAL, {0, 0, 10, 10}},
        {{0, 0, 10, 10}, std::nan(""), {0, 0, 10, 10}},
    };
    for (const WidenedRow& row : rows) {
        const Box extent = host::Widened(row.given, row.aspectRatio);
        EXPECT_DOUBLE_EQ(extent.left, row.expected.left) << row.aspectRatio;
        EXPECT_DOUBLE_EQ(extent.bottom, row.expected.bottom) << row.aspectRatio;
        EXPECT_DOUBLE_EQ(extent.right, row.expected.right) << row.aspectRatio;
        EXPECT_DOUBLE_EQ(extent.top, row.expected.top) << row.aspectRatio;
    }
}

/// scene.tif has 40 x 30 pixels of 30 m: 1200 m on 400 page units are 3 m a unit.
class FitToMap : public host_tests::DocumentTest {
protected:
    host::PageItem& Fit(const std::string& element, const std::string& extent) {
        page = host::ReadPage(
            R"({"version": 2, "width": 500, "height": 400, "elements": [
                {"type": "map", "rasters": ["scene.tif"], "extent": )" +
                extent +
                R"(, "frame": {"left": 50, "top": 350, "width": 400, "height": 300}}, )" +
                element + "]}",
            host::FilePaths(folder.Path("page.json")));
        OpenRasters(page, store);
        host::FitToMap(page);
        return page.Items()[1];
    }

    host::ScaleBarFrame& FitBar(const std::string& bar, const std::string& extent) {
        return *host::FrameAs<host::ScaleBarFrame>(Fit(bar, extent));
    }

    host::RasterStore store;
    host::Page page{1.0, 1.0};
};

struct BarRow {
    std::string properties;
    std::string extent;
    double value;
    double length;
};

TEST_F(FitToMap, DivisionsAreTrueToTheMap) {
    const std::string half =
        R"({"left": 500000, "bottom": 8999550, "right": 500600, "top": 9000000})";
    const BarRow rows[] = {
        // True, and so left alone, though 75 is not round.
        {R"("distances": "map", "divisionValue": 75, "divisionLength": 25)", "null", 75,
         25},
        // 25 units are 75 m; 70 m are 23.3 units.
        {R"("distances": "map", "divisionValue": 100, "divisionLength": 25)", "null", 70,
         70.0 / 3.0},
        // Half the map on the same frame: 1.5 m a unit.
        {R"("distances": "map", "divisionValue": 75, "divisionLength": 25)", half, 30,
         20},
        {R"("distances": "fixed", "divisionValue": 75, "divisionLength": 25)", half, 75,
         25},
    };
    for (const BarRow& row : rows) {
        const host::ScaleBarFrame& frame =
            FitBar("{\"type\": \"scale-bar-line\", " + row.properties + "}", row.extent);
        EXPECT_DOUBLE_EQ(frame.DivisionValue(), row.value) << row.properties;
        EXPECT_DOUBLE_EQ(frame.DivisionLength(), row.length) << row.properties;
    }
}

TEST_F(FitToMap, GroundDivisionsAreInTheUnitOfTheBar) {
    // The scale of UTM on its central meridian is 0.9996: 1 km on the ground is 999.6 m
    // on the map, near easting 500 000.
    const host::ScaleBarFrame& frame = FitBar(
        R"({"type": "scale-bar-line", "distances": "ground", "unitType": "kilometer",
            "divisionValue": 1, "divisionLength": 100})",
        "null");
    EXPECT_DOUBLE_EQ(frame.DivisionValue(), 0.3);
    EXPECT_NEAR(frame.DivisionLength(), 300.0 * 0.9996 / 3.0, 0.01);
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
