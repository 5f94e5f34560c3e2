#include <gtest/gtest.h>

#include "scale_bar/bar_row.h"

namespace {

using namespace recording;
using namespace scale_bar_test;

constexpr double kPaperToData[] = {1e-9, 0.037, 0.07, 0.3, 0.5,  0.999, 1.0,   1.0001,
                                   7.0,  10.0,  37.0, 999, 1000, 2500,  123456};
constexpr double kPaperToScreen[] = {25.0, 63.7, 100.25};
constexpr int kMainCounts[] = {-2, -1, 0, 1, 2, 5, 12};
constexpr int kSubCounts[] = {-2147483647, -26, -2, -1, 0, 1, 2, 5, 12};
constexpr int kUnitPositions[] = {0, 1, 2};
constexpr int kSizes[] = {-40, 1, 7, 40, 41, 44, 83, 101, 400};
constexpr double kScales[] = {0.5, 1.0, 1.37, 3.125};
constexpr float kAspectRatios[] = {5.8f, 2.1666f, 0.3f};

/// Goes through the values of a table, one a call, so that tables of different lengths
/// meet in every combination sooner or later.
template <typename Value, std::size_t count>
Value Turn(const Value (&values)[count], std::size_t turn) {
    return values[turn % count];
}

void ExpectAsComputed(const BarRow& row) {
    ASSERT_TRUE(Equal(ExpectedDrawing(row), DrawingOf(row))) << Describe(row);
}

class EveryStyle : public ::testing::TestWithParam<Style> {};

// Every scale with every pair of counts at every unit position; sizes, drawing scales and
// the rest by turns.
TEST_P(EveryStyle, DrawsWhatTheFormulasSay) {
    std::size_t turn = 0;
    BarRow row;
    row.style = GetParam();
    for (const double paperToData : kPaperToData) {
        for (const int mainCount : kMainCounts) {
            for (const int subCount : kSubCounts) {
                for (const int unitPosition : kUnitPositions) {
                    row.paperToData = paperToData;
                    row.mainCount = mainCount;
                    row.subCount = subCount;
                    row.unitPosition = unitPosition;
                    row.size = Turn(kSizes, turn / 3);
                    row.scale = Turn(kScales, turn / 7);
                    row.paperToScreen = Turn(kPaperToScreen, turn / 5);
                    row.aspectRatio = Turn(kAspectRatios, turn / 11);
                    row.centre = CPoint(static_cast<int>(turn % 401) - 100,
                                        static_cast<int>(turn % 307) - 50);
                    row.color = turn % 2 == 0 ? 0xFF000000 : 0x80204060;
                    ++turn;
                    ASSERT_NO_FATAL_FAILURE(ExpectAsComputed(row));
                }
            }
        }
    }
}

// Every size at every drawing scale and unit position, where all rounding of the
// rectangle happens.
TEST_P(EveryStyle, DrawsAtEverySizeAndScale) {
    BarRow row;
    row.style = GetParam();
    for (const int size : kSizes) {
        for (const double scale : kScales) {
            for (const int unitPosition : kUnitPositions) {
                for (const double paperToData : {0.037, 1.0, 2500.0}) {
                    for (const float aspectRatio : kAspectRatios) {
                        row.size = size;
                        row.scale = scale;
                        row.unitPosition = unitPosition;
                        row.paperToData = paperToData;
                        row.aspectRatio = aspectRatio;
                        ASSERT_NO_FATAL_FAILURE(ExpectAsComputed(row));
                    }
                }
            }
        }
    }
}

// Heights just below the next whole pixel, and just above and below a half.
TEST_P(EveryStyle, RoundsTheHeightItsOwnWay) {
    BarRow row;
    row.style = GetParam();
    for (const double height : {40.95, 41.05, 41.45, 41.55, 41.95, 42.45, 42.55}) {
        row.size = 1000;
        row.scale = height / 1000.0;
        ASSERT_NO_FATAL_FAILURE(ExpectAsComputed(row));
    }
}

// Every height in pixels up to a page's, so that each integer division meets each
// remainder.
TEST_P(EveryStyle, DrawsAtEveryHeight) {
    BarRow row;
    row.style = GetParam();
    row.mainCount = 2;
    for (int size = 0; size <= 500; ++size) {
        row.size = size;
        row.unitPosition = size / 7 % 2;
        ASSERT_NO_FATAL_FAILURE(ExpectAsComputed(row));
    }
}

// An even and an odd number of boxes: what was filled before must not show.
TEST_P(EveryStyle, DrawsTheSameTwice) {
    Surface surface;
    const std::unique_ptr<CScaleBarBase> bar = NewBar(GetParam());
    for (const int mainCount : {4, 5}) {
        bar->SetMainDivCount(mainCount);
        Recording recording;
        bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
        const std::vector<std::string> first = recording.Lines();
        recording.Clear();
        bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
        EXPECT_EQ(recording.Lines(), first);
        EXPECT_GT(first.size(), 20u);
    }
}

TEST_P(EveryStyle, DrawsAlikeWhateverAngleTypeAndUnitAreStored) {
    Surface surface;
    const std::unique_ptr<CScaleBarBase> bar = NewBar(GetParam());
    bar->SetAngle(30.0f);
    bar->SetScaleBarType(static_cast<ScaleBarType>(4));
    bar->SetDestUnitType(MeasureKilometer);
    Recording recording;
    bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
    BarRow row;
    row.style = GetParam();
    EXPECT_TRUE(Equal(ExpectedDrawing(row), recording.Drawing()));
}

INSTANTIATE_TEST_SUITE_P(ScaleBar, EveryStyle, ::testing::ValuesIn(Styles()),
                         [](const auto& test) { return test.param->className + 1; });

}  // namespace
