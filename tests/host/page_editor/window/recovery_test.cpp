// Work that was not saved when the editor was killed.

#include <gmock/gmock.h>
#include <signal.h>

#include <QDir>
#include <QProcess>
#include <QtTest>
#include <fstream>

#include "page/document/page_text.h"
#include "page/made_raster.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::Answering;
using editor_tests::Answers;
using page_editor::EditorWindow;
using page_editor::Recovery;
using ::testing::IsEmpty;

constexpr const char* kFolder = "EDITOR_TESTS_FOLDER";

class LostWork : public ::testing::Test {
protected:
    explicit LostWork(const std::string& given = {})
        : home(QString::fromStdString(given.empty() ? folder.Path() : given)) {}

    QString Path(const char* name) const { return home + '/' + name; }
    QString Kept() const { return Path("kept"); }
    int Pages() const {
        return static_cast<int>(QDir(Kept()).entryList({"*.json"}).size());
    }
    bool IsKept(int pages) const {
        return QTest::qWaitFor([&] { return Pages() == pages; });
    }
    std::unique_ptr<EditorWindow> Window() {
        auto window = std::make_unique<EditorWindow>(Kept());
        window->show();
        return window;
    }
    /// A window to which lost work was offered, and that answer given.
    std::unique_ptr<EditorWindow> Offered(const char* answer) {
        auto window = Window();
        Answering({Answers::Press(answer)},
                  [&] { page_editor::OfferLostWork(*window, Kept()); });
        return window;
    }
    /// An editor that saves a page with a map, changes it, and is killed.
    void KillOne() {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kFolder, home);
        process.setProcessEnvironment(environment);
        process.start(QApplication::applicationFilePath(),
                      {"--gtest_also_run_disabled_tests",
                       "--gtest_filter=Killed.DISABLED_InTheMidstOfWork"});
        ASSERT_TRUE(process.waitForFinished(60'000));
        ASSERT_EQ(process.exitStatus(), QProcess::CrashExit);
    }

    ScratchFolder folder;
    QString home;
};

class Killed : public LostWork {
protected:
    Killed() : LostWork(qEnvironmentVariable(kFolder).toStdString()) {}
};

TEST_F(Killed, DISABLED_InTheMidstOfWork) {
    WriteScene(Path("scene.tif").toStdString(), 60, 40);
    const auto window = Window();
    ASSERT_TRUE(window->Files().OpenFiles({Path("scene.tif")}));
    ASSERT_TRUE(window->Files().SaveTo(Path("page.json")));
    window->Insert("title");
    ASSERT_TRUE(IsKept(1));
    std::ofstream(Path("work.json").toStdString())
        << host::WritePage(window->Document().Page(), {});
    raise(SIGKILL);
}

TEST_F(LostWork, IsOfferedAgain) {
    KillOne();
    const host::Page work = host::LoadPage(Path("work.json").toStdString());
    const host::Page saved = host::LoadPage(Path("page.json").toStdString());
    ASSERT_EQ(work.Items().size(), saved.Items().size() + 1);
    {
        const auto window = Offered("Later");
        EXPECT_EQ(window->Document().Count(), 0u);
        EXPECT_TRUE(window->close());
    }
    const auto window = Offered("Recover");
    EXPECT_EQ(host::WritePage(window->Document().Page(), {}), host::WritePage(work, {}));
    EXPECT_EQ(window->Files().Path(), Path("page.json"));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(Pages(), 1);                // until it is saved
    EXPECT_TRUE(window->Files().Save());  // and nobody asks
    ASSERT_EQ(Pages(), 0);                // or it would be offered once more
    EXPECT_EQ(host::WritePage(host::LoadPage(Path("page.json").toStdString()), {}),
              host::WritePage(work, {}));
    page_editor::OfferLostWork(*window, Kept());
}

TEST_F(LostWork, ReplacesNothingThatWasSavedMeanwhile) {
    KillOne();
    std::ofstream(Path("page.json").toStdString()) << "{}";
    const auto window = Offered("Recover");
    EXPECT_FALSE(
        Answering({Answers::Press("Cancel")}, [&] { return window->Files().Save(); }));
    window->Document().MarkSaved();
}

TEST_F(LostWork, CanBeDiscarded) {
    KillOne();
    const auto window = Offered("Discard");
    ASSERT_THAT(QDir(Kept()).entryList(QDir::Files), IsEmpty());
    page_editor::OfferLostWork(*window, Kept());
}

TEST_F(LostWork, IsNoWorkOfAWindowThatLives) {
    const auto one = Window();
    const auto other = Window();
    one->Insert("title");
    other->Insert("frame");
    ASSERT_TRUE(IsKept(2));
    EXPECT_THAT(Recovery::Lost(Kept()), IsEmpty());
    one->Undo();
    EXPECT_EQ(Pages(), 1);
    ASSERT_TRUE(other->Files().SaveTo(Path("page.json")));
    EXPECT_THAT(QDir(Kept()).entryList(QDir::Files), IsEmpty());
    one->Redo();
    ASSERT_TRUE(IsKept(1));
    EXPECT_TRUE(Answering({Answers::Press("Discard")}, [&] { return one->close(); }));
    EXPECT_THAT(QDir(Kept()).entryList(QDir::Files), IsEmpty());
}

TEST_F(LostWork, IsToldWhereItCannotBeKept) {
    std::ofstream(Kept().toStdString()) << "no folder";
    const auto window = Window();
    window->Insert("title");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Failures().isVisible(); }));
    EXPECT_TRUE(window->Failures().Text().contains(Kept()));
}

}  // namespace
