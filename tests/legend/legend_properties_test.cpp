#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"

namespace {

using fakes::Raster;
using namespace recording;

/// A legend with everything set, its sources and the size it was measured to.
struct Described {
    Raster rgb{L"a.tif", DisplayRGB};
    Raster gray{L"b.tif", DisplayGray};
    Raster classes{L"c.tif", DisplayClassified};
    CMapLegend legend;
    int size;
    float aspectRatio;

    explicit Described(float factor = 1.0f) {
        classes.table.items = {{L"water", 0, 0, 170}, {L"forest", 0, 170, 0}};
        legend.SetTitleValue(L"Explanation");
        legend.SetTitle(L"Serif");
        legend.SetTitleSize(21.0f);
        legend.SetTitleStyle(Gdiplus::FontStyleBoldItalic);
        legend.SetTitleColor(Gdiplus::Color(0xFF123456));
        legend.SetFileName(L"Mono");
        legend.SetFileNameStyle(Gdiplus::FontStyleItalic);
        legend.SetFileColor(Gdiplus::Color(0x80654321));
        legend.SetSourceCaption(L"Raster ");
        legend.SetBandCaption(L"Band ");
        legend.SetHighCaption(L"High ");
        legend.SetLowCaption(L"Low ");
        legend.SetShownSources(
            {{L"Scene", true, {Gdiplus::Color(0xFF010203)}}, {L"Relief", false}});
        legend.SetAlignedLabels(true);
        legend.SetGap(0.5f);
        legend.SetMostWidth(77.0f);
        legend.SetColumns(2);
        legend.SetMostLines(3);
        legend.SetSizeAspect(factor);
        legend.SetDataSouce({&rgb, &gray, &classes});
        ink::Measure(legend, ink::Typical);
        size = legend.GetSize();
        aspectRatio = legend.GetAspectRatio();
    }

    void ExpectMeasured(const CMapLegend& measured, float factor = 1.0f) const {
        EXPECT_EQ(measured.GetSize(), size);
        EXPECT_EQ(measured.GetAspectRatio(), aspectRatio);
        EXPECT_EQ(measured.GetTitleSize(), 21.0f * factor);
        EXPECT_EQ(measured.GetFileNameSize(), 15.0f * factor);
    }
};

/// What Described sets and nothing changes.
void ExpectDescribed(const CMapLegend& legend) {
    EXPECT_EQ(legend.GetTitleValue(), L"Explanation");
    EXPECT_EQ(legend.GetTitle(), L"Serif");
    EXPECT_EQ(legend.GetTitleStyle(), Gdiplus::FontStyleBoldItalic);
    EXPECT_EQ(legend.GetTitleColor().GetValue(), 0xFF123456u);
    EXPECT_EQ(legend.GetFileName(), L"Mono");
    EXPECT_EQ(legend.GetFileNameStyle(), Gdiplus::FontStyleItalic);
    EXPECT_EQ(legend.GetFileColor().GetValue(), 0x80654321u);
    EXPECT_EQ(legend.GetSourceCaption(), L"Raster ");
    EXPECT_EQ(legend.GetBandCaption(), L"Band ");
    EXPECT_EQ(legend.GetHighCaption(), L"High ");
    EXPECT_EQ(legend.GetLowCaption(), L"Low ");
    EXPECT_TRUE(legend.GetAlignedLabels());
    EXPECT_EQ(legend.GetGap(), 0.5f);
    EXPECT_EQ(legend.GetMostWidth(), 77.0f);
    EXPECT_EQ(legend.GetColumns(), 2);
    EXPECT_EQ(legend.GetMostLines(), 3);
    EXPECT_TRUE(legend.HasCutTexts());
    const std::vector<LegendSource> shown = legend.GetShownSources();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].name, L"Scene");
    ASSERT_EQ(shown[0].ramp.size(), 1U);
    EXPECT_EQ(shown[0].ramp[0].GetValue(), 0xFF010203u);
    EXPECT_TRUE(shown[0].isShown);
    EXPECT_EQ(shown[1].name, L"Relief");
    EXPECT_FALSE(shown[1].isShown);
}

/// What a legend draws, with the ink scripted.
std::vector<std::string> DrawingOf(CMapLegend& legend, double scale = 1.0) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Typical);
    legend.Draw(surface.Graphics(), CPoint(200, 150), scale);
    return recording.Drawing();
}

TEST(LegendProperties, AFreshLegendHasItsDefaults) {
    const CMapLegend legend;
    EXPECT_EQ(legend.GetTitleValue(), L"");
    EXPECT_EQ(legend.GetTitle(), L"Arial");
    EXPECT_EQ(legend.GetTitleSize(), 20.0f);
    EXPECT_EQ(legend.GetTitleStyle(), Gdiplus::FontStyleBold);
    EXPECT_EQ(legend.GetTitleColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(legend.GetFileName(), L"Arial");
    EXPECT_EQ(legend.GetFileNameSize(), 15.0f);
    EXPECT_EQ(legend.GetFileNameStyle(), Gdiplus::FontStyleRegular);
    EXPECT_EQ(legend.GetFileColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(legend.GetSourceCaption(), L"影像名：");
    EXPECT_EQ(legend.GetBandCaption(), L"波段_");
    EXPECT_EQ(legend.GetHighCaption(), L"高 : ");
    EXPECT_EQ(legend.GetLowCaption(), L"低 : ");
    EXPECT_TRUE(legend.GetShownSources().empty());
    EXPECT_FALSE(legend.GetAlignedLabels());
    EXPECT_EQ(legend.GetGap(), 0.0f);
    EXPECT_EQ(legend.GetMostWidth(), 0.0f);
    EXPECT_EQ(legend.GetColumns(), 1);
    EXPECT_EQ(legend.GetMostLines(), 1);
    EXPECT_FALSE(legend.HasCutTexts());
}

TEST(LegendProperties, TheSizeFactorIsOneAtFirst) {
    CMapLegend legend;
    ink::Measure(legend, ink::Typical);
    EXPECT_EQ(legend.GetTitleSize(), 20.0f);
    EXPECT_EQ(legend.GetFileNameSize(), 15.0f);
}

static_assert(std::is_base_of_v<CMapSurround, CMapLegend>);
static_assert(std::is_same_v<decltype(&CMapLegend::SetDataSouce),
                             void (CMapLegend::*)(std::vector<CGISDataSource*>)>);
static_assert(std::is_same_v<decltype(&CMapLegend::GetTitleValue),
                             std::wstring (CMapLegend::*)() const>);

TEST(LegendProperties, SettersDoNotMeasure) {
    Described built;
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
    Described built;
    built.legend.SetSize(999);
    built.legend.SetAspectRatio(99.0f);
    ink::Measure(built.legend, ink::Typical);
    built.ExpectMeasured(built.legend);
}

TEST(LegendProperties, DrawingChangesNoField) {
    Described built(2.0f);
    const std::vector<std::string> first = DrawingOf(built.legend, 3.125);
    EXPECT_EQ(DrawingOf(built.legend, 3.125), first);
    ExpectDescribed(built.legend);
    built.ExpectMeasured(built.legend, 2.0f);
}

TEST(LegendProperties, NeitherFrontColourNorAngleHasAnyEffect) {
    Described built;
    const std::vector<std::string> plain = DrawingOf(built.legend);
    built.legend.SetFrontColor(Gdiplus::Color(0xFFAABBCC));
    built.legend.SetAngle(30.0f);
    EXPECT_EQ(DrawingOf(built.legend), plain);
}

TEST(LegendProperties, ACopyHasEveryFieldAndTheSameSources) {
    Described built(2.0f);
    built.legend.SetFrontColor(Gdiplus::Color(0xFFAABBCC));
    built.legend.SetAngle(12.5f);
    built.legend.SetItemType(SurroundPicture);
    const std::vector<std::string> drawing = DrawingOf(built.legend);

    const auto expectCopy = [&](CMapLegend& copy) {
        EXPECT_EQ(copy.GetFrontColor().GetValue(), 0xFFAABBCCu);
        EXPECT_EQ(copy.GetAngle(), 12.5f);
        EXPECT_EQ(copy.GetItemType(), SurroundPicture);
        ExpectDescribed(copy);
        built.ExpectMeasured(copy, 2.0f);
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
    ink::Measure(copy, ink::Typical);
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
