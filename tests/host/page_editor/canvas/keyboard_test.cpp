#include <gmock/gmock.h>

#include <QtTest>

#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using editor_tests::ExpectBox;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Keyboard : public EditorTest {
protected:
    Keyboard() {
        Add("north-arrow-four", {100.0, 100.0, 200.0, 200.0});
        Add("title", {300.0, 100.0, 400.0, 150.0});
    }
};

TEST_F(Keyboard, ArrowsMoveByOneAndByTen) {
    document.Select({0});
    Key(Qt::Key_Right);
    Key(Qt::Key_Up);
    ExpectBox(BoxOf(0), {101.0, 101.0, 201.0, 201.0});
    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    ExpectBox(BoxOf(0), {91.0, 91.0, 191.0, 191.0});
    ExpectImageIsThePage();
    Command("undo");  // a row of steps at once
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
}

TEST_F(Keyboard, StepsOfAnotherItemAreAnotherCommand) {
    document.Select({0});
    Key(Qt::Key_Right);
    document.Select({1});
    Key(Qt::Key_Right);
    Command("undo");
    EXPECT_EQ(BoxOf(0).left, 101.0);
    EXPECT_EQ(BoxOf(1).left, 300.0);
}

TEST_F(Keyboard, TabGoesThroughTheItems) {
    canvas.setFocus();
    Key(Qt::Key_Tab);
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    Key(Qt::Key_Tab);
    EXPECT_THAT(document.Selection(), ElementsAre(1));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);  // on to the next widget
    EXPECT_THAT(document.Selection(), IsEmpty());
}

TEST_F(Keyboard, EscapeSelectsNothing) {
    document.Select({1});
    Key(Qt::Key_Escape);
    EXPECT_THAT(document.Selection(), IsEmpty());
}

TEST_F(Keyboard, ShortcutsRunCommands) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    canvas.setFocus();
    document.Select({0});
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(document.Count(), 3u);
    EXPECT_THAT(document.Selection(), ElementsAre(2));
    Key(Qt::Key_Delete);
    EXPECT_EQ(document.Count(), 2u);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(document.Count(), 3u);
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(document.Count(), 2u);
}

}  // namespace
