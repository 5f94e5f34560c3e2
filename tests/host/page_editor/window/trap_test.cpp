// Files whose decoders crash or hang: the editor stays, and so does the work.

#include <gmock/gmock.h>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>
#include <fstream>
#include <functional>
#include <iterator>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/trap_raster.h"

namespace {

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
    void TurnTheWheel() {
        const QPointF at(50.0, 50.0);
        QWheelEvent wheel(at, canvas.viewport()->mapToGlobal(at), {}, QPoint(0, 120),
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas.viewport(), &wheel);
    }
    QRgb PixelAt(CPoint2D point) {
        const QPoint pixel(static_cast<int>(point.x),
                           static_cast<int>(document.Page().Height() - point.y));
        return canvas.Image().pixel(pixel);
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
    EXPECT_NE(PixelAt(CPoint2D(200.0, 200.0)), PixelAt(CPoint2D(500.0, 200.0)));
}

TEST_F(TrapFiles, AreNotOpenedWhereOpeningThemCrashes) {
    window.Insert("map", {Path("open.trap")});
    EXPECT_EQ(LastFailure(), Died("open.trap"));
    EXPECT_FALSE(files.OpenFiles({Path("open.trap")}));
    EXPECT_THAT(LastFailure(), EndsWith(Died("open.trap")));
    EXPECT_EQ(Text(), before);
}

TEST_F(TrapFiles, AreNotOpenedWithAPage) {
    Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    const std::string now = Text();
    WriteTrap(folder.Path("well.trap"), Trap::DiesWhenOpened);
    page_editor::EditorWindow other;
    editor_tests::AnswerLater(QMessageBox::Yes);  // for it is of no plain kind
    EXPECT_FALSE(other.Files().OpenFiles({Path("page.json")}));
    EXPECT_EQ(other.LastFailure().toStdString(),
              folder.Path("page.json") + ": " + Died("well.trap"));
    EXPECT_EQ(other.Document().Count(), 0u);
    EXPECT_EQ(Text(), now);
}

TEST_F(TrapFiles, AreNotTakenByAProperty) {
    const std::size_t map = Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    const std::string now = Text();
    document.Select({map});
    page_editor::PropertyField* const field = panel.Field("rasters");
    ASSERT_NE(field, nullptr);
    field->changed(std::vector<std::string>{folder.Path("open.trap")});
    EXPECT_EQ(LastFailure(), Died("open.trap"));
    EXPECT_EQ(Text(), now);
}

TEST_F(TrapFiles, AreHatchedWhereReadingThemCrashes) {
    window.Insert("map", {Path("read.trap")});
    EXPECT_EQ(LastFailure(), std::string("reading the rasters failed: ") + kAborted);
    ASSERT_EQ(document.Count(), 2u);
    ASSERT_FALSE(canvas.Image().isNull());
    const host::Box box = BoxOf(1);
    const CPoint2D middle(box.MiddleX(), box.MiddleY());
    // Stripes of eight pixels along the other diagonal, in two light greys.
    const QRgb one = PixelAt(middle);
    const QRgb other = PixelAt(CPoint2D(middle.x + 8.0, middle.y));
    EXPECT_NE(one, other);
    EXPECT_EQ(PixelAt(CPoint2D(middle.x + 16.0, middle.y)), one);
    EXPECT_EQ(PixelAt(CPoint2D(middle.x + 8.0, middle.y - 8.0)), one);
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
        TurnTheWheel();
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
}

TEST_F(TrapFiles, AreReadAtOnceWhenThePageIsClickedBefore) {
    WriteTrap(folder.Path("slow.trap"), Trap::IsSlowToRead);
    Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("slow.trap")});
    canvas.SetZoom(1.0);
    TurnTheWheel();
    Click(CPoint2D(200.0, 200.0));
    ExpectImageIsThePage();
}

TEST_F(TrapFiles, EndAnExportThatCrashes) {
    window.Insert("map", {Path("read.trap")});
    const std::vector<std::string> names = folder.Names();
    for (const char* name : {"page.png", "page.ps"}) {
        EXPECT_FALSE(files.ExportTo(Path(name), 96.0));
        EXPECT_EQ(LastFailure(), folder.Path(name) + ": drawing failed: " + kAborted);
    }
    EXPECT_EQ(folder.Names(), names);
}

TEST_F(TrapFiles, EndAnExportThatIsGivenUp) {
    window.Insert("map", {Path("well.trap")});
    WriteTrap(folder.Path("well.trap"), Trap::HangsWhenRead);
    const std::vector<std::string> names = folder.Names();
    GiveUp();
    EXPECT_FALSE(files.ExportTo(Path("page.png"), 96.0));
    EXPECT_EQ(LastFailure(), folder.Path("page.png") + ": drawing was stopped");
    EXPECT_EQ(folder.Names(), names);
}

TEST_F(TrapFiles, AreGivenUpWhereOpeningThemHangs) {
    WriteTrap(folder.Path("stuck.trap"), Trap::HangsWhenOpened);
    GiveUp();
    window.Insert("map", {Path("stuck.trap")});
    EXPECT_EQ(LastFailure(), folder.Path("stuck.trap") + ": reading was stopped");
    EXPECT_FALSE(files.OpenFiles({Path("stuck.trap")}));
    EXPECT_THAT(LastFailure(),
                EndsWith(folder.Path("stuck.trap") + ": reading was stopped"));
    EXPECT_EQ(Text(), before);
    ExpectImageIsThePage();
}

TEST_F(TrapFiles, AreHatchedWhereReadingThemIsGivenUp) {
    const std::size_t map = Add("map", {100.0, 100.0, 300.0, 300.0}, {Path("well.trap")});
    WriteTrap(folder.Path("well.trap"), Trap::HangsWhenRead);
    document.Select({0});
    auto* const field = panel.Field("angle")->findChild<QLineEdit*>();
    field->selectAll();
    QTest::keyClicks(field, "45");
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
    auto* const field = panel.Field("angle")->findChild<QLineEdit*>();
    field->selectAll();
    QTest::keyClicks(field, "45");
    GiveUp([&](QWidget&) { Q_EMIT field->editingFinished(); });
    canvas.SetZoom(1.5);
    document.Select({1});
    QTest::qWait(300);
    EXPECT_EQ(Value<double>(0, "angle"), 0.0);
    EXPECT_EQ(Value<double>(1, "angle"), 0.0);
}

}  // namespace
