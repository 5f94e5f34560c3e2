#include <gmock/gmock.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <array>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using editor_tests::ExpectBox;
using host::Box;
using ::testing::ElementsAre;

constexpr std::array<host::Box, 3> kBoxes = {{{100.0, 100.0, 200.0, 200.0},
                                              {150.0, 300.0, 210.0, 360.0},
                                              {600.0, 400.0, 700.0, 450.0}}};

host::Box Moved(const host::Box& box, double dx, double dy) {
    return {box.left + dx, box.bottom + dy, box.right + dx, box.top + dy};
}

class ArrangeCommands : public EditorTest {
protected:
    ArrangeCommands() {
        Add("north-arrow-four", kBoxes[0]);
        Add("north-arrow-one", kBoxes[1]);
        Add("title", kBoxes[2]);
    }
};

TEST_F(ArrangeCommands, AlignWithTheBoxAroundAll) {
    // Around all: from 100 to 700 across, its middle at 400; from 100 to 450 upwards.
    const struct {
        const char* command;
        std::array<double, 3> by;
        bool isAcross;
    } rows[] = {
        {"alignLeft", {0.0, -50.0, -500.0}, true},
        {"alignCentre", {250.0, 220.0, -250.0}, true},
        {"alignRight", {500.0, 490.0, 0.0}, true},
        {"alignTop", {250.0, 90.0, 0.0}, false},
        {"alignMiddle", {125.0, -55.0, -150.0}, false},
        {"alignBottom", {0.0, -200.0, -300.0}, false},
    };
    document.Select({0, 1, 2});
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command);
        Command(row.command);
        for (std::size_t i = 0; i < kBoxes.size(); ++i) {
            ExpectBox(BoxOf(i), Moved(kBoxes[i], row.isAcross ? row.by[i] : 0.0,
                                      row.isAcross ? 0.0 : row.by[i]));
        }
        ExpectImageIsThePage();
        Command("undo");
        ExpectBox(BoxOf(1), kBoxes[1]);
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
    ExpectBox(BoxOf(0), kBoxes[0]);
    ExpectBox(BoxOf(2), kBoxes[2]);
    ExpectImageIsThePage();
    // By their middles, at 150, 190 and 195: from 200 back to 145, less 60, are two gaps
    // of -57.5.
    Place(1, {160.0, 300.0, 220.0, 360.0});
    Place(2, {145.0, 400.0, 245.0, 450.0});
    Command("distributeAcross");
    ExpectBox(BoxOf(1), {142.5, 300.0, 202.5, 360.0});
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
    EXPECT_NEAR(document.Page().Height(), 378.0, 0.1);
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
