#include <gmock/gmock.h>

#include <cmath>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/element_of.h"
#include "page/layout/laid_out.h"
#include "page/placed_frame.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using host_tests::LaidOut;
using ::testing::AnyOf;
using ::testing::DoubleNear;

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
    std::vector<Label> labels;
    for (const recording::Written& written : recording::WrittenIn(drawing)) {
        // A box that is filled has its label written twice at the same place.
        if (written.text.find_first_not_of("0123456789.") == std::string::npos &&
            (labels.empty() || labels.back().x != written.x)) {
            labels.push_back({std::stod(written.text), written.x});
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
                const LaidOut found(design, MapOf(width, width * 0.8));
                auto* const frame = found.Of<host::ScaleBarFrame>(SurroundScaleBar);
                ASSERT_NE(frame, nullptr);
                EXPECT_NEAR(frame->DivisionLength() / found.map.Width() * width /
                                frame->DivisionValue(),
                            1.0, 1e-12)
                    << "of a map " << width << " wide";
                recording::Surface surface(8, 8);
                recording::Recording recording(recording::Mode::RecordOnly);
                frame->Draw(surface.Graphics(), CPoint(500, 500), 3.0);
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
    using host::DistanceUnit;
    // Less than a third of the 6 km of the map: a division is below a kilometre or a
    // mile.
    const struct {
        std::optional<DistanceUnit> unit;
        std::wstring name;
        double metres;
    } rows[] = {
        {std::nullopt, L"m", 1.0},
        {DistanceUnit::Kilometre, L"km", 1000.0},
        {DistanceUnit::Foot, L"ft", 0.3048},
        {DistanceUnit::UsSurveyFoot, L"US ft", 1200.0 / 3937.0},
        {DistanceUnit::Yard, L"yd", 0.9144},
        {DistanceUnit::Mile, L"mi", 1609.344},
        {DistanceUnit::Imperial, L"ft", 0.3048},
        {DistanceUnit::NauticalMile, L"nmi", 1852.0},
    };
    for (const auto& row : rows) {
        host::PageDesign design;
        design.scaleBar.distances = host::BarDistances::Map;
        design.scaleBar.unit = row.unit;
        const LaidOut found(design, MapOf(6000.0, 4500.0));
        const auto* const frame = found.Of<host::ScaleBarFrame>(SurroundScaleBar);
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(host::ElementOf<CScaleBarBase>(*frame)->GetUnitsName(), row.name);
        EXPECT_NEAR(frame->DivisionLength() / found.map.Width() * 6000.0,
                    frame->DivisionValue() * row.metres, 1e-6);
        const double digit =
            frame->DivisionValue() /
            std::pow(10.0, std::floor(std::log10(frame->DivisionValue()) + 1e-9));
        EXPECT_THAT(digit, AnyOf(DoubleNear(1.0, 1e-9), DoubleNear(2.0, 1e-9),
                                 DoubleNear(5.0, 1e-9)))
            << frame->DivisionValue();
    }
}

TEST(Furniture, IsLeftOutWhereTheMapHasNoCoordinates) {
    host::PageDesign design;
    const LaidOut found(design, {nullptr, 1.5});
    EXPECT_EQ(found.Of(SurroundScaleBar), nullptr);
    EXPECT_EQ(found.Of(SurroundNorthArrow), nullptr);
    EXPECT_EQ(found.Of(SurroundLegend), nullptr);

    design.northArrow.style = host::StyleOf<CNorthArrowTwoAngle>();
    design.northArrow.angle = 0.0;
    EXPECT_NE(LaidOut(design, {nullptr, 1.5}).Of(SurroundNorthArrow), nullptr)
        << "as asked for";
}

TEST(Furniture, TakesWhatTheDesignSays) {
    fakes::Raster source(L"a_scene_with_quite_a_long_name.tif", DisplayRGB);
    source.hasBand = source.hasTable = false;
    host::PageDesign design;
    design.scaleBar.style = host::StyleOf<CScaleLine3>();
    design.scaleBar.subdivisions = 3;
    design.scaleBar.unitPosition = UnitPosBefore;
    design.scaleBar.distances = host::BarDistances::Map;
    design.scaleBar.unitName = L"Kilometre";
    design.northArrow.style = host::StyleOf<CNorthArrowFourAngle>();
    design.northArrow.angle = 12.5;
    design.legend.title = L"What it shows";
    host::MapOnPage map = MapOf(1000.0, 900.0);
    map.sources = {&source};
    const LaidOut found(design, map);

    const auto& bar = found.The<CScaleLine3>(SurroundScaleBar);
    EXPECT_EQ(bar.GetMainDivCount(), 4);
    EXPECT_EQ(bar.GetSubDivCount(), 3);
    EXPECT_EQ(bar.GetUnitPos(), UnitPosBefore);
    EXPECT_EQ(bar.GetUnitsName(), L"Kilometre");
    EXPECT_FLOAT_EQ(found.The<CNorthArrowFourAngle>(SurroundNorthArrow).GetAngle(),
                    12.5f);
    EXPECT_EQ(found.The<CMapLegend>(SurroundLegend).GetTitleValue(), L"What it shows");

    design.legend.shown = false;
    EXPECT_EQ(LaidOut(design, map).Of(SurroundLegend), nullptr);
}

TEST(Furniture, LeavesOutWhatItDoesNotKnowAndTells) {
    host::PageDesign design;
    design.scaleBar.numeric = true;
    const LaidOut found(design, MapOf(10.0, 10.0));
    EXPECT_EQ(found.remarks.size(), 3u) << "north, the bar and the scale";
    EXPECT_EQ(found.Of(SurroundScaleBar), nullptr);
    EXPECT_EQ(found.Of(SurroundNorthArrow), nullptr);
    design.map.scale = 1000.0;
    EXPECT_THROW(host::LayOut(design, MapOf(10.0, 10.0)), std::runtime_error);
}

}  // namespace
