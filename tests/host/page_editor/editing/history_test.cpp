#include "page_editor/editing/history.h"

#include <gtest/gtest.h>

namespace {

using page_editor::History;
using page_editor::PageState;

PageState Sheet(double width) { return {width, 100.0, {}, {}}; }

TEST(History, GoesBackAndForth) {
    History history;
    history.Reset(Sheet(1.0));
    history.Push(Sheet(2.0), "Widen", {});
    EXPECT_EQ(history.UndoLabel(), "Widen");
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.Previous().width, 1.0);
    history.StepBack();
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(history.UndoLabel(), "");
    EXPECT_EQ(history.RedoLabel(), "Widen");
    EXPECT_EQ(history.Next().width, 2.0);
}

TEST(History, ForgetsWhatWasUndoneOnceSomethingElseIsDone) {
    History history;
    history.Reset(Sheet(1.0));
    history.Push(Sheet(2.0), "a", {});
    history.StepBack();
    history.Push(Sheet(3.0), "b", {});
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.Current().width, 3.0);
}

TEST(History, MergesCommandsOfAKind) {
    History history;
    history.Reset(Sheet(1.0));
    history.Push(Sheet(2.0), "Move", "nudge");
    history.Push(Sheet(3.0), "Move", "nudge");
    EXPECT_EQ(history.Current().width, 3.0);
    EXPECT_EQ(history.Previous().width, 1.0);
    history.EndMerging();
    history.Push(Sheet(4.0), "Move", "nudge");
    EXPECT_EQ(history.Previous().width, 3.0);
}

TEST(History, NeverMergesIntoWhatIsSaved) {
    History history;
    history.Reset(Sheet(1.0));
    history.Push(Sheet(2.0), "Move", "nudge");
    history.MarkSaved();
    history.Push(Sheet(3.0), "Move", "nudge");
    EXPECT_FALSE(history.IsSaved());
    EXPECT_EQ(history.Previous().width, 2.0);
}

TEST(History, KnowsWhetherItIsSaved) {
    History history;
    history.Reset(Sheet(1.0));
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

TEST(History, ForgetsTheOldest) {
    History history;
    history.Reset(Sheet(0.0));
    for (std::size_t i = 1; i <= History::kMostStates; ++i) {
        history.Push(Sheet(static_cast<double>(i)), "a", {});
    }
    EXPECT_EQ(history.Current().width, static_cast<double>(History::kMostStates));
    std::size_t steps = 0;
    for (; history.CanUndo(); ++steps) {
        history.StepBack();
    }
    EXPECT_EQ(steps, History::kMostStates - 1);
    EXPECT_EQ(history.Current().width, 1.0);
    EXPECT_FALSE(history.IsSaved());
}

}  // namespace
