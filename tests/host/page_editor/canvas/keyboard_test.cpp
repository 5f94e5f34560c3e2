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

TEST_F(Keyboard, ControlAndArrowsResize) {
    document.Select({0});
    Key(Qt::Key_Right, Qt::ControlModifier);
    Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    ExpectBox(BoxOf(0), {100.0, 100.0, 211.0, 200.0});
    Key(Qt::Key_Down, Qt::ControlModifier);
    ExpectBox(BoxOf(0), {100.0, 100.0, 211.0, 199.0});
    Key(Qt::Key_Left, Qt::ControlModifier);
    Key(Qt::Key_Up, Qt::ControlModifier);
    ExpectBox(BoxOf(0), {100.0, 100.0, 210.0, 200.0});
    ExpectImageIsThePage();
    EXPECT_EQ(document.UndoLabel(), "Resize");
    Command("undo");
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
}

TEST_F(Keyboard, ResizingKeepsTheProportionsThatADragKeeps) {
    document.Select({1});  // 100 x 50, about the middle of its left edge
    Key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    ExpectBox(BoxOf(1), {300.0, 97.5, 410.0, 152.5});
}

TEST_F(Keyboard, ArrowsMoveTheSheetWhereNothingIsSelected) {
    canvas.SetZoom(3.0);
    const QPointF corner = canvas.CurrentView().corner;
    Key(Qt::Key_Right);
    Key(Qt::Key_Up);
    EXPECT_LT(canvas.CurrentView().corner.x(), corner.x());
    EXPECT_GT(canvas.CurrentView().corner.y(), corner.y());
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
}

TEST_F(Keyboard, GoesToThePropertiesAndBack) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    canvas.setFocus();
    document.Select({1});
    Key(Qt::Key_F2);
    QWidget* const field = QApplication::focusWidget();
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(panel.isAncestorOf(field));
    QTest::keyClicks(field, "forgotten");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_TRUE(canvas.hasFocus());
    EXPECT_THAT(document.Selection(), ElementsAre(1));
    EXPECT_EQ(Value<std::string>(1, "name"), "title");
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
    Key(Qt::Key_Escape);
    EXPECT_THAT(document.Selection(), IsEmpty());
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    EXPECT_THAT(document.Selection(), ElementsAre(1));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);  // on to the next widget
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
