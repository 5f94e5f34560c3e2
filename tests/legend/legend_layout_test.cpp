// Measuring, with sizes worked out by hand.

#include <gtest/gtest.h>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using fakes::kUnknown;
using fakes::Raster;
using fakes::Vector;
using namespace recording;

/// Sources to choose from, by a letter each.
struct Shelf {
    Raster rgb{L"rgb", DisplayRGB};
    Raster gray{L"gray", DisplayGray};
    Raster unknown{L"unknown", kUnknown};
    Raster away{L"away", DisplayRGB};
    Vector vector;
    Raster classes0{L"classes", DisplayClassified};
    Raster classes1{L"classes", DisplayClassified};
    Raster classes3{L"classes", DisplayClassified};

    Shelf() {
        away.available = false;
        classes1.table.items = {{L"one", 0, 0, 0}};
        classes3.table.items = {
            {L"one", 0, 0, 0}, {L"two", 0, 0, 0}, {L"three", 0, 0, 0}};
    }
    CGISDataSource* Take(char letter) {
        switch (letter) {
            case 'r':
                return &rgb;
            case 'g':
                return &gray;
            case 'u':
                return &unknown;
            case 'a':
                return &away;
            case 'v':
                return &vector;
            case '0':
                return &classes0;
            case '1':
                return &classes1;
            case '3':
                return &classes3;
            default:
                return nullptr;
        }
    }
    std::vector<CGISDataSource*> Take(const std::string& letters) {
        std::vector<CGISDataSource*> sources;
        for (const char letter : letters) {
            sources.push_back(Take(letter));
        }
        return sources;
    }
};

// Usually the title is 50 x 16 and the sample 40 x 13: rows of 13, swatches of 78 / 10 =
// 7, and three samples of 40 are 120 wide.
TEST(LegendLayout, SizesByHand) {
    constexpr int most = 2147483647;
    const ink::Size vast{most, most};
    const struct {
        const char* what;
        const char* sources;
        std::map<std::string, ink::Size> ink;  ///< of what has another than usual
        int height;
        std::int64_t width;  ///< the aspect ratio is width / height
    } rows[] = {
        {"no source", "", {}, 16 + 12, 120},
        // 24 below the title, and 12 less for there is no source: past the limit by 7.
        {"huge title alone", "", {{"T", {10, most - 5}}}, most, 120},
        {"huge ink", "r", {{"T", vast}, {"Band_1", vast}}, most, 3LL * most},
        {"no source, wide title", "", {{"T", {121, 16}}}, 28, 121},
        {"no source, title of three samples", "", {{"T", {120, 16}}}, 28, 120},
        {"title without ink", "", {{"T", {0, 0}}}, 12, 120},
        {"nothing has ink",
         "rg3",
         {{"T", {}}, {"Band_1", {}}},
         24 + 36 + 48 + 36 - 12,
         0},
        {"left out: not available", "a", {{"away", {900, 9}}}, 28, 120},
        {"left out: no raster",
         "v",
         {{"a very long name of a vector file", {900, 9}}},
         28,
         120},
        {"left out: null", "??", {}, 28, 120},
        {"unknown display", "u", {{"unknown", {130, 9}}}, 28 + 13 + 12, 130},
        {"rgb", "r", {}, 28 + 25 + 57, 120},
        {"rgb, rows of 10", "r", {{"Band_1", {40, 10}}}, 28 + 22 + 54, 120},
        {"gray", "g", {}, 28 + 25 + 40, 120},
        {"gray, rows of 10", "g", {{"Band_1", {40, 10}}}, 28 + 22 + 36, 120},
        {"no class", "0", {}, 28 + 25, 120},
        {"one class", "1", {}, 28 + 25 + 19, 120},
        {"three classes", "3", {}, 28 + 25 + 57, 120},
        {"rgb and gray", "rg", {{"T", {50, 20}}}, 179, 120},
        {"all of them", "ravgu0?13", {}, 28 + 6 * 25 + 57 + 40 + 19 + 57, 120},
        {"file name one wider", "r", {{"rgb", {121, 13}}}, 110, 121},
        {"file name as wide", "r", {{"rgb", {120, 13}}}, 110, 120},
        {"caption not measured",
         "r",
         {{"\u5F71\u50CF\u540D\uFF1Argb", {900, 13}}},
         110,
         120},
        {"band labels not measured", "r", {{"\u6CE2\u6BB5_1", {900, 13}}}, 110, 120},
        {"label set off by two samples", "3", {{"two", {41, 13}}}, 110, 121},
        {"label at the last class", "3", {{"three", {60, 13}}}, 110, 140},
        {"label not wide enough", "3", {{"one", {40, 13}}}, 110, 120},
        {"height of names and labels does not matter",
         "3r",
         {{"one", {4, 99}}, {"rgb", {4, 99}}},
         192,
         120},
    };
    Shelf shelf;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetDataSouce(shelf.Take(row.sources));
        Recording recording(Mode::RecordOnly);
        std::map<std::string, ink::Size> ink = row.ink;
        ink.insert({{"T", {50, 16}}, {"Band_1", {40, 13}}});
        ink::Script(recording, ink::Of(ink));
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetSize(), row.height);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height));
    }
}

TEST(LegendLayout, ASwatchIsSixTenthsOfTheRowTruncated) {
    const struct {
        int row;
        int swatch;
    } rows[] = {{0, 0},  {1, 0},  {2, 1},  {3, 1},  {5, 3},  {10, 6},
                {11, 6}, {13, 7}, {15, 9}, {16, 9}, {17, 10}};
    Shelf shelf;
    for (const auto& row : rows) {
        CMapLegend legend;
        legend.SetDataSouce({&shelf.rgb});
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, ink::Of({{"Band_1", {40, row.row}}}));
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetSize(), 24 + row.row + 3 * row.swatch + 36 + 12 - 12)
            << row.row;
    }
}

TEST(LegendLayout, TheSizeFactorCompounds) {
    CMapLegend legend;
    legend.SetSizeAspect(2.0f);
    const struct {
        float factor;
        float title;
        float fileName;
    } calls[] = {{2, 40, 30},    {2, 80, 60},    {1, 80, 60},
                 {0.5f, 40, 30}, {0.5f, 20, 15}, {1.1f, 20.0f * 1.1f, 15.0f * 1.1f}};
    for (const auto& call : calls) {
        legend.SetSizeAspect(call.factor);
        Recording recording(Mode::RecordOnly);
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetTitleSize(), call.title);
        EXPECT_EQ(legend.GetFileNameSize(), call.fileName);
    }
}

TEST(LegendLayout, WithoutAnyHeightNothingButTheFontSizesChanges) {
    CMapLegend legend;
    legend.SetTitleValue(L"T");
    legend.SetSize(77);
    legend.SetSizeAspect(2.0f);
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Of({{"T", {50, -24}}, {"Band_1", {40, 13}}}));
    legend.ResetAspectRatio();
    EXPECT_EQ(legend.GetSize(), 77);
    EXPECT_EQ(legend.GetAspectRatio(), 5.8f);
    EXPECT_EQ(legend.GetTitleSize(), 40.0f);
}

// Hidden ones add nothing, and a name is as wide as it is shown.
TEST(LegendLayout, MeasuresTheSourcesAsTheyAreShown) {
    const struct {
        std::vector<LegendSource> shown;
        int height;
        int width;
    } rows[] = {
        {{}, 28 + 25 + 57 + 25 + 40, 300},
        {{{}, {L"Relief"}}, 28 + 25 + 57 + 25 + 40, 250},
        {{{L"", false}, {L"Relief"}}, 28 + 25 + 40, 200},
        {{{L"Scene", false}, {L"Relief", false}}, 28, 120},
    };
    for (const auto& row : rows) {
        Shelf shelf;
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetDataSouce({&shelf.rgb, &shelf.gray});
        legend.SetShownSources(row.shown);
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, ink::Of({{"T", {50, 16}},
                                        {"Band_1", {40, 13}},
                                        {"rgb", {250, 13}},
                                        {"gray", {300, 13}},
                                        {"Relief", {200, 13}}}));
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetSize(), row.height);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height));
    }
}

TEST(LegendLayout, EveryCallInItsOrder) {
    Shelf shelf;
    CMapLegend legend;
    legend.SetTitleValue(L"图例");
    legend.SetTitle(L"Liberation Serif");
    legend.SetFileName(L"Liberation Mono");
    legend.SetFileNameStyle(Gdiplus::FontStyleItalic);
    legend.SetSizeAspect(2.0f);
    legend.SetDataSouce({&shelf.away, &shelf.rgb, &shelf.classes1});
    Recording recording(Mode::RecordOnly);
    legend.ResetAspectRatio();

    const std::string titleFont = FontLook("Liberation Serif", 40, 1);
    const std::string fileFont = FontLook("Liberation Mono", 30, 2);
    const std::string nearFormat = FormatLook(0, 0);
    std::vector<Named> expected = {
        {"path", "GdipCreatePath 0"},
        {"format", "GdipCreateStringFormat 0 0"},
        {"near", "GdipSetStringFormatAlign 0"},
        {"title family", "GdipCreateFontFamilyFromName \"Liberation Serif\""},
        {"title font", "GdipCreateFont " + titleFont},
    };
    const auto measure = [&](const std::string& what, const std::string& font,
                             const std::string& content, int style, bool afterAnother) {
        if (afterAnother) {
            expected.push_back({what + ": reset", "GdipResetPath"});
        }
        expected.push_back({what + ": size", "GdipGetFontSize " + font});
        expected.push_back({what + ": style", "GdipGetFontStyle " + font});
        expected.push_back({what + ": text", "GdipAddPathString " + content + " style " +
                                                 std::to_string(style) + " at 0 0 0 0 " +
                                                 nearFormat});
        expected.push_back(
            {what + ": bounds", "GdipGetPathWorldBoundsI path[" + content + "]"});
    };
    measure("title", titleFont, "\"\u56FE\u4F8B\" \"Liberation Serif\" 40", 1, false);
    expected.push_back(
        {"file family", "GdipCreateFontFamilyFromName \"Liberation Mono\""});
    expected.push_back({"file font", "GdipCreateFont " + fileFont});
    measure("sample", fileFont, "\"Band_1\" \"Liberation Serif\" 30", 2, true);
    measure("rgb", fileFont, "\"rgb\" \"Liberation Mono\" 30", 2, true);
    measure("classes", fileFont, "\"classes\" \"Liberation Mono\" 30", 2, true);
    measure("label", fileFont, "\"one\" \"Liberation Mono\" 30", 2, true);
    expected.push_back({"file font", "GdipDeleteFont " + fileFont});
    expected.push_back(
        {"file family", "GdipDeleteFontFamily family[\"Liberation Mono\"]"});
    expected.push_back({"title font", "GdipDeleteFont " + titleFont});
    expected.push_back(
        {"title family", "GdipDeleteFontFamily family[\"Liberation Serif\"]"});
    expected.push_back({"format", "GdipDeleteStringFormat " + nearFormat});
    expected.push_back({"path", "GdipDeletePath path[\"one\" \"Liberation Mono\" 30]"});
    EXPECT_TRUE(Equal(expected, recording.Lines()));
}

TEST(LegendLayout, AMissingClassIsNotMeasuredAndKeepsItsRow) {
    Shelf shelf;
    shelf.classes3.table.missing = 1;
    CMapLegend legend;
    legend.SetDataSouce({&shelf.classes3});
    Recording recording(Mode::RecordOnly);
    ink::Script(recording,
                ink::Of({{"Band_1", {40, 10}}, {"two", {999, 10}}, {"three", {50, 10}}}));
    legend.ResetAspectRatio();
    EXPECT_EQ(legend.GetSize(), 24 + 10 + 3 * 18 + 12 - 12);
    EXPECT_EQ(legend.GetAspectRatio(), 130.0f / 88.0f);
}

TEST(LegendLayout, AFontThatDoesNotExistMeasuresNothing) {
    const ink::Rule sizes =
        ink::Of({{"T", {50, 16}}, {"Band_1", {40, 13}}, {"rgb", {900, 9}}});
    const struct {
        const char* what;
        float titleSize;
        float fileNameSize;
        int height;
        int width;
    } rows[] = {{"both there", 20, 15, 28 + 25 + 57, 900},
                {"no title font", 0, 15, 12 + 25 + 57, 900},
                {"no file-name font", 20, 0, 28 + 12 + 36, 50},
                {"neither", -1, -1, 12 + 12 + 36, 0}};
    Shelf shelf;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetTitleSize(row.titleSize);
        legend.SetFileNameSize(row.fileNameSize);
        legend.SetDataSouce({&shelf.rgb});
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, sizes);
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetSize(), row.height);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height));
    }
}

TEST(LegendLayout, ATitleFamilyThatDoesNotExistTakesTheSampleWithIt) {
    CMapLegend legend;
    legend.SetTitleValue(L"T");
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Of({{"T", {50, 16}}, {"Band_1", {40, 13}}}));
    recording.FailCall(4, Gdiplus::FontFamilyNotFound);
    legend.ResetAspectRatio();
    EXPECT_EQ(legend.GetSize(), 12);
    EXPECT_EQ(legend.GetAspectRatio(), 0.0f);
}

// Thrice 16777217 is 50331652 as a float, and a third of that 16777218, where the width
// of the sample itself would be 16777216.
TEST(LegendLayout, ASwatchIsAThirdOfTheLeastWidthAsAFloat) {
    Raster rgb(L"", DisplayRGB);
    CMapLegend legend;
    legend.SetDataSouce({&rgb});
    Surface surface;
    Recording recording(Mode::RecordOnly);
    // A row of 140, three swatches of 84 and 24 + 36 of gaps, then 60 of the title: 512.
    ink::Script(recording, ink::Of({{"Band_1", {16777217, 140}}, {"T", {1, 60}}}));
    legend.SetTitleValue(L"T");
    legend.ResetAspectRatio();
    ASSERT_EQ(legend.GetSize(), 512);
    legend.SetAspectRatio(0.0f);
    recording.Clear();
    legend.Draw(surface.Graphics(), CPoint(0, 256), 1.0);
    // Below the title, drawn as high as it was measured, two gaps, the row and a gap.
    EXPECT_EQ(
        recording.Drawing().at(2),
        FillRectangle(BrushLook(0xFFFF0000), 0, 60 + 24 + 140 + 12, 16777218.0f, 84));
}

// So does the time, whatever the number of classes.
TEST(LegendLayout, CallsGrowInProportionToTheClasses) {
    const auto calls = [](int classes, bool draw) {
        Raster raster(L"classes", DisplayClassified);
        raster.table.items.assign(static_cast<std::size_t>(classes), {L"class", 1, 2, 3});
        CMapLegend legend;
        legend.SetDataSouce({&raster});
        Surface surface;
        Recording recording(Mode::Silent);
        if (draw) {
            legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        } else {
            legend.ResetAspectRatio();
        }
        return recording.Count();
    };
    // Reset, size, style, outline, bounds; two colours, swatch, label.
    EXPECT_EQ(calls(10000, false) - calls(100, false), 9900 * 5);
    EXPECT_EQ(calls(10000, true) - calls(100, true), 9900 * 4);
}

}  // namespace
