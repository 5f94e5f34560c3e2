// How much room a legend takes where the host says it: gaps and widths.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using fakes::Raster;
using namespace recording;

/// Rows of 13 and samples 40 wide; any other character is 10 wide.
ink::Size Ink(const std::string& text, const std::string&, float) {
    const auto characters = std::count_if(text.begin(), text.end(),
                                          [](char c) { return (c & 0xC0) != 0x80; });
    return text == "Band_1" ? ink::Size{40, 13}
                            : ink::Size{10 * static_cast<int>(characters), 13};
}

std::vector<std::string> TextsOf(CMapLegend& legend, double scale) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, Ink);
    legend.Draw(surface.Graphics(), CPoint(0, 0), scale);
    std::vector<std::string> texts;
    for (const std::string& line : recording.Drawing()) {
        const std::size_t first = line.find('"');
        if (line.rfind("GdipDrawString", 0) == 0) {
            texts.push_back(
                line.substr(first + 1, line.find('"', first + 1) - first - 1));
        }
    }
    return texts;
}

void Measure(CMapLegend& legend) {
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, Ink);
    legend.ResetAspectRatio();
}

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
        Measure(legend);
        // The title and two gaps, three rows, a ramp of four swatches, and a gap for all
        // but the last of them.
        EXPECT_EQ(legend.GetSize(), 13 + 2 * row.gap + 13 + 3 * (7 + row.gap) + 13 +
                                        4 * 7 + row.gap + row.gap)
            << row.rows;
    }
    legend.SetGap(infinity);
    Measure(legend);
    EXPECT_EQ(legend.GetSize(), std::numeric_limits<int>::max());

    // The second swatch is drawn a swatch and a gap below the first.
    legend.SetGap(1.0f);
    Measure(legend);
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, Ink);
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
        Measure(legend);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.measured) / static_cast<float>(legend.GetSize()))
            << row.width;
        for (const double scale : {1.0, 3.125}) {
            EXPECT_EQ(TextsOf(legend, scale), row.texts) << row.width;
        }
    }
}

TEST(LegendRoom, ACaptionCountsWhereNamesAreCut) {
    Raster raster(L"abcdefghijklmn", static_cast<DataDisplayType>(7));
    CMapLegend legend;
    legend.SetSourceCaption(L"N:");
    legend.SetDataSouce({&raster});
    for (const auto& [most, width] : {std::pair(0.0f, 140), std::pair(200.0f, 160)}) {
        legend.SetMostWidth(most);
        Measure(legend);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(width) / static_cast<float>(legend.GetSize()));
    }
}

TEST(LegendRoom, NoCharacterIsCutInHalf) {
    Raster raster(L"ab\xD83Dxyz", static_cast<DataDisplayType>(7));
    // Where wide characters are UTF-16, nothing has to replace the half that is given.
    const char* const whole = sizeof(wchar_t) == 2 ? "ab\xED\xA0\xBDx…" : "ab\uFFFDx…";
    for (const auto& [width, text] : {std::pair(50.0f, whole), std::pair(40.0f, "ab…")}) {
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(width);
        Measure(legend);
        EXPECT_EQ(TextsOf(legend, 1.0), (std::vector<std::string>{"", text}));
    }
}

}  // namespace
