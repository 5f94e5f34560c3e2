#include "page_editor/editing/history.h"

#include <gtest/gtest.h>

namespace {

using page_editor::History;
using page_editor::PageState;

PageState Sheet(double width) { return {width, 100.0, {}, {}}; }

class HistoryTest : public ::testing::Test {
protected:
    HistoryTest() { history.Reset(Sheet(1.0)); }

    History history;
};

TEST_F(HistoryTest, ForgetsWhatWasUndoneOnceSomethingElseIsDone) {
    history.Push(Sheet(2.0), "a", {});
    history.StepBack();
    history.Push(Sheet(3.0), "b", {});
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.Current().width, 3.0);
}

TEST_F(HistoryTest, NeverMergesIntoWhatIsSaved) {
    history.Push(Sheet(2.0), "Move", "nudge");
    history.MarkSaved();
    history.Push(Sheet(3.0), "Move", "nudge");
    EXPECT_FALSE(history.IsSaved());
    EXPECT_EQ(history.Previous().width, 2.0);
}

TEST_F(HistoryTest, KnowsWhetherItIsSaved) {
    EXPECT_TRUE(history.IsSaved());
    history.Push(Sheet(2.0), "a", {});
    EXPECT_FALSE(history.IsSaved());
    history.StepBack();
    EXPECT_TRUE(history.IsSaved());
    history.StepForth();
    history.MarkSaved();
    history.StepBack();
    EXPECT_FALSE(history.IsSaved());
    history.Push(Sheet(3.0), "b", {});  // what was saved can never be reached again
    EXPECT_FALSE(history.IsSaved());
    history.StepBack();
    EXPECT_FALSE(history.IsSaved());
}

TEST_F(HistoryTest, ForgetsTheOldest) {
    for (std::size_t i = 1; i <= History::kMostStates; ++i) {
        history.Push(Sheet(1.0 + static_cast<double>(i)), "a", {});
    }
    std::size_t steps = 0;
    for (; history.CanUndo(); ++steps) {
        history.StepBack();
    }
    EXPECT_EQ(steps, History::kMostStates - 1);
    EXPECT_EQ(history.Current().width, 2.0);
    EXPECT_FALSE(history.IsSaved());
}

}  // namespace
