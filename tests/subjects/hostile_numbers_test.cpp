// Numbers that no host should give. Every element is drawn with the calls of a tame one;
// under the sanitizers this shows that nothing overflows.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "element/no_numbers.h"
#include "page/catalogue.h"
#include "recording/expect.h"
#include "recording/lines.h"
#include "subjects/subjects.h"

namespace {

using namespace recording;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

constexpr int kInts[] = {kLowest, -40, -1, 0, 1, kHighest};
constexpr float kFloats[] = {kFloatNan, -kFloatInfinity, -1e30f, -1.0f, -0.0f,
                             0.0f,      1e-40f,          0.5f,   1e38f, kFloatInfinity};
constexpr double kMost = std::numeric_limits<double>::max();
constexpr double kDoubles[] = {kNan,   -kInfinity, -kMost, -1e300, -1.0,     0.0,
                               1e-300, 1.0 / 3.0,  1e9,    kMost,  kInfinity};

/// Numbers for the properties that only a class has.
struct Own {
    int whole;
    float real;
    double fine;
};

void SetOwn(CMapSurround& element, const Own& own) {
    if (auto* const title = dynamic_cast<CMapTitle*>(&element)) {
        title->SetFontProcess(static_cast<FontProcess>(own.whole));
        title->SetFontSize(own.fine);
    } else if (auto* const legend = dynamic_cast<CMapLegend*>(&element)) {
        legend->SetTitleSize(own.real);
        legend->SetFileNameSize(own.real);
        legend->SetSizeAspect(own.real);
        legend->SetGap(own.real);
        legend->SetMostWidth(own.real);
        legend->SetColumns(own.whole);
        legend->SetMostLines(own.whole);
    } else if (auto* const arrow = dynamic_cast<CNorthArrowBase*>(&element)) {
        arrow->SetNorthArrowType(static_cast<NorthArrowType>(own.whole));
    } else if (auto* const bar = dynamic_cast<CScaleBarBase*>(&element)) {
        // Without a division value it draws nothing.
        const bool divides = own.fine >= 1e-8 && std::isfinite(own.fine);
        bar->SetPaper2DataScale(divides ? own.fine : 0.037);
        bar->SetPaper2ScreenScale(own.fine);
        bar->SetScreen2PaperByOneScale(own.fine);
        bar->SetUnitPos(static_cast<ScaleBarPostion>(own.whole));
        bar->SetScaleBarType(static_cast<ScaleBarType>(own.whole));
    }
}

/// Calls with an element of every class.
template <typename Visit>
void ForEachElement(Visit visit) {
    for (const subjects::Row& row : subjects::Rows()) {
        if (row.name == "plain" || row.name == "of a ramp" || row.name == "of a crowd") {
            SCOPED_TRACE(row.family + " " + row.name);
            const std::unique_ptr<subjects::Subject> subject = row.make();
            subject->Measure();
            visit(*subject->element);
        }
    }
}

std::size_t Visible(CMapSurround& element, CPoint centre, double scale) {
    Surface surface(8, 8);  // its pixels are never touched
    Recording recording(Mode::RecordOnly);
    element.Draw(surface.Graphics(), centre, scale);
    return recording.Drawing().size();
}

void Measure(CMapSurround& element, int whole) {
    Recording recording(Mode::RecordOnly);
    recording.ScriptBounds({{whole, whole, whole, whole}});
    element.ResetAspectRatio();
}

TEST(HostileNumbers, DrawWhatTameOnesDraw) {
    ForEachElement([](CMapSurround& element) {
        const std::size_t visible = Visible(element, {200, 150}, 1.0);
        for (const int whole : kInts) {
            for (const float real : kFloats) {
                for (const double fine : kDoubles) {
                    SetOwn(element, {whole, real, fine});
                    element.SetAngle(real);
                    Measure(element, whole);
                    EXPECT_EQ(Visible(element, {kLowest, kHighest}, 1.0), visible);
                    element.SetSize(whole);
                    element.SetAspectRatio(real);
                    EXPECT_EQ(Visible(element, {0, 0}, fine), visible);
                    EXPECT_EQ(Visible(element, {kHighest, kLowest}, fine), visible);
                    ASSERT_FALSE(::testing::Test::HasFailure())
                        << whole << ", " << real << ", " << fine;
                }
            }
        }
    });
}

TEST(NoSurface, IsDrawnOnWithoutACall) {
    for (const subjects::Row& row : subjects::Rows()) {
        SCOPED_TRACE(row.family + " " + row.name);
        const std::unique_ptr<subjects::Subject> subject = row.make();
        subject->Measure();
        Recording recording(Mode::RecordOnly);
        subject->Draw(nullptr);
        EXPECT_TRUE(recording.Calls().empty());
    }
}

// Counts too large to draw: only what is computed from them.
TEST(HostileNumbers, CountDivisionsFromNone) {
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        for (const double fine : kDoubles) {
            for (const int count : {kLowest, -1}) {
                const auto bar = host::NewElement<CScaleBarBase>(*style);
                bar->SetPaper2ScreenScale(fine);
                bar->SetMainDivCount(count);
                bar->SetSubDivCount(kHighest);
                bar->ResetAspectRatio();
                EXPECT_GE(Visible(*bar, {0, 0}, 1.0), 2u) << style->name;
                bar->SetMainDivCount(3);
                bar->SetSubDivCount(count);
                EXPECT_GT(Visible(*bar, {0, 0}, 1.0), 5u) << style->name;
            }
        }
    }
}

TEST(HostileNumbers, DrawAndAskAFrame) {
    Surface surface;
    Recording recording(Mode::Silent);
    for (const int gap : kInts) {
        for (const float real : kFloats) {
            for (const int from : kInts) {
                for (const int to : kInts) {
                    CFrameBase frame;
                    frame.DrawBorder = frame.DrawFill = frame.DrawShadow = true;
                    frame.BorderGapX = frame.BorderGapY = gap;
                    frame.FillGapX = frame.FillGapY = gap;
                    frame.ShadowRatioX = frame.ShadowRatioY = real;
                    frame.BorderWidth = real;
                    recording.Clear();
                    frame.DrawFrame(surface.Graphics(), CRect(from, from, to, to));
                    EXPECT_EQ(recording.Count(), real == 0.0f ? 11 : 10);
                }
            }
        }
    }
    for (const double from : kDoubles) {
        for (const double to : kDoubles) {
            for (const double at : kDoubles) {
                CFrameBase frame;
                frame.SetExtent(CBoundingBox(from, from, to, to));
                frame.SetOffset(at, -at);
                const SpatialTopoRelation relation =
                    frame.HitTest(CPoint2D(at, to), at, false);
                EXPECT_EQ(frame.HitHandle >= 0, relation == TopoOnHandle);
            }
        }
    }
}

// GDI+ gets whatever may reach it, and still draws what comes afterwards.
TEST(HostileNumbers, LeaveGdiplusAtWork) {
    ForEachElement([](CMapSurround& element) {
        for (const int size : {kLowest, -100, 0, 40, kHighest}) {
            for (const float real :
                 {kFloatNan, kFloatInfinity, -3.0f, 0.0f, 0.01f, 15.0f, 400.0f}) {
                for (const double scale : {-1.0, 0.0, 0.01, 1.0, kNan}) {
                    Surface surface;
                    SetOwn(element, {size, real, scale});
                    element.SetAngle(real);
                    element.ResetAspectRatio();
                    element.SetSize(size);
                    element.Draw(surface.Graphics(), CPoint(200, 150), scale);
                    element.Draw(surface.Graphics(), CPoint(-5000, 5000), scale);
                    EXPECT_EQ(surface.WorldTransform(),
                              (std::vector<float>{1, 0, 0, 1, 0, 0}));
                    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF208040));
                    surface.Graphics()->FillRectangle(&brush, 0, 0, 10, 10);
                    Gdiplus::Color color;
                    surface.Bitmap().GetPixel(5, 5, &color);
                    ASSERT_EQ(Hex(color.GetValue()), "#FF208040")
                        << size << ", " << real << ", " << scale;
                }
            }
        }
    });
}

}  // namespace
