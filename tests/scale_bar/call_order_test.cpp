#include <gtest/gtest.h>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Every call of a drawing with its creations and deletions, worked by hand: a black bar
// of size 40 at scale 1 about (200, 150).

namespace {

using namespace recording;
using namespace scale_bar_test;

using Calls = std::vector<Named>;

const std::string kUnitFont = Times(40.0f / 3.0f);

Calls operator+(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Named MakePen() { return {"make pen", "GdipCreatePen1 #FF000000 1 unit 0"}; }
Named DeletePen() { return {"delete pen", "GdipDeletePen " + BlackPen()}; }
Named MakeBrush() { return {"make brush", "GdipCreateSolidFill #FF000000"}; }
Named DeleteBrush() { return {"delete brush", "GdipDeleteBrush " + BlackBrush()}; }
Named MakeFont(const std::string& font) {
    return {"make font", "GdipCreateFont " + font};
}
Named DeleteFont(const std::string& font) {
    return {"delete font", "GdipDeleteFont " + font};
}

Calls LabelCalls(const char* text, float x) {
    return {MakeBrush(), {"label", BlackLabel(text, x, 130)}, DeleteBrush()};
}

Calls UnitName(float x, float y) {
    return {MakeFont(kUnitFont),
            MakeBrush(),
            {"unit name", DefaultUnitName(x, y)},
            DeleteBrush(),
            DeleteFont(kUnitFont)};
}

/// One division without sub-divisions, drawn by GDI+ itself.
std::vector<std::string> LinesOf(Style style) {
    Surface surface;
    const std::unique_ptr<CScaleBarBase> bar = NewBar(style);
    bar->SetMainDivCount(1);
    bar->SetSubDivCount(1);
    Recording recording;
    bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
    return recording.Lines();
}

Calls LineStyle(int baseLine, int subTop, int subFoot, float unitTop) {
    const Named label = MakeFont(Times(10));
    const Named labelEnd = DeleteFont(Times(10));
    return Calls{MakePen(), MakePen(), BlackLine("tick 0", 89, 156, 89, 170), label} +
           LabelCalls("0", 84) +
           Calls{BlackLine("sub tick 0", 89, subTop, 89, subFoot),
                 BlackLine("sub tick 1", 101, subTop, 101, subFoot), labelEnd,
                 BlackLine("tick 1", 114, 156, 114, 170), label} +
           LabelCalls("1", 109) +
           Calls{labelEnd, BlackLine("base line", 89, baseLine, 114, baseLine)} +
           UnitName(118, unitTop) + Calls{DeletePen(), DeletePen()};
}

TEST(CallOrder, OfTheLineStyles) {
    EXPECT_TRUE(
        Equal(LineStyle(170, 162, 170, 157), LinesOf(host::StyleOf<CScaleLine>())));
    EXPECT_TRUE(Equal(LineStyle(170, 162, 170, 157),
                      LinesOf(host::StyleOf<CSteppedScaleLine>())));
    EXPECT_TRUE(
        Equal(LineStyle(164, 161, 167, 158), LinesOf(host::StyleOf<CScaleLine2>())));
    EXPECT_TRUE(
        Equal(LineStyle(156, 156, 162, 156), LinesOf(host::StyleOf<CScaleLine3>())));
}

TEST(CallOrder, OfTheAlternatingStyle) {
    const Calls expected =
        Calls{MakePen(),
              MakePen(),
              MakeBrush(),
              BlackLine("strip top", 89, 156, 114, 156),
              BlackLine("strip bottom", 89, 169, 114, 169),
              MakeFont(Times(10))} +
        LabelCalls("0.0", 84) +
        Calls{{"small box", DrawRectangle(BlackPen(), 89, 156, 12, 13)},
              {"filled", FillRectangleI(BlackBrush(), 89, 156, 12, 13)},
              BlackLine("closing line", 114, 156, 114, 169)} +
        LabelCalls("1.0", 109) + UnitName(118, 157) +
        Calls{DeleteFont(Times(10)), DeleteBrush(), DeletePen(), DeletePen()};
    EXPECT_TRUE(Equal(expected, LinesOf(host::StyleOf<CScaleAlternate>())));
}

TEST(CallOrder, OfTheEqualAlternatingStyle) {
    const Calls expected =
        Calls{MakePen(), MakePen(), MakeBrush(), MakeFont(Times(10))} +
        LabelCalls("0", 84) + Calls{{"box", DrawRectangle(BlackPen(), 89, 156, 25, 13)}} +
        LabelCalls("0", 84) +
        Calls{{"filled", FillRectangleI(BlackBrush(), 89, 156, 25, 13)}} +
        LabelCalls("1", 109) + UnitName(118, 157) +
        Calls{DeleteFont(Times(10)), DeleteBrush(), DeletePen(), DeletePen()};
    EXPECT_TRUE(Equal(expected, LinesOf(host::StyleOf<CScaleEquAltenate>())));
}

TEST(CallOrder, FamilyAndBrushLiveAsLongAsTheBar) {
    for (const Style style : Styles()) {
        Recording recording;
        NewBar(style).reset();
        EXPECT_TRUE(Equal(
            {
                {"make family", "GdipCreateFontFamilyFromName \"Times New Roman\""},
                {"make brush", "GdipCreateSolidFill #FF000000"},
                {"delete brush", "GdipDeleteBrush " + BlackBrush()},
                {"delete family", "GdipDeleteFontFamily family[\"Times New Roman\"]"},
            },
            recording.Lines()))
            << style->name;
    }
}

// The front colour and the pen width are asked for at each drawing.
TEST(CallOrder, ColourAndWidthFollowTheDrawing) {
    Surface surface;
    CScaleAlternate bar;
    bar.SetMainDivCount(0);
    bar.SetFrontColor(Gdiplus::Color(0x80FF7F00));
    Recording recording;
    bar.Draw(surface.Graphics(), CPoint(200, 150), 2.5);
    const std::vector<std::string> lines = recording.Lines();
    ASSERT_GT(lines.size(), 3u);
    EXPECT_EQ(lines[0], "GdipCreatePen1 #80FF7F00 2.5 unit 0");
    EXPECT_EQ(lines[1], lines[0]);
    EXPECT_EQ(lines[2], "GdipCreateSolidFill #80FF7F00");
}

/// A copy made by the bar's own class.
template <typename Bar>
void ExpectIndependentCopies() {
    Surface surface;
    auto original = std::make_unique<Bar>();
    original->SetPaper2DataScale(37.0);
    original->SetPaper2ScreenScale(63.7);
    original->SetScreen2PaperByOneScale(12.0);
    original->SetMainDivCount(3);
    original->SetSubDivCount(2);
    original->SetUnitPos(UnitPosBefore);
    original->SetUnitsName(L"km");
    original->SetScaleBarType(static_cast<ScaleBarType>(4));
    original->SetDestUnitType(MeasureKilometer);
    original->SetFrontColor(Gdiplus::Color(0xFF102030));
    original->SetSize(57);
    original->SetAspectRatio(4.5f);
    const auto linesOf = [&](Bar& bar) {
        Recording recording;
        bar.Draw(surface.Graphics(), CPoint(200, 150), 1.37);
        return recording.Lines();
    };
    const std::vector<std::string> lines = linesOf(*original);

    std::unique_ptr<Bar> copy;
    {
        Recording recording;
        copy = std::make_unique<Bar>(*original);
        EXPECT_TRUE(
            Equal({{"make family", "GdipCreateFontFamilyFromName \"Times New Roman\""},
                   {"make brush", "GdipCreateSolidFill #FF000000"}},
                  recording.Lines()));
    }
    Bar assigned;
    {
        Recording recording;
        EXPECT_EQ(&(assigned = *original), &assigned);
        EXPECT_EQ(recording.Count(), 0);  // it keeps its own
    }
    Bar& self = assigned;
    assigned = self;

    original.reset();
    for (Bar* bar : {copy.get(), &assigned}) {
        EXPECT_EQ(linesOf(*bar), lines);
        EXPECT_EQ(bar->GetScaleBarType(), 4);
        EXPECT_EQ(bar->GetDestUnitType(), MeasureKilometer);
        EXPECT_EQ(bar->GetUnitsName(), L"km");
        bar->ResetAspectRatio();
        // 3 x 12 x 30/37 and the margins of 57: 29.189 + 52.25
        EXPECT_FLOAT_EQ(bar->GetAspectRatio(), 81.439189f / 57.0f);
    }
    assigned.SetMainDivCount(1);
    EXPECT_EQ(copy->GetMainDivCount(), 3);
}

TEST(CallOrder, CopiesOwnTheirFamilyAndBrushAndDrawTheSame) {
    host::VisitStyles<CScaleBarBase>([](const auto& style) {
        SCOPED_TRACE(style.name);
        ExpectIndependentCopies<typename std::decay_t<decltype(style)>::Class>();
    });
}

}  // namespace
