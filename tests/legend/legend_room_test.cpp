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
ink::Size RoomInk(const std::string& text, const std::string&, float) {
    const auto characters = std::count_if(text.begin(), text.end(),
                                          [](char c) { return (c & 0xC0) != 0x80; });
    return text == "Band_1" ? ink::Size{40, 13}
                            : ink::Size{10 * static_cast<int>(characters), 13};
}

std::vector<std::string> TextsOf(CMapLegend& legend, double scale) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, RoomInk);
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
    Raster raster(L"ab\xD83Dxyz", fakes::kUnknown);
    // Where wide characters are UTF-16, nothing has to replace the half that is given.
    const char* const whole = sizeof(wchar_t) == 2 ? "ab\xED\xA0\xBDx…" : "ab\uFFFDx…";
    for (const auto& [width, text] : {std::pair(50.0f, whole), std::pair(40.0f, "ab…")}) {
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(width);
        ink::Measure(legend, RoomInk);
        EXPECT_EQ(TextsOf(legend, 1.0), (std::vector<std::string>{"", text}));
    }
}

TEST(LegendRoom, TextsAreBrokenWhereTheyMayBe) {
    // Where wide characters are UTF-16, nothing has to replace a half that is given.
    const std::string half = sizeof(wchar_t) == 2 ? "\xED\xA0\xBD" : "\uFFFD";
    const struct {
        std::wstring name;
        int characters;  ///< that a line has room for
        int lines;
        std::vector<std::string> broken;
        bool isCut;
    } rows[] = {
        {L"land cover of 2020", 10, 2, {"land cover", "of 2020"}, false},
        {L"land cover of 2020", 17, 2, {"land cover of", "2020"}, false},
        {L"land cover of 2020", 18, 2, {"land cover of 2020"}, false},
        {L"land cover of 2020", 10, 1, {"land cove…"}, true},
        {L"land cover of 2020", 10, 0, {"land cove…"}, true},
        {L"land cover of 2020", 7, 2, {"land", "cover …"}, true},
        {L"a b c d e f g h i j",
         3,
         2147483647,
         {"a b", "c d", "e f", "g h", "i j"},
         false},
        {L"a b c d e f g h i j", 13, 4, {"a b c d e f g", "h i j"}, false},
        {L"one   two", 3, 2, {"one", "two"}, false},
        {L"  ", 3, 2, {""}, false},
        {L"", 3, 2, {""}, false},
        {L"land_cover.2020.tif", 6, 9, {"land_", "cover.", "2020.", "tif"}, false},
        {L"1.25-3.75/x", 5, 9, {"1.25-", "3.75/", "x"}, false},
        {L"a1.b2", 3, 9, {"a1.", "b2"}, false},
        {L"a -3 - 4", 4, 9, {"a -3", "- 4"}, false},
        {L"-3", 1, 9, {"…"}, true},
        {L"a--b", 3, 9, {"a--", "b"}, false},
        {L"a__b", 3, 9, {"a__", "b"}, false},
        {L"a...b", 4, 9, {"a...", "b"}, false},
        {L"a\u00A0b c", 3, 9, {"a\u00A0b", "c"}, false},
        // A word that fits no line is cut, and what follows goes on below.
        {L"unbreakable name", 5, 9, {"unbr…", "name"}, true},
        {L"unbreakable name", 5, 2, {"unbr…", "name"}, true},
        {L"a unbreakable name", 5, 2, {"a", "unbr…"}, true},
        {L"a b", 0, 9, {"…", "…"}, true},
        // East Asian: anywhere but before closing marks and after opening ones.
        {L"土地利用2020年", 4, 9, {"土地利用", "2020", "年"}, false},
        {L"土地利用、水域", 4, 9, {"土地利", "用、水域"}, false},
        {L"土地（利用）", 3, 9, {"土地", "（利", "用）"}, false},
        {L"ショッピング", 4, 9, {"ショッピ", "ング"}, false},
        {L"ショッピング", 3, 9, {"ショッ", "ピング"}, false},
        {L"토지 이용", 3, 9, {"토지", "이용"}, false},
        {L"\U00020000\U00020001", 1, 9, {"\U00020000", "\U00020001"}, false},
        {L"\xD840\xDC00\xD840\xDC01", 1, 9, {"\U00020000", "\U00020001"}, false},
        {L"地\xD83D地", 2, 9, {"地" + half, "地"}, false},
        {L"土\xDB40\xDD00", 1, 9, {"…"}, true},
        {L"地x", 1, 9, {"地", "x"}, false},
        {L"1.地", 2, 9, {"1.", "地"}, false},
        {L"1.25", 3, 9, {"1.…"}, true},
        {L"a \xD83D", 1, 9, {"a", half}, false},
        {L"土\u3099地", 2, 9, {"土\u3099", "地"}, false},
        {L"葛\U000E0100飾", 2, 9, {"葛\U000E0100", "飾"}, false},
        {L"نهر النيل الأزرق", 9, 9, {"نهر النيل", "الأزرق"}, false},
    };
    for (const auto& row : rows) {
        Raster raster(row.name, fakes::kUnknown);
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(std::max(0.5f, 10.0f * static_cast<float>(row.characters)));
        legend.SetMostLines(row.lines);
        ink::Measure(legend, RoomInk);
        std::vector<std::string> expected = row.broken;
        expected.insert(expected.begin(), "");  // the title
        EXPECT_EQ(TextsOf(legend, 1.0), expected);
        EXPECT_EQ(legend.HasCutTexts(), row.isCut) << expected[1];
        // The title and two gaps; further lines are 15.6 rounded up.
        EXPECT_EQ(legend.GetSize(),
                  13 + 24 + 13 + 16 * static_cast<int>(row.broken.size() - 1))
            << expected[1];
    }
}

// Rounded up to whole pixels.
TEST(LegendRoom, LinesAreTwelveTenthsOfARowApart) {
    for (const auto& [row, apart] : {std::pair(10, 12), {13, 16}, {14, 17}}) {
        Raster raster(L"ab cd", fakes::kUnknown);
        CMapLegend legend;
        legend.SetDataSouce({&raster});
        legend.SetSourceCaption(L"");
        legend.SetMostWidth(20.0f);
        legend.SetMostLines(2);
        ink::Measure(legend, [height = row](const std::string& text,
                                            const std::string& family, float emSize) {
            return ink::Size{RoomInk(text, family, emSize).width, height};
        });
        EXPECT_EQ(legend.GetSize(), row + 24 + row + apart);
    }
}

TEST(LegendRoom, LinesEndBesideTheFirstAndTheLastOfEachRange) {
    const auto breaks = [](char32_t first, char32_t second) {
        std::wstring name;
        for (const char32_t character : {first, second}) {
            if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
                name += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
                name += static_cast<wchar_t>(0xDC00 + (character & 0x3FF));
            } else {
                name += static_cast<wchar_t>(character);
            }
        }
        Raster raster(name, fakes::kUnknown);
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(10.0f);
        legend.SetMostLines(2);
        ink::Measure(legend, RoomInk);
        return !legend.HasCutTexts();
    };
    for (const auto& [first, last] : {std::pair(U'\u2E80', U'\u9FFF'),
                                      {U'\uAC00', U'\uD7AF'},
                                      {U'\uF900', U'\uFAFF'},
                                      {U'\uFF00', U'\uFFEF'},
                                      {U'\U00020000', U'\U0003FFFF'}}) {
        EXPECT_TRUE(breaks(U'a', first) && breaks(last, U'a')) << first;
        EXPECT_FALSE(breaks(U'a', first - 1) || breaks(last + 1, U'a')) << first;
    }
    for (const auto& [first, last] : {std::pair(U'\u0300', U'\u036F'),
                                      {U'\u200D', U'\u200D'},
                                      {U'\u3099', U'\u309A'},
                                      {U'\uFE00', U'\uFE0F'},
                                      {U'\U000E0100', U'\U000E01EF'}}) {
        EXPECT_FALSE(breaks(U'\u571F', first) || breaks(U'\u571F', last)) << first;
        EXPECT_TRUE(breaks(U'\u571F', first - 1) && breaks(U'\u571F', last + 1)) << first;
    }
}

// Rows of 13, swatches of 7; the lines of a label are 15.6 apart.
TEST(LegendRoom, ASwatchIsLevelWithTheFirstLineOfItsLabel) {
    Raster classes(L"abc", DisplayClassified);
    classes.table.items = {{L"ab ab", 1, 2, 3, 0}, {L"a", 1, 2, 3, 0}};
    CMapLegend legend;
    legend.SetTitleValue(L"T");
    legend.SetSourceCaption(L"");
    legend.SetDataSouce({&classes});
    legend.SetMostLines(2);
    // Without a width there is nothing to break, and all is as it was.
    ink::Measure(legend, RoomInk);
    EXPECT_EQ(legend.GetSize(), 13 + 24 + 13 + 2 * 19);
    EXPECT_FALSE(legend.HasCutTexts());
    legend.SetMostWidth(90.0f);
    for (const bool aligned : {false, true}) {
        legend.SetAlignedLabels(aligned);
        ink::Measure(legend, RoomInk);
        ASSERT_EQ(legend.GetSize(), 13 + 24 + 13 + 12 + 7 + 16 + 12 + 7);
        ASSERT_EQ(legend.GetAspectRatio(), 120.0f / 104.0f);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, RoomInk);
        legend.Draw(surface.Graphics(), CPoint(60, 52), 1.0);
        const auto placed = [](const std::string& line) {
            const std::size_t at = line.rfind('(', line.find(')'));
            return std::lround(
                std::strtof(line.c_str() + line.find(", ", at) + 2, nullptr));
        };
        std::vector<long> tops;
        for (const std::string& line : recording.Drawing()) {
            tops.push_back(placed(line));
        }
        // The label 62, the next swatch 15.6 + 7 + 12 below; aligned ones 3.25 above.
        EXPECT_EQ(tops, aligned ? (std::vector<long>{0, 37, 62, 59, 74, 97, 93})
                                : (std::vector<long>{0, 37, 62, 62, 78, 97, 97}));
    }
}

}  // namespace
