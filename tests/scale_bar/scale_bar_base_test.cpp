#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "element/no_numbers.h"
#include "recording/lines.h"
#include "scale_bar/bar_row.h"

namespace {

using namespace recording;
using namespace scale_bar_test;
using ::testing::Contains;

static_assert(std::is_abstract_v<CScaleBarBase>);
static_assert(std::is_abstract_v<CSingleDivisionScaleBar>);
static_assert(std::is_base_of_v<CScaleBarBase, CSingleDivisionScaleBar>);
static_assert(std::is_base_of_v<CScaleLine, CSteppedScaleLine>);
static_assert(std::has_virtual_destructor_v<CScaleBarBase>);
static_assert(sizeof(ScaleBarType) == 4 && sizeof(ScaleBarPostion) == 4);

/// A style that a host writes itself, over the base or over the style kept free.
template <typename Base>
class HostBar : public Base {
    void Draw(Gdiplus::Graphics*, CPoint, double) override {}
};

void ExpectDefaults(const CScaleBarBase& bar, ScaleBarType type) {
    EXPECT_EQ(bar.GetScaleBarType(), type);
    EXPECT_EQ(bar.GetItemType(), SurroundScaleBar);
    EXPECT_EQ(bar.GetUnitPos(), UnitPosAfter);
    EXPECT_EQ(bar.GetMainDivCount(), 5);
    EXPECT_EQ(bar.GetSubDivCount(), 4);
    EXPECT_EQ(bar.GetSize(), 40);
    EXPECT_EQ(bar.GetAspectRatio(), 5.8f);
    EXPECT_EQ(bar.GetAngle(), 0.0f);
    EXPECT_EQ(bar.GetFrontColor().GetValue(), 0xFF000000u);
    EXPECT_EQ(bar.GetUnitsName(), L"\u5355\u4F4D");
    EXPECT_EQ(bar.GetDestUnitType(), 0);
}

TEST(ScaleBarBase, StartsWithTheDefaultsOfItsStyle) {
    for (const Style style : Styles()) {
        SCOPED_TRACE(style->name);
        ExpectDefaults(*NewBar(style), ExpectedType(style));
    }
    ExpectDefaults(HostBar<CScaleBarBase>(), ScaleBarLine);
    ExpectDefaults(HostBar<CSingleDivisionScaleBar>(), ScaleBarLine);
}

std::vector<std::string> Drawn(CScaleBarBase& bar) {
    Surface surface;
    const Recording recording(Mode::RecordOnly);
    bar.Draw(surface.Graphics(), CPoint(200, 150), 1.0);
    return recording.Drawing();
}

// Neither can be asked for. Of 500 parts of a division, the last tells a tenth of a
// pixel.
TEST(ScaleBarBase, StartsWithDivisionsOf25PixelsThatMeasureNothing) {
    CScaleLine bar;
    bar.SetSubDivCount(499);
    CScaleLine told;
    told.SetSubDivCount(499);
    told.SetPaper2ScreenScale(25.0);
    EXPECT_EQ(Drawn(bar), Drawn(told));
    told.SetPaper2ScreenScale(25.1);
    EXPECT_NE(Drawn(bar), Drawn(told));
    // 8 + 1 + 26.667 + 1 of margins to 40 of height.
    bar.ResetAspectRatio();
    EXPECT_NEAR(bar.GetAspectRatio(), 36.6667 / 40.0, 0.0001);
}

TEST(ScaleBarBase, TypesAndPositionsHaveTheirValues) {
    EXPECT_EQ(static_cast<int>(ScaleBarLine), 1);
    EXPECT_EQ(static_cast<int>(ScaleBarLine2), 2);
    EXPECT_EQ(static_cast<int>(ScaleBarLine3), 3);
    EXPECT_EQ(static_cast<int>(ScaleBarEquAlternate), 6);
    EXPECT_EQ(static_cast<int>(ScaleBarAlternate), 7);
    EXPECT_EQ(static_cast<int>(UnitPosAfter), 0);
    EXPECT_EQ(static_cast<int>(UnitPosBefore), 1);
}

TEST(ScaleBarBase, StoresWhatItIsGiven) {
    CScaleLine bar;
    bar.SetMainDivCount(-7);
    bar.SetSubDivCount(1000000);
    bar.SetUnitPos(static_cast<ScaleBarPostion>(-3));
    bar.SetScaleBarType(static_cast<ScaleBarType>(5));
    bar.SetDestUnitType(MeasureDegree);
    EXPECT_EQ(bar.GetMainDivCount(), -7);
    EXPECT_EQ(bar.GetSubDivCount(), 1000000);
    EXPECT_EQ(static_cast<int>(bar.GetUnitPos()), -3);
    EXPECT_EQ(static_cast<int>(bar.GetScaleBarType()), 5);
    EXPECT_EQ(bar.GetDestUnitType(), MeasureDegree);
    EXPECT_EQ(bar.GetUnitsName(), L"\u5355\u4F4D");
}

TEST(ScaleBarBase, TranslatesTheUnitWordsOfHostsAndNoOthers) {
    const std::wstring degree = L"\u5EA6";
    const std::wstring unknown = L"\u672A\u77E5";
    const std::wstring metre = L"\u7C73";
    const std::wstring kilometre = L"\u516C\u91CC";
    const struct {
        std::wstring given;
        std::wstring stored;
    } rows[] = {
        {L"degree", degree},
        {L"Degree", degree},
        {L"unknown", unknown},
        {L"Unknown", unknown},
        {L"meter", metre},
        {L"Meter", metre},
        {L"metre", metre},
        {L"Metre", metre},
        {L"Kilometer", kilometre},
        {L"Kilometre", kilometre},
        {L"", L""},
        {L"km", L"km"},
        {L"METER", L"METER"},
        {L"kilometer", L"kilometer"},
        {L"kilometre", L"kilometre"},
        {L"meters", L"meters"},
        {L" meter", L" meter"},
        {L"mete", L"mete"},
        {L"DEGREE", L"DEGREE"},
        {L"UNKNOWN", L"UNKNOWN"},
        {std::wstring(L"meter\0", 6), std::wstring(L"meter\0", 6)},
        {L"\u7C73", L"\u7C73"},
    };
    CScaleLine bar;
    bar.SetDestUnitType(MeasureDegree);
    for (const auto& row : rows) {
        bar.SetUnitsName(row.given);
        EXPECT_EQ(bar.GetUnitsName(), row.stored);
        bar.SetUnitsNameVerbatim(row.given);
        EXPECT_EQ(bar.GetUnitsName(), row.given);
    }
    EXPECT_EQ(bar.GetDestUnitType(), MeasureDegree);
}

TEST(ScaleBarBase, DrawsTheTranslatedNameAndTheEmptyOne) {
    Surface surface;
    CScaleLine bar;
    bar.SetMainDivCount(0);
    for (const auto& [name, drawn] :
         {std::pair(L"metre", "米"), std::pair(L"km", "km"), std::pair(L"", "")}) {
        bar.SetUnitsName(name);
        Recording recording;
        bar.Draw(surface.Graphics(), CPoint(200, 150), 1.0);
        EXPECT_EQ(recording.Drawing().back(),
                  DrawString(drawn, Times(40.0f / 3.0f), 93, 157, BlackBrush()));
    }
}

// 11 times the scale is 50331651, and a third of that 16777217, halfway between two
// floats, of which the even one is taken. A third of the scale first would miss the half.
TEST(ScaleBarBase, SizesTheUnitNameByAThirdOfTheHeight) {
    BarRow row;
    row.mainCount = 0;
    row.size = 11;
    row.scale = 50331651.0 / 11.0;
    const std::string unitName = DrawingOf(row).back();
    EXPECT_NE(unitName.find(Times(16777216.0f)), std::string::npos) << unitName;
}

// The margins of size 40 are 8 + 1 + 26.6667 + 1 = 36.6667.
TEST(ScaleBarBase, ResetsTheAspectRatioToTheDivisionsAndMargins) {
    const struct {
        const char* why;
        double paperToData;
        double screenToPaper;
        int mainCount;
        int size;
        float aspectRatio;
    } rows[] = {
        {"50 + margins = 86.6667", 1.0, 10.0, 5, 40, 2.1666667f},
        {"margins alone", 1.0, 10.0, 0, 40, 0.9166667f},
        {"f 0.8: 40 + margins = 76.6667", 2500.0, 10.0, 5, 40, 1.9166667f},
        {"f 0.03/0.037: 30 + margins = 66.6667", 0.037, 37.0, 1, 40, 1.6666667f},
        {"f 1: 50 + margins", 0.5, 10.0, 5, 40, 2.1666667f},
        {"f 1: 50 + margins", 1000.0, 10.0, 5, 40, 2.1666667f},
        {"f 0.9/0.999", 0.999, 99.9, 1, 40, 3.1666667f},
        {"the least value, f 1: 50 + margins", 1e-8, 10.0, 5, 40, 2.1666667f},
        {"size 80: 50 + 16 + 2 + 53.3333 + 2 = 123.3333", 1.0, 10.0, 5, 80, 1.5416667f},
        {"a negative count shortens: -10 + margins", 1.0, 10.0, -1, 40, 0.6666667f},
    };
    for (const auto& row : rows) {
        CScaleLine bar;
        bar.SetPaper2DataScale(row.paperToData);
        bar.SetScreen2PaperByOneScale(row.screenToPaper);
        bar.SetMainDivCount(row.mainCount);
        bar.SetSize(row.size);
        bar.ResetAspectRatio();
        EXPECT_FLOAT_EQ(bar.GetAspectRatio(), row.aspectRatio) << row.why;
        EXPECT_EQ(bar.GetSize(), row.size);
    }
}

// Where the division cancels the margins, or is so large that each sum is rounded, their
// order and precision tell. At 2^53 + 2^29, halfway between two floats, doubles are 2
// apart.
TEST(ScaleBarBase, AddsTheMarginsInOrder) {
    const double halfway = 9007199254740992.0 + 536870912.0;
    const float below = 9007199254740992.0f;  // 2^53
    const float above = 9007200328482816.0f;  // 2^53 + 2^30
    const struct {
        const char* why;
        int size;
        double screenToPaper;
        int mainCount;
        float aspectRatio;
    } rows[] = {
        // 0.2 + 0.025 + 0.6666667 + 0.025 as floats
        {"the margins of size 1", 1,
         -(double{1.0f / 5.0f} + double{1.0f / 40.0f} + double{2.0f / 3.0f} +
           double{1.0f / 40.0f}),
         1, 0.0f},
        // 1.4 + 0.175 + 14 / 3 + 0.175; two thirds as a float, times 7, would be more
        {"the margins of size 7", 7,
         -(double{7.0f / 5.0f} + double{7.0f / 40.0f} + double{14.0f / 3.0f} +
           double{7.0f / 40.0f}),
         1, 0.0f},
        // 42 below: 9, 1.125, 30 and 1.125 come to 10, 12, 42 and 44
        {"a fifth before a fortieth", 45, halfway - 42.0, 1, above / 45.0f},
        // 34 below: 8, 1, 26.67 and 1 come to 8, 10, 36 and 38
        {"a fortieth before two thirds", 40, halfway - 34.0, 1, above / 40.0f},
        // 254 below: 56, 7, 186.67 and 7 come to 56, 62, 248 and 254
        {"two thirds before a fortieth", 280, halfway - 254.0, 1, below / 280.0f},
        {"a count that is no float", 40, 1.0, 16777217, 419431.3125f},
    };
    for (const auto& row : rows) {
        CScaleLine bar;
        bar.SetScreen2PaperByOneScale(row.screenToPaper);
        bar.SetMainDivCount(row.mainCount);
        bar.SetSize(row.size);
        bar.ResetAspectRatio();
        EXPECT_EQ(bar.GetAspectRatio(), row.aspectRatio) << row.why;
    }
}

TEST(ScaleBarBase, KeepsTheAspectRatioAndDrawsNothingWithoutADivisionValue) {
    Surface surface;
    for (const Style style : Styles()) {
        for (const double scale : {1e-9, std::nextafter(1e-8, 0.0), -1e-9, 0.0, -0.0,
                                   -1e-8, -1.0, -2500.0, -1e300, kInfinity, -kInfinity,
                                   kNan, std::numeric_limits<double>::denorm_min(),
                                   std::numeric_limits<double>::min()}) {
            const std::unique_ptr<CScaleBarBase> bar = NewBar(style);
            bar->SetPaper2DataScale(scale);
            bar->SetScreen2PaperByOneScale(10.0);
            bar->SetAspectRatio(3.25f);
            Recording recording;
            bar->ResetAspectRatio();
            bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
            EXPECT_EQ(bar->GetAspectRatio(), 3.25f) << style->name << ", " << scale;
            EXPECT_EQ(recording.Count(), 0) << style->name << ", " << scale;
        }
    }
}

// Rounded down to one digit. 0.07 loses the last bit when it is divided by ten twice, and
// 7e-5 would come out as 6e-5 were it multiplied by 100000 at once.
TEST(ScaleBarBase, RoundsTheDivisionValueDownToOneDigit) {
    const struct {
        double paperToData;
        const char* label;           ///< of one division
        const char* alternateLabel;  ///< the same in the alternating style
        int step;                    ///< at a paper-to-screen scale of 1000
    } rows[] = {
        {0.01, "0.01", "0.01", 1000},
        {0.037, "0.03", "0.03", 810},
        {0.07, "0.07", "0.07", 999},
        {0.1, "0.1", "0.1", 1000},
        {0.3, "0.3", "0.3", 1000},
        {0.5, "0.5", "0.5", 1000},
        {0.999, "0.9", "0.9", 900},
        {1.0, "1", "1.0", 1000},
        {1.0001, "1", "1", 999},
        {7.0, "7", "7", 1000},
        {10.0, "10", "10", 1000},
        {19.9, "10", "10", 502},
        {37.0, "30", "30", 810},
        {999.0, "900", "900", 900},
        {11.0, "10", "10", 909},
        {1000.0, "1000", "1000", 1000},
        {2500.0, "2000", "2000", 800},
        {123456.0, "100000", "100000", 810},
        {8.5e9, "8000000000", "8000000000", 941},
        {7e-5, "0.00007", "0.00007", 1000},
        {0.00025, "0.0002", "0.0002", 800},
    };
    for (const auto& row : rows) {
        for (const Style style : Styles()) {
            const bool alternates = style == host::StyleOf<CScaleAlternate>();
            BarRow bar;
            bar.style = style;
            bar.paperToData = row.paperToData;
            bar.paperToScreen = 1000.0;
            bar.mainCount = 1;
            bar.subCount = 0;
            // The label of the last boundary; the first boundary is at x 89.
            EXPECT_THAT(DrawingOf(bar),
                        Contains(BlackLabel(alternates ? row.alternateLabel : row.label,
                                            static_cast<float>(84 + row.step), 130)))
                << style->name << ", " << row.paperToData;
        }
    }
}

}  // namespace
