// Files whose decoders crash or hang: the editor stays, and so does the work.

#include <gmock/gmock.h>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTimer>
#include <QtTest>
#include <fstream>
#include <functional>
#include <iterator>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/trap_raster.h"

namespace {

using editor_tests::Answering;
using editor_tests::Answers;
using editor_tests::EditorTest;
using editor_tests::Trap;
using editor_tests::WriteTrap;
using ::testing::EndsWith;

constexpr const char* kAborted = "Aborted (signal 6)";

class TrapFiles : public EditorTest {
protected:
    TrapFiles() {
        WriteTrap(folder.Path("well.trap"), Trap::None);
        WriteTrap(folder.Path("open.trap"), Trap::DiesWhenOpened);
        WriteTrap(folder.Path("read.trap"), Trap::DiesWhenRead);
        WriteTrap(folder.Path("hang.trap"), Trap::HangsWhenRead);
        Add("north-arrow-four", {600.0, 400.0, 700.0, 500.0});
        before = host::WritePage(document.Page(), {});
    }
    ~TrapFiles() override {
        const auto isDone = [] { return ChildrenOf(ChildrenOf("self")).empty(); };
        EXPECT_TRUE(QTest::qWaitFor(isDone)) << "a process is left beside the helper";
    }

    /// The processes that a process has started.
    static std::string ChildrenOf(const std::string& process) {
        const std::string number = process == "self" ? std::to_string(getpid()) : process;
        std::ifstream file("/proc/" + number + "/task/" + number + "/children");
        std::string children{std::istreambuf_iterator<char>(file), {}};
        return children.substr(0, children.find_last_not_of(' ') + 1);
    }

    std::string Died(const char* name) {
        return folder.Path(name) + ": reading failed: " + kAborted;
    }
    std::string Text() { return host::WritePage(document.Page(), {}); }
    /// Types an angle into the panel, and does not tell it yet.
    QLineEdit* TypeAngle() {
        auto* const field = panel.Field("angle")->findChild<QLineEdit*>();
        field->selectAll();
        QTest::keyClicks(field, "45");
        return field;
    }
    /// Cancels every dialog that shows how far something has come, after a look at it.
    void GiveUp(std::function<void(QWidget&)> look = {}) {
        QObject::connect(&cancel, &QTimer::timeout, [this, look] {
            auto* const dialog =
                qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (dialog != nullptr && !isLooking) {
                isLooking = true;
                if (look) {
                    look(*dialog);
                }
                dialog->cancel();
                isLooking = false;
            }
        });
        cancel.start(10);
    }

    std::string before;

private:
    QTimer cancel;
    bool isLooking = false;
};

TEST_F(TrapFiles, AreShownWhereNothingIsWrong) {
    Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    ExpectImageIsThePage();
    const int y = canvas.Image().height() - 200;
    EXPECT_NE(canvas.Image().pixel(200, y), canvas.Image().pixel(500, y));
}

TEST_F(TrapFiles, AreNotOpenedWhereOpeningThemCrashesOrHangs) {
    document.Select({Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")})});
    const std::string now = Text();
    for (const auto& [trap, failure] :
         {std::pair(Trap::DiesWhenOpened, Died("open.trap")),
          {Trap::HangsWhenOpened, folder.Path("open.trap") + ": reading was stopped"}}) {
        WriteTrap(folder.Path("open.trap"), trap);
        if (trap == Trap::HangsWhenOpened) {
            GiveUp();
        }
        panel.Field("rasters")->changed(std::vector{folder.Path("open.trap")});
        EXPECT_EQ(LastFailure(), failure);
        window.Insert("map", {Path("open.trap")});
        EXPECT_EQ(LastFailure(), failure);
        EXPECT_FALSE(files.OpenFiles({Path("open.trap")}));
        EXPECT_THAT(LastFailure(), EndsWith(failure));
        EXPECT_EQ(Text(), now);
        ExpectImageIsThePage();
    }
}

TEST_F(TrapFiles, AreNotOpenedWithAPage) {
    Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    const std::string now = Text();
    WriteTrap(folder.Path("well.trap"), Trap::DiesWhenOpened);
    page_editor::EditorWindow other;
    EXPECT_FALSE(Answering({Answers::Press("Yes")},  // for it is of no plain kind
                           [&] { return other.Files().OpenFiles({Path("page.json")}); }));
    EXPECT_EQ(other.LastFailure().toStdString(),
              folder.Path("page.json") + ": " + Died("well.trap"));
    EXPECT_EQ(other.Document().Count(), 0u);
    EXPECT_EQ(Text(), now);
}

TEST_F(TrapFiles, AreHatchedWhereReadingThemCrashes) {
    window.Insert("map", {Path("read.trap")});
    EXPECT_EQ(LastFailure(), std::string("reading the rasters failed: ") + kAborted);
    ASSERT_EQ(document.Count(), 2u);
    EXPECT_TRUE(IsHatched(1));
    // The rest of the page can be worked on.
    document.Select({1});
    Command("delete");
    EXPECT_EQ(Text(), before);
    ExpectImageIsThePage();
}

TEST_F(TrapFiles, AreReadWhenTheWheelRestsWhereThatTakesTime) {
    WriteTrap(folder.Path("slow.trap"), Trap::IsSlowToRead);
    Add("map", {100.0, 500.0, 300.0, 700.0}, {Path("slow.trap")});
    canvas.SetZoom(1.0);
    const QSize size = canvas.Image().size();
    for (int turn = 0; turn < 3; ++turn) {
        TurnTheWheel(*canvas.viewport(), {50.0, 50.0}, true, Qt::ControlModifier);
    }
    EXPECT_NEAR(canvas.Zoom(), 1.728, 1e-9);  // 1.2 to the third
    EXPECT_EQ(canvas.Image().size(), size);
    // Until then the sheet is stretched.
    const QImage shown = canvas.viewport()->grab().toImage();
    const QPointF inMap = canvas.CurrentView().ToWidget(CPoint2D(150.0, 600.0));
    EXPECT_EQ(shown.pixel(inMap.toPoint()),
              canvas.Image().pixel(150, size.height() - 600));
    ASSERT_TRUE(QTest::qWaitFor([&] { return canvas.Image().size() != size; }));
    ExpectImageIsThePage();
    TurnTheWheel(*canvas.viewport(), {50.0, 50.0}, true, Qt::ControlModifier);
    Click(CPoint2D(150.0, 600.0));  // before that
    ExpectImageIsThePage();
}

TEST_F(TrapFiles, EndAnExportThatCrashesOrIsGivenUp) {
    window.Insert("map", {Path("well.trap")});
    for (const auto& [trap, end] :
         {std::pair(Trap::DiesWhenRead, std::string("failed: ") + kAborted),
          {Trap::HangsWhenRead, "was stopped"}}) {
        WriteTrap(folder.Path("well.trap"), trap);
        if (trap == Trap::HangsWhenRead) {
            GiveUp();
        }
        const std::vector<std::string> names = folder.Names();
        for (const char* name : {"page.png", "page.ps"}) {
            EXPECT_FALSE(files.ExportTo(Path(name), 96.0));
            EXPECT_EQ(LastFailure(), folder.Path(name) + ": drawing " + end);
        }
        EXPECT_EQ(folder.Names(), names);
    }
}

TEST_F(TrapFiles, AreHatchedWhereReadingThemIsGivenUp) {
    const std::size_t map = Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    WriteTrap(folder.Path("well.trap"), Trap::HangsWhenRead);
    document.Select({0});
    QLineEdit* const field = TypeAngle();
    const QImage& image = canvas.Image();
    int dialogs = 0;
    GiveUp([&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
        EXPECT_FALSE(image.isNull());
        // The window lives on: a field loses the keyboard, and the page may have to be
        // drawn at another size.
        if (++dialogs == 1) {
            Q_EMIT field->editingFinished();
            EXPECT_EQ(Value<double>(0, "angle"), 0.0);
            canvas.SetZoom(1.25);
        }
    });
    canvas.SetZoom(1.5);
    EXPECT_EQ(LastFailure(), "reading the rasters was stopped");
    EXPECT_EQ(dialogs, 1);
    const int width = image.width();
    // What was to be done meanwhile is done now.
    EXPECT_TRUE(QTest::qWaitFor([&] { return image.width() < width; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Value<double>(0, "angle") == 45.0; }));
    EXPECT_EQ(dialogs, 2);
    document.Select({map});
    Command("delete");
    canvas.SetZoom(1.0);
    ExpectImageIsThePage();
}

TEST_F(TrapFiles, DoNotChangeWhatIsSelectedLater) {
    Add("north-arrow-four", {100.0, 400.0, 200.0, 500.0});
    Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    WriteTrap(folder.Path("well.trap"), Trap::HangsWhenRead);
    document.Select({0});
    QLineEdit* const field = TypeAngle();
    GiveUp([&](QWidget&) { Q_EMIT field->editingFinished(); });
    canvas.SetZoom(1.5);
    document.Select({1});
    QTest::qWait(300);
    EXPECT_EQ(Value<double>(0, "angle"), 0.0);
    EXPECT_EQ(Value<double>(1, "angle"), 0.0);
}

}  // namespace
