// Names and labels in lines.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "legend/fake_sources.h"
#include "legend/legend_room.h"

namespace {

using fakes::Raster;
using namespace legend_room;
using namespace recording;

TEST(LegendLines, TextsAreBrokenWhereTheyMayBe) {
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
        {L"land cover of 2020", 10, -5, {"land cove…"}, true},
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
        {L"\xD840\xDC00x", 1, 9, {"\U00020000", "x"}, false},
        {L"\xD8BF\xDFFFx", 1, 9, {"\U0003FFFF", "x"}, false},
        {L"\xD83D地\xD840\xDC00", 2, 9, {kHalf + "地", "\U00020000"}, false},
        {L"地\xD83D地", 2, 9, {"地" + kHalf, "地"}, false},
        {L"土\xDB40\xDD00", 1, 9, {"…"}, true},
        {L"地x", 1, 9, {"地", "x"}, false},
        {L"x地", 1, 9, {"x", "地"}, false},
        {L"1.地", 2, 9, {"1.", "地"}, false},
        {L"1.25", 3, 9, {"1.…"}, true},
        {L"a \xD83D", 1, 9, {"a", kHalf}, false},
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

TEST(LegendLines, ALongTextIsMeasuredFewTimes) {
    const auto calls = [](int words) {
        std::wstring name;
        for (int i = 0; i < words; ++i) {
            name += L"a ";
        }
        Raster raster(name, fakes::kUnknown);
        CMapLegend legend;
        legend.SetSourceCaption(L"");
        legend.SetDataSouce({&raster});
        legend.SetMostWidth(1e9f);
        legend.SetMostLines(2);
        Recording recording(Mode::Silent);
        legend.ResetAspectRatio();
        return recording.Count();
    };
    // Reset, size, style, outline and bounds each time that the words are doubled.
    EXPECT_EQ(calls(1024) - calls(1), 10 * 5);
}

// Rounded up to whole pixels.
TEST(LegendLines, LinesAreTwelveTenthsOfARowApart) {
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

TEST(LegendLines, HugeLinesStayAtTheLimit) {
    Raster raster(L"ab cd ef", fakes::kUnknown);
    CMapLegend legend;
    legend.SetDataSouce({&raster});
    legend.SetSourceCaption(L"");
    legend.SetMostWidth(20.0f);
    legend.SetMostLines(3);
    ink::Measure(legend,
                 [](const std::string& text, const std::string& family, float em) {
                     return ink::Size{RoomInk(text, family, em).width, 1100000000};
                 });
    EXPECT_EQ(legend.GetSize(), std::numeric_limits<int>::max());
}

TEST(LegendLines, LinesEndBesideTheFirstAndTheLastOfEachRange) {
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
TEST(LegendLines, ASwatchIsLevelWithTheFirstLineOfItsLabel) {
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
    EXPECT_EQ(legend.GetAspectRatio(), (2.0f * 40 + 50) / 88.0f);
    EXPECT_FALSE(legend.HasCutTexts());
    legend.SetMostWidth(90.0f);
    legend.SetGap(18.0f / 13.0f);
    for (const bool aligned : {false, true}) {
        legend.SetAlignedLabels(aligned);
        ink::Measure(legend, RoomInk);
        ASSERT_EQ(legend.GetSize(), 13 + 36 + 13 + 18 + 7 + 16 + 18 + 7);
        ASSERT_EQ(legend.GetAspectRatio(), 120.0f / 128.0f);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, RoomInk);
        legend.Draw(surface.Graphics(), CPoint(60, -16), 1.0);
        const auto placed = [](const std::string& line) {
            const std::size_t at = line.rfind('(', line.find(')'));
            return std::lround(
                std::strtof(line.c_str() + line.find(", ", at) + 2, nullptr));
        };
        std::vector<long> tops;
        for (const std::string& line : recording.Drawing()) {
            tops.push_back(placed(line));
        }
        // The label 80 below the top, the next swatch 15.6 + 7 + 18 below it; aligned
        // ones 3.25 above.
        EXPECT_EQ(tops, aligned ? (std::vector<long>{-80, -31, 0, -3, 12, 41, 37})
                                : (std::vector<long>{-80, -31, 0, 0, 16, 41, 41}));
        if (!aligned) {
            EXPECT_EQ(WrittenIn(recording.Drawing())[3].y, 15.6f);
        }
    }
}

}  // namespace
