// Legends in columns.

#include <gtest/gtest.h>

#include <algorithm>
#include <bitset>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "legend/legend_columns.h"

namespace {

using namespace legend_columns;
using namespace recording;

TEST(LegendColumns, AreAsLowAndAsEqualAsTheyCanBe) {
    const struct {
        const char* sources;
        int columns;
        const char* rows;
        int height;  ///< of the highest column
    } rows[] = {
        // A name and its first class are 13 + 12 + 7 high, each other 12 + 7 more.
        {"9", 1, "nccccccccc", 32 + 8 * 19},
        {"9", 2, "ncccc|ccccc", 32 + 3 * 19},
        {"9", 3, "ncc|cccc|ccc", 7 + 3 * 19},
        {"9", -5, "nccccccccc", 32 + 8 * 19},
        {"9", 9, "nc|c|c|c|c|c|c|c|c", 32},
        {"9", 2147483647, "nc|c|c|c|c|c|c|c|c", 32},
        // Names alone: 13, and 25 more each.
        {"uuuuuuuuuu", 4, "nnn|nnn|nn|nn", 63},
        {"uuuuuuuuuuu", 4, "nnn|nnn|nnn|nn", 63},
        {"uuu", 3, "n|n|n", 13},
        {"0u", 2, "n|n", 13},
        // Bands and ramps stay together, with their names.
        {"r", 3, "nbbb", 13 + 12 + 45},
        {"g", 2, "nhl", 13 + 12 + 28},
        {"rg", 2, "nbbb|nhl", 13 + 12 + 45},
        {"grg", 2, "nhlnbbb|nhl", 53 + 12 + 70},
        // The ramp sets the height, and the names share the rest.
        {"uuuuuug", 3, "nnn|nnn|nhl", 63},
        {"uuuug", 3, "nn|nn|nhl", 53},
        {"", 2, "", -12},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.sources) + " in " + std::to_string(row.columns));
        Sources sources(row.sources);
        Legend legend;
        legend.SetDataSouce(sources.All());
        legend.SetColumns(row.columns);
        EXPECT_EQ(legend.GetColumns(), row.columns);
        ink::Measure(legend, ColumnInk);
        EXPECT_EQ(legend.GetSize(), kTitle + row.height);
        EXPECT_EQ(RowsOf(legend), row.rows);
    }
}

TEST(LegendColumns, AreSixtyFourAtMost) {
    Sources sources(std::string(70, 'u'));
    Legend legend;
    legend.SetDataSouce(sources.All());
    legend.SetColumns(100);
    ink::Measure(legend, ColumnInk);
    const std::string rows = RowsOf(legend);
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '|'), 63) << rows;
    EXPECT_EQ(legend.GetSize(), kTitle + 13 + kGap + 13);
}

// Also where there may be lines, for which all is measured as with columns.
TEST(LegendColumns, FewerThanOneAreOne) {
    for (const int columns : {0, -5}) {
        Sources sources("9");
        Legend legend;
        legend.SetDataSouce(sources.All());
        legend.SetMostWidth(1000.0f);
        legend.SetMostLines(2);
        legend.SetColumns(columns);
        ink::Measure(legend, ColumnInk);
        EXPECT_EQ(RowsOf(legend), "nccccccccc");
    }
}

/// How many texts stand in the first column.
std::size_t InTheFirst(CMapLegend& legend) {
    const std::vector<Written> texts = TextsBelowTitle(legend);
    return static_cast<std::size_t>(
        std::count_if(texts.begin(), texts.end(),
                      [&](const Written& text) { return text.x == texts.front().x; }));
}

// Where the font has no ink, the gaps are left.
TEST(LegendColumns, OfRowsWithoutInkShareTheGaps) {
    for (const auto& [row, halfRow] : {std::pair(0, 0), {-1000, -499}}) {
        Sources sources("uuuu");
        Legend legend;
        legend.SetDataSouce(sources.All());
        legend.SetColumns(2);
        ink::Measure(legend, ink::Of({{"Band_1", {40, row}}}));
        EXPECT_EQ(legend.GetSize(), 2 * kGap + kGap);

        const ink::Rule titled = ink::Of({{"Band_1", {40, row}}, {"T", {10, 13}}});
        legend.SetGap(0.0001f);
        ink::Measure(legend, titled);
        EXPECT_EQ(legend.GetSize(), 13) << "without gaps nothing is left";
        EXPECT_EQ(InTheFirst(legend), 3U) << "no column is empty";

        legend.SetGap(0.5f);
        ink::Measure(legend, titled);
        EXPECT_EQ(legend.GetSize(), 13 + 2 * halfRow) << "a column is never less";
    }
}

// The squares of their heights go beyond any whole number.
TEST(LegendColumns, OfHugeRowsAreAsEqualAsOthers) {
    Sources sources("uuuuuuu");
    Legend legend;
    legend.SetDataSouce(sources.All());
    legend.SetColumns(3);
    ink::Measure(legend, ink::Of({{"Band_1", {40, 1500000000}}}));
    EXPECT_EQ(InTheFirst(legend), 3U);
    const std::vector<Written> texts = TextsBelowTitle(legend);
    EXPECT_EQ(texts[3].x, texts[4].x);
    EXPECT_EQ(texts[5].x, texts[6].x);
    EXPECT_LT(texts[4].x, texts[5].x);
}

/// Whether columns of pieces are lower, or else more equal, than others.
using Worth = std::pair<int, double>;

Worth WorthOf(const std::vector<int>& heights, unsigned starts) {
    Worth worth{0, 0.0};
    int height = -kGap;
    for (std::size_t i = 0; i <= heights.size(); ++i) {
        if (i == heights.size() || (i > 0 && (starts >> i & 1U) != 0)) {
            worth.first = std::max(worth.first, height);
            worth.second += static_cast<double>(height) * height;
            height = -kGap;
        }
        height += kGap + (i < heights.size() ? heights[i] : 0);
    }
    return worth;
}

// Against all ways to set up to nine pieces.
TEST(LegendColumns, NoOtherWayIsLowerOrMoreEqual) {
    unsigned state = 1;
    const auto random = [&state](unsigned below) {
        state = state * 1664525U + 1013904223U;
        return (state >> 16) % below;
    };
    for (int trial = 0; trial < 150; ++trial) {
        std::string letters;
        std::vector<int> heights;
        while (heights.size() < 6 && letters.size() < 6) {
            const char letter = "rgu14"[random(5)];
            letters += letter;
            heights.push_back(letter == 'r'   ? 70
                              : letter == 'g' ? 53
                              : letter == 'u' ? 13
                                              : 32);
            heights.insert(heights.end(), letter == '4' ? 3 : 0, 7);
        }
        const int columns = 2 + static_cast<int>(random(4));
        SCOPED_TRACE(letters + " in " + std::to_string(columns));
        const auto count = std::min(static_cast<std::size_t>(columns), heights.size());
        Worth best{std::numeric_limits<int>::max(), 0.0};
        for (unsigned starts = 0; starts < 1U << heights.size(); starts += 2) {
            if (std::bitset<32>(starts).count() == count - 1) {
                best = std::min(best, WorthOf(heights, starts));
            }
        }

        Sources sources(letters);
        Legend legend;
        legend.SetDataSouce(sources.All());
        legend.SetColumns(columns);
        ink::Measure(legend, ColumnInk);
        unsigned starts = 0;
        int piece = -1;
        char before = '|';
        for (const char row : RowsOf(legend)) {
            const bool begins = row == 'n' || (before == 'c' && row == 'c') ||
                                (before == '|' && row != '|');
            piece += begins ? 1 : 0;
            if (before == '|' && begins && piece > 0) {
                starts |= 1U << static_cast<unsigned>(piece);
            }
            before = before == 'n' && row == 'c' ? 'c' : row;
        }
        EXPECT_EQ(legend.GetSize(), kTitle + best.first);
        EXPECT_EQ(WorthOf(heights, starts), best);
    }
}

TEST(LegendColumns, AreAsWideAsTheWidest) {
    // Names are 5 a character, all else 10; labels are 2 samples of 40 from the left.
    const struct {
        const char* what;
        const char* sources;
        int columns;
        void (*change)(Legend& legend, Sources& sources);
        int width;
    } rows[] = {
        {"samples", "uu", 2, [](Legend&, Sources&) {}, 120 + 20 + 120},
        {"one column", "uu", 1, [](Legend&, Sources&) {}, 120},
        {"a name with its caption", "uu", 2,
         [](Legend& legend, Sources&) {
             legend.SetSourceCaption(std::wstring(22, L'x'));
         },
         130 + 20 + 130},
        {"the caption does not count in one", "uu", 1,
         [](Legend& legend, Sources&) {
             legend.SetSourceCaption(std::wstring(22, L'x'));
         },
         120},
        {"a class", "1u", 2,
         [](Legend&, Sources& sources) {
             sources[0].table.items[0].label = L"123456789";
         },
         138 + 20 + 138},
        {"a class two samples from the left, in the names' font, in one", "1u", 1,
         [](Legend&, Sources& sources) {
             sources[0].table.items[0].label = L"123456789";
         },
         125},
        {"a cut class", "1u", 2,
         [](Legend& legend, Sources& sources) {
             sources[0].table.items[0].label = L"123456789";
             legend.SetMostWidth(130);
         },
         128 + 20 + 128},
        {"the third band", "ru", 2,
         [](Legend&, Sources& sources) { sources[0].blue = 12344; }, 132 + 20 + 132},
        {"the second", "ru", 2,
         [](Legend&, Sources& sources) { sources[0].green = 12344; }, 132 + 20 + 132},
        {"the first, and no band is cut", "ru", 2,
         [](Legend& legend, Sources& sources) {
             sources[0].red = 12344;
             legend.SetMostWidth(100);
         },
         132 + 20 + 132},
        {"the highest", "gu", 2,
         [](Legend&, Sources& sources) { sources[0].band.highest = 123456.5; },
         142 + 20 + 142},
        {"the lowest", "gu", 2,
         [](Legend&, Sources& sources) { sources[0].band.lowest = -12345.5; },
         142 + 20 + 142},
        {"the lowest, with the decimals it has", "gu", 2,
         [](Legend& legend, Sources& sources) {
             sources[0].band.lowest = -0.00125;
             legend.SetAlignedLabels(true);
         },
         138 + 20 + 138},
        {"an aligned band", "ru", 2,
         [](Legend& legend, Sources& sources) {
             sources[0].blue = 12345678;
             legend.SetAlignedLabels(true);
         },
         138 + 20 + 138},
        {"the title", "uu", 2,
         [](Legend& legend, Sources&) { legend.SetTitleValue(std::wstring(31, L'T')); },
         310},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Sources sources(row.sources);
        Legend legend;
        legend.SetFileName(L"Mono");
        legend.SetDataSouce(sources.All());
        legend.SetColumns(row.columns);
        row.change(legend, sources);
        ink::Measure(legend, ColumnInk);
        EXPECT_EQ(WidthOf(legend), row.width);
        // The second column begins as far right as it is wide and half a swatch.
        const std::vector<Written> texts = TextsBelowTitle(legend);
        EXPECT_NEAR(texts.back().x,
                    row.columns == 1   ? 0
                    : row.width == 310 ? 140
                                       : (row.width - 20) / 2 + 20,
                    1);
        EXPECT_NEAR(texts.front().x, 0, 0.5);
    }
}

// 18 tenths of 41 are 73.8.
TEST(LegendColumns, LabelsBeginAtAWholePixelToTheRight) {
    Sources sources("r");
    sources[0].blue = 12344;
    Legend legend;
    legend.SetDataSouce(sources.All());
    legend.SetColumns(2);
    ink::Measure(
        legend, [](const std::string& text, const std::string& family, float em) {
            return text == "Band_1" ? ink::Size{41, 13} : ColumnInk(text, family, em);
        });
    EXPECT_EQ(WidthOf(legend), 74 + 60);
}

// What is drawn later than it was measured begins its columns at the same rows.
TEST(LegendColumns, SourcesThatChangeAreDrawnInTheColumnsMeasured) {
    Sources sources("4");
    Legend legend;
    legend.SetDataSouce(sources.All());
    legend.SetColumns(2);
    ink::Measure(legend, ColumnInk);
    EXPECT_EQ(RowsOf(legend), "nc|ccc");
    sources[0].table.items.resize(7, {L"class", 1, 2, 3});
    EXPECT_EQ(RowsOf(legend), "nc|cccccc");
    sources[0].table.missing = 2;
    EXPECT_EQ(RowsOf(legend), "nc|ccccc") << "an empty row is one";
    sources[0].table.missing = -1;
    sources[0].table.items.resize(1, {L"class", 1, 2, 3});
    EXPECT_EQ(RowsOf(legend), "nc");
    legend.SetColumns(1);
    ink::Measure(legend, ColumnInk);
    sources[0].table.items.resize(4, {L"class", 1, 2, 3});
    EXPECT_EQ(RowsOf(legend), "ncccc");
}

TEST(LegendColumns, BandsBeginAColumnWhereANameDidWhenItWasMeasured) {
    Sources sources("uu");
    Legend legend;
    legend.SetDataSouce(sources.All());
    legend.SetColumns(2);
    ink::Measure(legend, ColumnInk);
    sources[0].displayType = DisplayRGB;
    EXPECT_EQ(RowsOf(legend), "n|bbbn");
}

}  // namespace
