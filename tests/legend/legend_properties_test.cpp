#include <gtest/gtest.h>

#include <type_traits>

#include "legend/legend_model.h"

namespace {

using model::Kind;
using namespace recording;

model::Legend Described() {
    model::Legend legend;
    legend.title = {"Explanation", "Serif", 21, 3, 0xFF123456};
    legend.fileName = {"", "Mono", 15, 2, 0x80654321};
    legend.sources = {{Kind::Rgb, "a.tif", {0, 1, 2}, 0, 0, {}},
                      {Kind::Gray, "b.tif", {0, 1, 2}, -5, 250, {}},
                      {Kind::Classified,
                       "c.tif",
                       {0, 1, 2},
                       0,
                       0,
                       {{"water", 0xFF0000AA}, {"forest", 0xFF00AA00}}}};
    return legend;
}

/// What measuring leaves in the fields that can be read.
void ExpectMeasured(const CMapLegend& legend, const model::Natural& natural) {
    EXPECT_EQ(legend.GetSize(), natural.height);
    EXPECT_EQ(legend.GetAspectRatio(), natural.aspect);
    EXPECT_EQ(legend.GetTitleSize(), natural.titleEm);
    EXPECT_EQ(legend.GetFileNameSize(), natural.fileNameEm);
}

/// What a legend draws, with the ink scripted.
std::vector<std::string> DrawingOf(CMapLegend& legend, double scale = 1.0) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Typical);
    legend.Draw(surface.Graphics(), CPoint(200, 150), scale);
    return recording.Drawing();
}

void Measure(CMapLegend& legend) {
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Typical);
    legend.ResetAspectRatio();
}

TEST(LegendProperties, AFreshLegendHasItsDefaults) {
    const CMapLegend legend;
    EXPECT_EQ(legend.GetItemType(), SurroundLegend);
    EXPECT_EQ(legend.GetItemType(), 4);
    EXPECT_EQ(legend.GetFrontColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(legend.GetAspectRatio(), 5.8f);
    EXPECT_EQ(legend.GetAngle(), 0.0f);
    EXPECT_EQ(legend.GetSize(), 0);
    EXPECT_EQ(legend.GetTitleValue(), L"");
    EXPECT_EQ(legend.GetTitle(), L"Arial");
    EXPECT_EQ(legend.GetTitleSize(), 20.0f);
    EXPECT_EQ(legend.GetTitleStyle(), Gdiplus::FontStyleBold);
    EXPECT_EQ(legend.GetTitleColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(legend.GetFileName(), L"Arial");
    EXPECT_EQ(legend.GetFileNameSize(), 15.0f);
    EXPECT_EQ(legend.GetFileNameStyle(), Gdiplus::FontStyleRegular);
    EXPECT_EQ(legend.GetFileColor().GetValue(), 0xFF000000u);
}

TEST(LegendProperties, TheSizeFactorIsOneAtFirst) {
    CMapLegend legend;
    Measure(legend);
    EXPECT_EQ(legend.GetTitleSize(), 20.0f);
    EXPECT_EQ(legend.GetFileNameSize(), 15.0f);
}

TEST(LegendProperties, AccessorsReachTheirFieldAndNoOther) {
    CMapLegend legend;
    legend.SetTitleValue(L"图例");
    legend.SetTitle(L"SimSun");
    legend.SetTitleSize(31.5f);
    legend.SetTitleStyle(Gdiplus::FontStyleItalic);
    legend.SetTitleColor(Gdiplus::Color(0x11223344));
    legend.SetFileName(L"KaiTi");
    legend.SetFileNameSize(-2.25f);
    legend.SetFileNameStyle(Gdiplus::FontStyleStrikeout);
    legend.SetFileColor(Gdiplus::Color(0x55667788));
    legend.SetSizeAspect(7.0f);

    EXPECT_EQ(legend.GetTitleValue(), L"图例");
    EXPECT_EQ(legend.GetTitle(), L"SimSun");
    EXPECT_EQ(legend.GetTitleSize(), 31.5f);
    EXPECT_EQ(legend.GetTitleStyle(), Gdiplus::FontStyleItalic);
    EXPECT_EQ(legend.GetTitleColor().GetValue(), 0x11223344u);
    EXPECT_EQ(legend.GetFileName(), L"KaiTi");
    EXPECT_EQ(legend.GetFileNameSize(), -2.25f);
    EXPECT_EQ(legend.GetFileNameStyle(), Gdiplus::FontStyleStrikeout);
    EXPECT_EQ(legend.GetFileColor().GetValue(), 0x55667788u);
    EXPECT_EQ(legend.GetSize(), 0);
    EXPECT_EQ(legend.GetAspectRatio(), 5.8f);
    EXPECT_EQ(legend.GetFrontColor().GetValue(), 0xFF000000u);
}

static_assert(std::is_base_of_v<CMapSurround, CMapLegend>);
static_assert(std::is_same_v<decltype(&CMapLegend::SetDataSouce),
                             void (CMapLegend::*)(std::vector<CGISDataSource*>)>);
static_assert(std::is_same_v<decltype(&CMapLegend::GetTitleValue),
                             std::wstring (CMapLegend::*)() const>);

TEST(LegendProperties, SettersDoNotMeasure) {
    model::Built built = model::Build(Described());
    Measure(built.legend);
    const int size = built.legend.GetSize();
    Recording recording;
    built.legend.SetTitleValue(L"Another");
    built.legend.SetFileNameSize(40.0f);
    built.legend.SetSizeAspect(2.0f);
    built.legend.SetDataSouce({});
    EXPECT_EQ(recording.Count(), 0);
    EXPECT_EQ(built.legend.GetSize(), size);
}

TEST(LegendProperties, MeasuringOverwritesTheHostsSize) {
    model::Built built = model::Build(Described());
    built.legend.SetSize(999);
    built.legend.SetAspectRatio(99.0f);
    Measure(built.legend);
    ExpectMeasured(built.legend, model::Measured(Described(), ink::Typical));
}

TEST(LegendProperties, DrawingChangesNoField) {
    model::Built built = model::Build(Described());
    built.legend.SetSizeAspect(2.0f);
    Measure(built.legend);
    model::Legend described = Described();
    described.factor = 2.0f;
    const std::vector<std::string> first = DrawingOf(built.legend, 3.125);
    EXPECT_EQ(DrawingOf(built.legend, 3.125), first);
    ExpectMeasured(built.legend, model::Measured(described, ink::Typical));
}

TEST(LegendProperties, NeitherFrontColourNorAngleHasAnyEffect) {
    model::Built built = model::Build(Described());
    Measure(built.legend);
    const std::vector<std::string> plain = DrawingOf(built.legend);
    built.legend.SetFrontColor(Gdiplus::Color(0xFFAABBCC));
    built.legend.SetAngle(30.0f);
    EXPECT_EQ(DrawingOf(built.legend), plain);
}

TEST(LegendProperties, ACopyHasEveryFieldAndTheSameSources) {
    model::Legend described = Described();
    described.factor = 2.0f;
    model::Built built = model::Build(described);
    Measure(built.legend);
    built.legend.SetFrontColor(Gdiplus::Color(0xFFAABBCC));
    built.legend.SetAngle(12.5f);
    built.legend.SetItemType(SurroundPicture);
    const std::vector<std::string> drawing = DrawingOf(built.legend);

    const auto expectCopy = [&](CMapLegend& copy) {
        EXPECT_EQ(copy.GetFrontColor().GetValue(), 0xFFAABBCCu);
        EXPECT_EQ(copy.GetAngle(), 12.5f);
        EXPECT_EQ(copy.GetItemType(), SurroundPicture);
        EXPECT_EQ(copy.GetTitleValue(), L"Explanation");
        EXPECT_EQ(copy.GetTitle(), L"Serif");
        EXPECT_EQ(copy.GetFileName(), L"Mono");
        EXPECT_EQ(copy.GetTitleStyle(), Gdiplus::FontStyleBoldItalic);
        EXPECT_EQ(copy.GetFileNameStyle(), Gdiplus::FontStyleItalic);
        ExpectMeasured(copy, model::Measured(described, ink::Typical));
        EXPECT_EQ(DrawingOf(copy), drawing);
    };
    CMapLegend copy(built.legend);
    expectCopy(copy);
    CMapLegend assigned;
    EXPECT_EQ(&(assigned = built.legend), &assigned);
    expectCopy(assigned);
    const CMapLegend& self = assigned;
    assigned = self;
    expectCopy(assigned);

    // The size factor too: measuring the copy again doubles again.
    Measure(copy);
    EXPECT_EQ(copy.GetTitleSize(), 84.0f);
    // And from now on they are two.
    EXPECT_EQ(built.legend.GetTitleSize(), 42.0f);
    copy.SetDataSouce({});
    EXPECT_EQ(DrawingOf(built.legend), drawing);
}

TEST(LegendProperties, SourcesOutliveEveryCopy) {
    int destroyed = 0;
    {
        fakes::Raster raster(L"a.tif", DisplayRGB);
        raster.destroyed = &destroyed;
        {
            CMapLegend legend;
            legend.SetDataSouce({&raster, &raster});
            const CMapLegend copy(legend);
            CMapLegend assigned;
            assigned = copy;
            const std::unique_ptr<CMapSurround> byBase =
                std::make_unique<CMapLegend>(assigned);
        }
        EXPECT_EQ(destroyed, 0);
        EXPECT_EQ(raster.GetFileName(), L"a.tif");
    }
    EXPECT_EQ(destroyed, 1);
}

}  // namespace
