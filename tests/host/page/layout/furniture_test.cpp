#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <regex>
#include <string>
#include <variant>
#include <vector>

#include "map_surround/legend.h"
#include "map_surround/north_arrow.h"
#include "map_surround/scale_bar.h"
#include "page/layout/layout.h"
#include "recording/expect.h"

namespace {

/// A raster source in memory, shown as three bands.
class Source : public CRasterSource {
public:
    bool IsAvailable() override { return true; }
    GISDataSourceType GetDataSourceType() override { return DataSourceRaster; }
    std::wstring GetFileName() override { return L"a_scene_with_quite_a_long_name.tif"; }
    DataDisplayType GetDisplayType() override { return DisplayRGB; }
    int GetRedBandNum() override { return 0; }
    int GetGreenBandNum() override { return 1; }
    int GetBlueBandNum() override { return 2; }
    CRasterBand* GetRasterBand(int) override { return nullptr; }
    CClassifyDisplayTable* GetClassifyDisplayTable() override { return nullptr; }
};

struct Furniture {
    CBoundingBox map;
    CSurroundFrame* scaleBar = nullptr;
    CSurroundFrame* northArrow = nullptr;
    CSurroundFrame* legend = nullptr;
};

Furniture Find(const host::Page& page) {
    Furniture found;
    for (const host::PageItem& item : page.Items()) {
        if (const auto* map = std::get_if<host::MapFrame>(&item)) {
            found.map = map->frame.GetExtent();
            continue;
        }
        auto* frame = std::get<std::unique_ptr<CSurroundFrame>>(item).get();
        const CMapSurround* element = frame->GetMapSurround();
        if (element == nullptr) {
            continue;
        }
        switch (element->GetItemType()) {
            case SurroundScaleBar:
                found.scaleBar = frame;
                break;
            case SurroundNorthArrow:
                found.northArrow = frame;
                break;
            case SurroundLegend:
                found.legend = frame;
                break;
            default:
                break;
        }
    }
    return found;
}

host::MapOnPage MapOf(double width, double height) {
    host::MapOnPage map;
    map.aspectRatio = width / height;
    map.extent = host::Box{1000.0, 2000.0, 1000.0 + width, 2000.0 + height};
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

TEST(Furniture, DivisionsAreTrueToTheMapsPixels) {
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        for (const double width : {0.5, 7.0, 970.0, 10031.0, 3.7e6}) {
            for (const int divisions : {1, 3, 5}) {
                host::PageDesign design;
                ASSERT_TRUE(host::ParsePaperSize("A4", design.paper));
                design.scaleBar.style = style;
                design.scaleBar.divisions = divisions;
                const host::LaidOutPage laidOut =
                    host::LayOut(design, MapOf(width, width * 0.8));
                const Furniture found = Find(laidOut.page);
                ASSERT_NE(found.scaleBar, nullptr);
                for (const double scale : {1.0, 150.0 / 96.0, 3.125}) {
                    recording::Surface surface(8, 8);
                    recording::Recording recording(recording::Mode::RecordOnly);
                    found.scaleBar->Draw(surface.Graphics(), CPoint(500, 500), scale);
                    const std::vector<Label> labels = LabelsOf(recording.Drawing());
                    ASSERT_EQ(labels.size(), static_cast<std::size_t>(divisions) + 1);
                    const double pixelsPerUnit = found.map.GetWidth() * scale / width;
                    for (std::size_t i = 0; i < labels.size(); ++i) {
                        const double drawn = labels[i].x - labels[0].x;
                        EXPECT_NEAR(drawn, labels[i].value * pixelsPerUnit,
                                    static_cast<double>(i))
                            << "label " << labels[i].value << " of a map " << width
                            << " wide at scale " << scale;
                    }
                }
            }
        }
    }
}

TEST(Furniture, StandsInsideThePageAndApart) {
    Source source;
    for (const char* paper : {"A4", "210x297", "100x100", "400x60"}) {
        host::PageDesign design;
        ASSERT_TRUE(host::ParsePaperSize(paper, design.paper));
        host::MapOnPage map = MapOf(1000.0, 900.0);
        map.sources = {&source, &source, &source};
        const host::LaidOutPage laidOut = host::LayOut(design, map);
        const Furniture found = Find(laidOut.page);
        std::vector<CBoundingBox> boxes = {found.map};
        for (const CSurroundFrame* frame :
             {found.legend, found.scaleBar, found.northArrow}) {
            ASSERT_NE(frame, nullptr) << paper;
            boxes.push_back(frame->GetExtent());
        }
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            const CPoint2D corner = boxes[i].TopLeft();
            const double right = corner.x + boxes[i].GetWidth();
            const double bottom = corner.y - boxes[i].GetHeight();
            EXPECT_GE(corner.x, 0.0) << paper;
            EXPECT_LE(corner.y, laidOut.page.Height()) << paper;
            EXPECT_LE(right, laidOut.page.Width()) << paper;
            EXPECT_GE(bottom, 0.0) << paper;
            for (std::size_t j = 0; j < i; ++j) {
                const CPoint2D other = boxes[j].TopLeft();
                EXPECT_TRUE(
                    right <= other.x || other.x + boxes[j].GetWidth() <= corner.x ||
                    bottom >= other.y || other.y - boxes[j].GetHeight() >= corner.y)
                    << paper << ": " << i << " over " << j;
            }
        }
    }
}

template <class Element>
const host::CatalogueEntry* StyleOf() {
    return host::FindEntry(Element());
}

TEST(Furniture, IsLeftOutWhereTheMapHasNoCoordinates) {
    host::PageDesign design;
    ASSERT_TRUE(host::ParsePaperSize("A4", design.paper));
    const Furniture found = Find(host::LayOut(design, {nullptr, 1.5}).page);
    EXPECT_EQ(found.scaleBar, nullptr);
    EXPECT_EQ(found.northArrow, nullptr);
    EXPECT_EQ(found.legend, nullptr);

    design.northArrow.style = StyleOf<CNorthArrowTwoAngle>();
    const host::LaidOutPage withArrow = host::LayOut(design, {nullptr, 1.5});
    EXPECT_NE(Find(withArrow.page).northArrow, nullptr) << "as asked for";
}

TEST(Furniture, TakesWhatTheDesignSays) {
    Source source;
    host::PageDesign design;
    ASSERT_TRUE(host::ParsePaperSize("A4", design.paper));
    design.scaleBar.style = StyleOf<CScaleLine3>();
    design.scaleBar.subdivisions = 3;
    design.scaleBar.unitPosition = UnitPosBefore;
    design.scaleBar.units = L"Kilometre";
    design.northArrow.style = StyleOf<CNorthArrowFourAngle>();
    design.northArrow.angle = 12.5;
    design.legend.title = L"What it shows";
    host::MapOnPage map = MapOf(1000.0, 900.0);
    map.sources = {&source};
    const host::LaidOutPage laidOut = host::LayOut(design, map);
    const Furniture found = Find(laidOut.page);

    const auto* bar = dynamic_cast<CScaleLine3*>(found.scaleBar->GetMapSurround());
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->GetMainDivCount(), 4);
    EXPECT_EQ(bar->GetSubDivCount(), 3);
    EXPECT_EQ(bar->GetUnitPos(), UnitPosBefore);
    EXPECT_EQ(bar->GetUnitsName(), L"\u516C\u91CC");
    const auto* arrow =
        dynamic_cast<CNorthArrowFourAngle*>(found.northArrow->GetMapSurround());
    ASSERT_NE(arrow, nullptr);
    EXPECT_FLOAT_EQ(arrow->GetAngle(), 12.5f);
    const auto* legend = dynamic_cast<CMapLegend*>(found.legend->GetMapSurround());
    ASSERT_NE(legend, nullptr);
    EXPECT_EQ(legend->GetTitleValue(), L"What it shows");

    design.legend.shown = false;
    EXPECT_EQ(Find(host::LayOut(design, map).page).legend, nullptr);
}

TEST(Furniture, SaysThatTrueNorthAndTheGroundAreUnknown) {
    host::PageDesign design;
    ASSERT_TRUE(host::ParsePaperSize("A4", design.paper));
    design.northArrow.trueNorth = true;
    design.scaleBar.ground = true;
    EXPECT_EQ(host::LayOut(design, MapOf(10.0, 10.0)).remarks.size(), 2u);
}

}  // namespace
