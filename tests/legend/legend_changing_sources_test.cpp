// Sources that answer differently from one question to the next.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"

namespace {

using fakes::Answers;
using fakes::kUnknown;
using fakes::Raster;
using namespace recording;

/// Rows of 10, swatches of 6, samples 40 wide: a title without ink and a source come to
/// 24 + 10 + 12 - 12 = 34 and the entries, 120 wide.
ink::Size ShortInk(const std::string& text, const std::string&, float) {
    return text == "Band_1" ? ink::Size{40, 10}
           : text == "one"  ? ink::Size{41, 10}
           : text == "two"  ? ink::Size{60, 10}
                            : ink::Size{0, 0};
}

std::vector<std::string> Draw(CMapLegend& legend) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ShortInk);
    legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
    return recording.Drawing();
}

TEST(LegendOfChangingSources, TheDisplayTypeIsAskedForEachComparison) {
    const struct {
        const char* what;
        std::vector<DataDisplayType> answers;
        std::size_t asked;
        int entries;         ///< height
        std::size_t pieces;  ///< drawn after the file name
    } rows[] = {
        {"rgb", {DisplayRGB}, 1, 54, 6},
        {"gray", {DisplayGray}, 2, 36, 256},
        {"classified", {DisplayClassified}, 3, 36, 4},
        {"unknown", {kUnknown}, 3, 0, 0},
        {"each time the one asked for before",
         {DisplayGray, DisplayRGB, DisplayGray},
         3,
         0,
         0},
        {"gray when asked for gray", {kUnknown, DisplayGray, DisplayRGB}, 2, 36, 256},
        {"classified when asked for it",
         {kUnknown, DisplayClassified, DisplayClassified},
         3,
         36,
         4},
        {"rgb, then something else", {DisplayRGB, DisplayGray}, 1, 54, 6},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Raster raster(L"raster", DisplayRGB);
        raster.displayType = Answers<DataDisplayType>(row.answers);
        raster.table.items = {{L"", 0, 0, 0}, {L"", 0, 0, 0}};
        CMapLegend legend;
        legend.SetDataSouce({&raster});
        ink::Measure(legend, ShortInk);
        EXPECT_EQ(legend.GetSize(), 34 + row.entries);
        EXPECT_EQ(raster.displayType.Asked(), row.asked);
        raster.displayType.Rewind();
        EXPECT_EQ(Draw(legend).size(), 2 + row.pieces);
        EXPECT_EQ(raster.displayType.Asked(), row.asked);
    }
}

TEST(LegendOfChangingSources, AvailabilityAndTypeAreAskedOnce) {
    Raster raster(L"raster", kUnknown);
    raster.available = Answers<bool>(std::vector<bool>{true, false});
    raster.type = Answers<GISDataSourceType>({DataSourceRaster, DataSourceUnknown});
    CMapLegend legend;
    legend.SetDataSouce({&raster});
    ink::Measure(legend, ShortInk);
    EXPECT_EQ(legend.GetSize(), 34);
    EXPECT_EQ(raster.available.Asked(), 1U);
    EXPECT_EQ(raster.type.Asked(), 1U);
    raster.available.Rewind();
    raster.type.Rewind();
    EXPECT_EQ(Draw(legend).size(), 2U);

    // It is gone the second time, whose type is not asked for.
    raster.type.Rewind();
    EXPECT_EQ(Draw(legend).size(), 1U);
    EXPECT_EQ(raster.type.Asked(), 0U);
}

TEST(LegendOfChangingSources, TheHeightTakesTheFirstCountAndTheWidthFreshOnes) {
    constexpr int kMost = 2147483647;
    const struct {
        const char* what;
        std::vector<int> counts;
        int height;
        int width;
    } rows[] = {
        {"steady", {2}, 34 + 36, 140},
        {"fewer", {2, 1}, 34 + 36, 121},
        {"none left", {2, 0}, 34 + 36, 120},
        {"fewer on the way", {3, 3, 1}, 34 + 54, 121},
        {"more", {1, 2}, 34 + 18, 140},
        {"none at first", {0, 2}, 34, 120},
        {"fewer than none at first", {-7, 2}, 34, 120},
        {"lowest", {-kMost - 1}, 34, 120},
        {"lowest after", {2, -kMost - 1}, 34 + 36, 120},
        {"most", {kMost, 2}, kMost, 140},
        {"just within 32 bits", {119000000, 2}, 2142000034, 140},
        {"gaps past 32 bits", {200000000, 2}, kMost, 140},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Raster raster(L"raster", DisplayClassified);
        raster.table.items = {{L"one", 0, 0, 0}, {L"two", 0, 0, 0}};
        raster.table.Claim(row.counts);
        CMapLegend legend;
        legend.SetDataSouce({&raster});
        ink::Measure(legend, ShortInk);
        EXPECT_EQ(legend.GetSize(), row.height);
        EXPECT_EQ(legend.GetAspectRatio(),
                  static_cast<float>(row.width) / static_cast<float>(row.height));
    }
}

TEST(LegendOfChangingSources, TablesWithoutEndDoNotOverflowTogether) {
    std::vector<std::unique_ptr<Raster>> rasters;
    std::vector<CGISDataSource*> sources;
    // Each of them is 2^31 swatches of 1.3 * 10^9: the five would not fit into 64 bits.
    for (int i = 0; i < 5; ++i) {
        rasters.push_back(std::make_unique<Raster>(L"raster", DisplayClassified));
        rasters.back()->table.Claim(std::vector<int>{2147483647, 0});
        sources.push_back(rasters.back().get());
    }
    CMapLegend legend;
    legend.SetDataSouce(sources);
    for (const int row : {2147483647, 10, -2147483647 - 1}) {
        for (const auto& raster : rasters) {
            raster->table.counts.Rewind();
        }
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, ink::Of({{"Band_1", {2147483647, row}}}));
        legend.ResetAspectRatio();
        EXPECT_EQ(legend.GetSize(), row > 0 ? 2147483647 : -2147483647 - 1);
    }
}

TEST(LegendOfChangingSources, WhereTheDrawingAsksForTheCount) {
    // The count is asked for before each class, and after it: is it the last one?
    const struct {
        const char* what;
        std::vector<int> counts;
        int classes;
        int height;  ///< swatches of 6, gaps of 12, and one gap in the end
    } rows[] = {
        {"steady", {2}, 2, 18 + 6 + 12},
        {"none", {0, 2}, 0, 12},
        {"gone after the first, which was not the last", {2, 2, 1}, 1, 18 + 12},
        {"gone after the first, which was the last", {2, 1, 1}, 1, 6 + 12},
        {"one more after the last", {1, 1, 2}, 2, 6 + 6 + 12},
        {"lowest after the first", {2, -2147483647 - 1}, 1, 18 + 12},
        {"most at first", {2147483647, 2, 2}, 2, 18 + 6 + 12},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Raster raster(L"raster", DisplayClassified);
        Raster after(L"after", kUnknown);
        raster.table.items = {{L"one", 0, 0, 0}, {L"two", 0, 0, 0}};
        CMapLegend legend;
        legend.SetDataSouce({&raster, &after});
        // 34 + 36 + 22 for the other source; the title has no ink.
        ink::Measure(legend, ShortInk);
        ASSERT_EQ(legend.GetSize(), 92);
        raster.table.Claim(row.counts);

        Surface surface;
        Recording recording(Mode::RecordOnly);
        ink::Script(recording, ShortInk);
        legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        const std::vector<std::string> drawing = recording.Drawing();
        ASSERT_EQ(drawing.size(), static_cast<std::size_t>(2 + 2 * row.classes + 1));
        // Lengths come from ratios, which 92 does not divide evenly.
        const std::string last = drawing.back();
        const float y = std::strtof(last.c_str() + last.find(", ") + 2, nullptr);
        EXPECT_NEAR(y, static_cast<float>(-46 + 24 + 22 + row.height), 0.001f);
    }
}

/// What a source does to the list of the legend that asks it.
TEST(LegendOfChangingSources, TheLengthOfTheListIsReadAfterEachSource) {
    Raster first(L"first", kUnknown);
    Raster second(L"second", kUnknown);
    Raster third(L"third", kUnknown);
    const struct {
        const char* what;
        std::vector<CGISDataSource*> before;
        std::vector<CGISDataSource*> after;
        std::size_t names;
    } rows[] = {
        {"one more", {&first}, {&first, &second}, 2},
        {"two more", {&first, &second}, {&first, &second, &third, &third}, 4},
        {"only the first", {&first, &second, &third}, {&first}, 1},
        {"none", {&first, &second, &third}, {}, 1},
        {"another one after it", {&first, &second}, {&third, &third}, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CMapLegend legend;
        first.whenAsked = [&] { legend.SetDataSouce(row.after); };

        legend.SetDataSouce(row.before);
        ink::Measure(legend, ShortInk);
        EXPECT_EQ(legend.GetSize(), 12 + 22 * static_cast<int>(row.names));

        legend.SetDataSouce(row.before);
        EXPECT_EQ(Draw(legend).size(), 1 + row.names);
    }
}

// The sizes are scaled before a source is asked for anything, and so are there for it to
// see; a source that throws leaves all as it was.
TEST(LegendOfChangingSources, OneThatThrowsDoesNotScaleTheFontSizes) {
    Raster raster(L"one", DisplayRGB);
    CMapLegend legend;
    legend.SetDataSouce({&raster});
    ink::Measure(legend, ShortInk);
    const std::vector<std::string> before = Draw(legend);
    const int size = legend.GetSize();
    const float aspectRatio = legend.GetAspectRatio();

    legend.SetSizeAspect(2.0f);
    raster.whenAsked = [&legend] {
        EXPECT_EQ(legend.GetTitleSize(), 40.0f);
        EXPECT_EQ(legend.GetFileNameSize(), 30.0f);
        throw std::runtime_error("the file is gone");
    };
    for (int time = 1; time <= 2; ++time) {
        EXPECT_THROW(ink::Measure(legend, ShortInk), std::runtime_error);
        EXPECT_EQ(legend.GetTitleSize(), 20.0f);
        EXPECT_EQ(legend.GetFileNameSize(), 15.0f);
        EXPECT_EQ(legend.GetSize(), size);
        EXPECT_EQ(legend.GetAspectRatio(), aspectRatio);
        EXPECT_TRUE(NothingAlive());
    }
    raster.whenAsked = nullptr;
    EXPECT_EQ(Draw(legend), before);
}

}  // namespace
