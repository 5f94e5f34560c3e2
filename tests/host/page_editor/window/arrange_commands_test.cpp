#include <gmock/gmock.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using editor_tests::ExpectBox;
using host::Box;
using ::testing::ElementsAre;

class ArrangeCommands : public EditorTest {
protected:
    ArrangeCommands() {
        Add("north-arrow-four", {100.0, 100.0, 200.0, 200.0});
        Add("north-arrow-one", {150.0, 300.0, 210.0, 360.0});
        Add("title", {600.0, 400.0, 700.0, 450.0});
    }
};

TEST_F(ArrangeCommands, Align) {
    const struct {
        const char* command;
        double x;  // how far the second of the three moves
        double y;
    } rows[] = {
        {"alignLeft", -50.0, 0.0},   {"alignCentre", 220.0, 0.0},
        {"alignRight", 490.0, 0.0},  {"alignTop", 0.0, 90.0},
        {"alignMiddle", 0.0, -55.0}, {"alignBottom", 0.0, -200.0},
    };
    document.Select({0, 1, 2});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command);
        Command(row.command);
        ExpectBox(BoxOf(1), {150.0 + row.x, 300.0 + row.y, 210.0 + row.x, 360.0 + row.y});
        ExpectImageIsThePage();
        Command("undo");
        ExpectBox(BoxOf(1), {150.0, 300.0, 210.0, 360.0});
    }
}

TEST_F(ArrangeCommands, AlignASingleOneWithTheSheet) {
    document.Select({0});
    Command("alignRight");
    Command("alignTop");
    EXPECT_NEAR(BoxOf(0).right, document.Page().Width(), 1e-6);
    EXPECT_NEAR(BoxOf(0).top, document.Page().Height(), 1e-6);
}

TEST_F(ArrangeCommands, Distribute) {
    document.Select({0, 1, 2});
    Command("distributeAcross");  // 400 between the outer two, less 60: 170 each
    ExpectBox(BoxOf(1), {370.0, 300.0, 430.0, 360.0});
    Command("distributeUpwards");  // 200 between, less 60: 70 each
    ExpectBox(BoxOf(1), {370.0, 270.0, 430.0, 330.0});
    ExpectImageIsThePage();
}

TEST_F(ArrangeCommands, ChangeTheOrder) {
    const std::string arrow = host::WriteItem(document.Item(0));
    document.Select({0});
    Command("toFront");
    EXPECT_EQ(host::WriteItem(document.Item(2)), arrow);
    EXPECT_THAT(document.Selection(), ElementsAre(2));
    Command("down");
    EXPECT_EQ(host::WriteItem(document.Item(1)), arrow);
    Command("up");
    EXPECT_EQ(host::WriteItem(document.Item(2)), arrow);
    Command("toBack");
    EXPECT_EQ(host::WriteItem(document.Item(0)), arrow);
    ExpectImageIsThePage();
}

TEST_F(ArrangeCommands, RotateByAQuarter) {
    document.Select({2});
    Command("rotate");
    EXPECT_EQ(Value<double>(2, "angle"), 90.0);
    ExpectBox(BoxOf(2), {625.0, 375.0, 675.0, 475.0});
    ExpectImageIsThePage();
    for (int turn = 0; turn < 3; ++turn) {
        Command("rotate");
    }
    EXPECT_EQ(Value<double>(2, "angle"), 0.0);
    ExpectBox(BoxOf(2), {600.0, 400.0, 700.0, 450.0});
}

TEST_F(ArrangeCommands, SelectAllAndDelete) {
    Command("selectAll");
    Command("delete");
    EXPECT_EQ(document.Count(), 0u);
    ExpectImageIsThePage();
    Command("undo");
    EXPECT_EQ(document.Count(), 3u);
    ExpectImageIsThePage();
}

TEST_F(ArrangeCommands, CutCopyAndPaste) {
    const std::size_t count = document.Count();
    document.Select({0});
    const host::Box box = BoxOf(0);
    Command("copy");
    page_editor::EditorWindow other;
    other.findChild<QAction*>("paste")->trigger();
    ASSERT_EQ(other.Document().Count(), 1u);
    EXPECT_EQ(host::BoxOf(other.Document().Extent(0)).left, box.left + 16.0);

    Command("cut");
    EXPECT_EQ(document.Count(), count - 1);
    Command("paste");
    ASSERT_EQ(document.Count(), count);
    EXPECT_EQ(BoxOf(count - 1).Width(), box.Width());
    ExpectImageIsThePage();

    QGuiApplication::clipboard()->setText("some text");
    Command("paste");
    EXPECT_THAT(LastFailure(), ::testing::StartsWith("the clipboard: "));
    EXPECT_EQ(document.Count(), count);
}

TEST_F(ArrangeCommands, ChangeTheSheet) {
    EXPECT_TRUE(window.SetSheet("200x100"));
    EXPECT_NEAR(document.Page().Width(), 755.9, 0.1);
    ExpectImageIsThePage();
    EXPECT_TRUE(window.SetSheet("250x100"));  // only as wide
    ExpectImageIsThePage();
    Command("undo");
    ExpectImageIsThePage();
    EXPECT_FALSE(window.SetSheet("19x100"));
    EXPECT_THAT(LastFailure(), ::testing::HasSubstr("19x100"));
    Command("undo");
    EXPECT_NEAR(document.Page().Width(), 1122.5, 0.1);
    canvas.SetZoom(1.0);
    ExpectImageIsThePage();
}

}  // namespace
