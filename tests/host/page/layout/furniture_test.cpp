#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/layout/laid_out.h"
#include "page/layout/layout.h"
#include "page/placed_frame.h"
#include "recording/expect.h"

namespace {

using host_tests::LaidOut;

host::MapOnPage MapOf(double width, double height) {
    host::MapOnPage map;
    map.aspectRatio = width / height;
    map.extent = host::Box{1000.0, 2000.0, 1000.0 + width, 2000.0 + height};
    // A plane in metres: of what lies on Earth, nothing is known.
    map.projection = R"(LOCAL_CS["site",UNIT["metre",1]])";
    return map;
}

/// A number written at a place of the drawing.
struct Label {
    double value;
    double x;
};

std::vector<Label> LabelsOf(const std::vector<std::string>& drawing) {
    const std::regex label("GdipDrawString \"([0-9.]+)\" \\((-?[0-9.]+), .*");
    std::vector<Label> labels;
    for (const std::string& line : drawing) {
        std::smatch match;
        // A box that is filled has its label written twice at the same place.
        if (std::regex_match(line, match, label)) {
            const Label read = {std::stod(match[1]), std::stod(match[2])};
            if (labels.empty() || labels.back().x != read.x) {
                labels.push_back(read);
            }
        }
    }
    return labels;
}

TEST(Furniture, DivisionsAreTrueToTheMap) {
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        for (const double width : {0.5, 7.0, 970.0, 10031.0, 3.7e6}) {
            for (const int divisions : {1, 3, 5}) {
                host::PageDesign design;
                design.scaleBar.style = style;
                design.scaleBar.divisions = divisions;
                design.scaleBar.distances = host::BarDistances::Map;
                design.scaleBar.unit = host::DistanceUnit::Metre;
                const host::LaidOutPage laidOut =
                    host::LayOut(design, MapOf(width, width * 0.8));
                const LaidOut found(laidOut.page);
                const auto* const frame =
                    dynamic_cast<const host::ScaleBarFrame*>(found.Of(SurroundScaleBar));
                ASSERT_NE(frame, nullptr);
                EXPECT_NEAR(frame->DivisionLength() / found.map.GetWidth() * width /
                                frame->DivisionValue(),
                            1.0, 1e-12)
                    << "of a map " << width << " wide";
                recording::Surface surface(8, 8);
                recording::Recording recording(recording::Mode::RecordOnly);
                found.Of(SurroundScaleBar)
                    ->Draw(surface.Graphics(), CPoint(500, 500), 3.0);
                const std::vector<Label> labels = LabelsOf(recording.Drawing());
                const int count =
                    host::ElementOf<CScaleBarBase>(*frame)->GetMainDivCount();
                EXPECT_LE(count, divisions) << "as many as their numbers let it be";
                ASSERT_EQ(labels.size(), static_cast<std::size_t>(count) + 1);
                for (std::size_t i = 0; i < labels.size(); ++i) {
                    EXPECT_NEAR(labels[i].value,
                                frame->DivisionValue() * static_cast<double>(i), 1e-9);
                }
            }
        }
    }
}

TEST(Furniture, CountsWhatItIsAskedToCount) {
    struct Row {
        std::optional<host::DistanceUnit> unit;
        std::wstring name;
        double metres;
    };
    using host::DistanceUnit;
    // Less than a third of the 6 km of the map: a division is below a kilometre or a
    // mile.
    const Row rows[] = {
        {std::nullopt, L"m", 1.0},
        {DistanceUnit::Kilometre, L"km", 1000.0},
        {DistanceUnit::Foot, L"ft", 0.3048},
        {DistanceUnit::UsSurveyFoot, L"US ft", 1200.0 / 3937.0},
        {DistanceUnit::Yard, L"yd", 0.9144},
        {DistanceUnit::Mile, L"mi", 1609.344},
        {DistanceUnit::Imperial, L"ft", 0.3048},
        {DistanceUnit::NauticalMile, L"nmi", 1852.0},
    };
    for (const Row& row : rows) {
        host::PageDesign design;
        design.scaleBar.distances = host::BarDistances::Map;
        design.scaleBar.unit = row.unit;
        const host::LaidOutPage laidOut = host::LayOut(design, MapOf(6000.0, 4500.0));
        const LaidOut found(laidOut.page);
        const auto* const frame =
            dynamic_cast<const host::ScaleBarFrame*>(found.Of(SurroundScaleBar));
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(host::ElementOf<CScaleBarBase>(*frame)->GetUnitsName(), row.name);
        EXPECT_NEAR(frame->DivisionLength() / found.map.GetWidth() * 6000.0,
                    frame->DivisionValue() * row.metres, 1e-6);
        const double digit =
            frame->DivisionValue() /
            std::pow(10.0, std::floor(std::log10(frame->DivisionValue()) + 1e-9));
        EXPECT_TRUE(std::fabs(digit - 1.0) < 1e-9 || std::fabs(digit - 2.0) < 1e-9 ||
                    std::fabs(digit - 5.0) < 1e-9)
            << frame->DivisionValue();
    }
}

template <class Element>
const host::CatalogueEntry* StyleOf() {
    return host::FindEntry(Element());
}

TEST(Furniture, IsLeftOutWhereTheMapHasNoCoordinates) {
    host::PageDesign design;
    const host::LaidOutPage bare = host::LayOut(design, {nullptr, 1.5});
    const LaidOut found(bare.page);
    EXPECT_EQ(found.Of(SurroundScaleBar), nullptr);
    EXPECT_EQ(found.Of(SurroundNorthArrow), nullptr);
    EXPECT_EQ(found.Of(SurroundLegend), nullptr);

    design.northArrow.style = StyleOf<CNorthArrowTwoAngle>();
    design.northArrow.angle = 0.0;
    const host::LaidOutPage withArrow = host::LayOut(design, {nullptr, 1.5});
    EXPECT_NE(LaidOut(withArrow.page).Of(SurroundNorthArrow), nullptr) << "as asked for";
}

TEST(Furniture, TakesWhatTheDesignSays) {
    fakes::Raster source(L"a_scene_with_quite_a_long_name.tif", DisplayRGB);
    source.hasBand = source.hasTable = false;
    host::PageDesign design;
    design.scaleBar.style = StyleOf<CScaleLine3>();
    design.scaleBar.subdivisions = 3;
    design.scaleBar.unitPosition = UnitPosBefore;
    design.scaleBar.distances = host::BarDistances::Map;
    design.scaleBar.unitName = L"Kilometre";
    design.northArrow.style = StyleOf<CNorthArrowFourAngle>();
    design.northArrow.angle = 12.5;
    design.legend.title = L"What it shows";
    host::MapOnPage map = MapOf(1000.0, 900.0);
    map.sources = {&source};
    const host::LaidOutPage laidOut = host::LayOut(design, map);
    const LaidOut found(laidOut.page);

    const auto* bar =
        dynamic_cast<CScaleLine3*>(found.Of(SurroundScaleBar)->GetMapSurround());
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->GetMainDivCount(), 4);
    EXPECT_EQ(bar->GetSubDivCount(), 3);
    EXPECT_EQ(bar->GetUnitPos(), UnitPosBefore);
    EXPECT_EQ(bar->GetUnitsName(), L"Kilometre");
    const auto* arrow = dynamic_cast<CNorthArrowFourAngle*>(
        found.Of(SurroundNorthArrow)->GetMapSurround());
    ASSERT_NE(arrow, nullptr);
    EXPECT_FLOAT_EQ(arrow->GetAngle(), 12.5f);
    const auto* legend =
        dynamic_cast<CMapLegend*>(found.Of(SurroundLegend)->GetMapSurround());
    ASSERT_NE(legend, nullptr);
    EXPECT_EQ(legend->GetTitleValue(), L"What it shows");

    design.legend.shown = false;
    EXPECT_EQ(LaidOut(host::LayOut(design, map).page).Of(SurroundLegend), nullptr);
}

TEST(Furniture, LeavesOutWhatItDoesNotKnowAndTells) {
    host::PageDesign design;
    design.scaleBar.numeric = true;
    const host::LaidOutPage laidOut = host::LayOut(design, MapOf(10.0, 10.0));
    EXPECT_EQ(laidOut.remarks.size(), 3u) << "north, the bar and the scale";
    EXPECT_EQ(LaidOut(laidOut.page).Of(SurroundScaleBar), nullptr);
    EXPECT_EQ(LaidOut(laidOut.page).Of(SurroundNorthArrow), nullptr);
    design.map.scale = 1000.0;
    EXPECT_THROW(host::LayOut(design, MapOf(10.0, 10.0)), std::runtime_error);
}

}  // namespace
