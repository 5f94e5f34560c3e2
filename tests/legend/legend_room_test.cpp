// How much room a legend takes where the host says it: gaps and widths.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "legend/legend_room.h"

namespace {

using fakes::Raster;
using namespace legend_room;
using namespace recording;

TEST(LegendRoom, GapsAreSoManyRows) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const struct {
        float rows;
        int gap;
    } rows[] = {{0.8f, 10},             // 10.4 and a half
                {1.0f, 13}, {0.5f, 7},  // 6.5 and a half
                {0.01f, 0}, {0.0f, 12}, {-1.0f, 12}, {std::nanf(""), 12}};
    Raster rgb(L"rgb", DisplayRGB);
    Raster gray(L"gray", DisplayGray);
    CMapLegend legend;
    legend.SetTitleValue(L"T");
    legend.SetDataSouce({&rgb, &gray});
    for (const auto& row : rows) {
        legend.SetGap(row.rows);
        ink::Measure(legend, RoomInk);
        // The title and two gaps, three rows, a ramp of four swatches, and a gap for all
        // but the last of them.
        EXPECT_EQ(legend.GetSize(), 13 + 2 * row.gap + 13 + 3 * (7 + row.gap) + 13 +
                                        4 * 7 + row.gap + row.gap)
            << row.rows;
    }
    legend.SetGap(infinity);
    ink::Measure(legend, RoomInk);
    EXPECT_EQ(legend.GetSize(), std::numeric_limits<int>::max());

    // The second swatch is drawn a swatch and a gap below the first.
    legend.SetGap(1.0f);
    ink::Measure(legend, RoomInk);
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, RoomInk);
    legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
    const auto top = -static_cast<float>((legend.GetSize() + 1) / 2);
    const auto width = static_cast<float>(legend.GetSize()) * legend.GetAspectRatio();
    const float left = -std::floor(width / 2 + 0.5f);
    EXPECT_EQ(
        recording.Drawing().at(4),
        FillRectangle(BrushLook(0xFF008000), left, top + 26 + 13 + 13 + 13 + 20, 40, 7));
}

TEST(LegendRoom, NamesAndLabelsAreCutToTheWidth) {
    const struct {
        float width;
        std::vector<std::string> texts;
        int measured;  ///< the widest
    } rows[] = {
        {0.0f, {"T", "N:abcdefgh", "i", "jklmnopqrs"}, 2 * 40 + 100},
        {-5.0f, {"T", "N:abcdefgh", "i", "jklmnopqrs"}, 2 * 40 + 100},
        {std::nanf(""), {"T", "N:abcdefgh", "i", "jklmnopqrs"}, 2 * 40 + 100},
        {1000.0f, {"T", "N:abcdefgh", "i", "jklmnopqrs"}, 2 * 40 + 100},
        {180.0f, {"T", "N:abcdefgh", "i", "jklmnopqrs"}, 2 * 40 + 100},
        {179.9f, {"T", "N:abcdefgh", "i", "jklmnopq…"}, 2 * 40 + 90},
        {130.0f, {"T", "N:abcdefgh", "i", "jklm…"}, 2 * 40 + 50},
        {90.0f, {"T", "N:abcdef…", "i", "…"}, 3 * 40},
        {10.0f, {"T", "…", "…", "…"}, 3 * 40},
        {0.1f, {"T", "…", "…", "…"}, 3 * 40},
    };
    Raster classes(L"abcdefgh", DisplayClassified);
    classes.table.items = {{L"i", 1, 2, 3, 0}, {L"jklmnopqrs", 1, 2, 3, 0}};
    for (const auto& row : rows) {
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetSourceCaption(L"N:");
        legend.SetDataSouce({&classes});
        legend.SetMostWidth(row.width);
        ink::Measure(legend, RoomInk);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.measured) / static_cast<float>(legend.GetSize()))
            << row.width;
        for (const double scale : {1.0, 3.125}) {
            EXPECT_EQ(TextsOf(legend, scale), row.texts) << row.width;
        }
    }
}

TEST(LegendRoom, ACaptionCountsWhereNamesAreCut) {
    Raster raster(L"abcdefghijklmn", fakes::kUnknown);
    CMapLegend legend;
    legend.SetSourceCaption(L"N:");
    legend.SetDataSouce({&raster});
    for (const auto& [most, width] : {std::pair(0.0f, 140), std::pair(200.0f, 160)}) {
        legend.SetMostWidth(most);
        ink::Measure(legend, RoomInk);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(width) / static_cast<float>(legend.GetSize()));
    }
}

TEST(LegendRoom, NoCharacterIsCutInHalf) {
    const struct {
        const wchar_t* name;
        float width;
        std::string text;
    } rows[] = {{L"ab\xD83Dxyz", 45.0f, "ab" + kHalf + "x…"},
                {L"ab\xD83Dxyz", 40.0f, "ab…"},
                {L"\xD83Dxyz", 20.0f, "…"}};
    for (const auto& [name, width, text] : rows) {
        Raster raster(name, fakes::kUnknown);
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(width);
        ink::Measure(legend, RoomInk);
        EXPECT_EQ(TextsOf(legend, 1.0), (std::vector<std::string>{"", text}));
    }
}

TEST(LegendRoom, EvenTheLeastWidthLeavesACaptionOut) {
    Raster raster(L"", DisplayRGB);
    raster.blue = 1233;
    CMapLegend legend;
    legend.SetSourceCaption(L"N:");
    legend.SetBandCaption(L"Channel ");
    legend.SetDataSouce({&raster});
    legend.SetMostWidth(0.05f);
    for (const auto& [lines, width] : {std::pair(1, 3 * 40), {2, 72 + 120}}) {
        legend.SetMostLines(lines);
        ink::Measure(legend, RoomInk);
        EXPECT_TRUE(legend.HasCutTexts());
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(width) / static_cast<float>(legend.GetSize()))
            << "bands are measured where there may be lines";
    }
}

/// The texts that are measured, each in its family and style.
std::set<std::string> MeasuredIn(const Recording& recording) {
    std::set<std::string> measured;
    for (const std::string& line : recording.Lines()) {
        if (line.rfind("GdipAddPathString ", 0) == 0) {
            measured.insert(line.substr(18, line.find(" at ") - 18));
        }
    }
    return measured;
}

TEST(LegendRoom, TheDrawingMeasuresInTheLetteringsOfTheLayout) {
    for (const int lines : {1, 2}) {
        Raster classes(L"name", DisplayClassified);
        classes.table.items = {{L"label", 1, 2, 3}};
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetTitle(L"Serif");
        legend.SetFileName(L"Mono");
        legend.SetFileNameStyle(Gdiplus::FontStyleItalic);
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&classes});
        legend.SetMostWidth(1000.0f);
        legend.SetMostLines(lines);
        const std::string family = lines > 1 ? "Arial" : "Mono";
        const std::set<std::string> expected = {
            "\"Band_1\" \"Serif\" 15 style 2", "\"name\" \"Mono\" 15 style 2",
            "\"label\" \"" + family + "\" 15 style 2"};
        const auto except = [&](std::set<std::string> measured,
                                const std::string& title) {
            EXPECT_EQ(measured.erase(title), 1U);
            return measured;
        };
        Surface surface;
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, RoomInk);
        legend.ResetAspectRatio();
        EXPECT_EQ(except(MeasuredIn(recording), "\"T\" \"Serif\" 20 style 1"), expected);
        recording.Clear();
        legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        EXPECT_EQ(except(MeasuredIn(recording), "\"T\" \"Serif\" 13 style 1"), expected);
    }
}

}  // namespace
