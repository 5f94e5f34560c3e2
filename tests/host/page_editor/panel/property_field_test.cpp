#include "page_editor/panel/property_field.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QtTest>

#include "page_editor/editor_fixture.h"

namespace {

class PropertyField : public editor_tests::EditorTest {
protected:
    PropertyField() {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        window.resize(1024, 500);
        title = Add("title", {100.0, 20.0, 400.0, 60.0});
        document.Select({title});
        QApplication::processEvents();
    }

    template <class Widget>
    Widget& In(const char* property) {
        return *panel.Field(property)->findChild<Widget*>();
    }
    int Size() { return Value<std::int32_t>(title, "size"); }
    double Left() { return BoxOf(title).left; }

    std::size_t title = 0;
};

TEST_F(PropertyField, TheWheelScrollsThePanelUnlessAFieldHasTheKeyboard) {
    canvas.setFocus();
    ASSERT_GT(panel.verticalScrollBar()->maximum(), 0);
    const int before = Size();
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             &In<QSpinBox>("size"), &In<QComboBox>("fontStyle"), &In<QComboBox>("font"),
             &In<QLineEdit>("left")}) {
        panel.verticalScrollBar()->setValue(0);
        TurnTheWheel(*widget, widget->rect().center(), false);
        EXPECT_GT(panel.verticalScrollBar()->value(), 0);
        EXPECT_FALSE(widget->hasFocus());
    }
    EXPECT_EQ(Size(), before);
    EXPECT_EQ(document.UndoLabel(), "Place");
    panel.verticalScrollBar()->setValue(0);
    In<QSpinBox>("size").setFocus();
    TurnTheWheel(In<QSpinBox>("size"), In<QSpinBox>("size").rect().center(), false);
    EXPECT_EQ(Size(), before - 1);
    EXPECT_EQ(panel.verticalScrollBar()->value(), 0);
}

TEST_F(PropertyField, KeysReachThePageOnceNothingIsBeingTyped) {
    for (QLineEdit* const line :
         {&In<QLineEdit>("left"), &In<QLineEdit>("size"), &In<QLineEdit>("font")}) {
        In<QLineEdit>("left").setFocus();
        In<QLineEdit>("left").selectAll();
        QTest::keyClicks(&In<QLineEdit>("left"), "123");
        QTest::keyClick(&In<QLineEdit>("left"), Qt::Key_Return);
        ASSERT_EQ(Left(), 123.0);
        line->setFocus();
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Left(), 100.0);
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(Left(), 123.0);
        QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    }
    QLineEdit& left = In<QLineEdit>("left");
    left.setFocus();
    left.selectAll();
    QTest::keyClicks(&left, "77");  // still being typed
    QTest::keyClick(&left, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Left(), 100.0);
    EXPECT_NE(left.text(), "77");
    document.Redo();  // so 77 has been no command
    EXPECT_EQ(Left(), 123.0);
}

TEST_F(PropertyField, KeysOfFilesReachThePage) {
    using editor_tests::Answers;
    QLineEdit& left = In<QLineEdit>("left");
    left.setFocus();
    const QString page = Path("page");
    {
        Answers answers({Answers::Name(page)});
        QTest::keyClick(&left, Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(files.Path(), page + ".json");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    left.setFocus();
    {
        Answers answers({Answers::Cancel()});
        QTest::keyClick(&left, Qt::Key_E, Qt::ControlModifier);
    }
}

}  // namespace
