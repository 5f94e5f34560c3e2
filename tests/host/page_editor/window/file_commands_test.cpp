#include "page_editor/window/file_commands.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page/made_raster.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/window/recent_files.h"

namespace {

using editor_tests::AnswerLater;
using editor_tests::EditorTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Presses a button of the next question that is asked.
void AnswerWith(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, qApp, [button] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->button(button)->click();
    });
}

class FileCommands : public EditorTest {};

// A page of a stranger: the rasters and pictures beside it are read, and no others unless
// the person says so.
TEST_F(FileCommands, AsksBeforeAPageHasMoreReadThanWhatIsBesideIt) {
    std::filesystem::create_directory(folder.Path("maps"));
    WriteScene(folder.Path("maps/scene.tif"), 60, 40);
    WriteScene(folder.Path("scene.tif"), 60, 40);
    std::ofstream(folder.Path("maps/scene.vrt"))
        << "<VRTDataset rasterXSize=\"60\" rasterYSize=\"40\"><VRTRasterBand "
           "dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>"
        << folder.Path("scene.tif")
        << "</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>";
    const std::string outside = folder.Path("scene.tif") + " is outside " +
                                std::filesystem::canonical(folder.Path("maps")).string();
    const std::pair<std::string, std::string> rows[] = {
        {R"("type": "map", "rasters": ["scene.tif"])", ""},
        {R"("type": "map", "rasters": ["../scene.tif"])", outside},
        {R"("type": "map", "rasters": ["scene.vrt"])",
         "reads " + folder.Path("scene.tif") + ", which is outside"},
        {R"("type": "picture", "path": "../scene.tif")", outside},
    };
    QString failed;
    QObject::connect(&files, &page_editor::FileCommands::Failed,
                     [&failed](const QString& why) { failed = why; });
    for (const auto& [element, why] : rows) {
        std::ofstream(folder.Path("maps/page.json"))
            << R"({"version": 2, "width": 800, "height": 600, "elements": [{)" << element
            << R"(, "frame": {"width": 300, "height": 200}}]})";
        if (why.empty()) {
            EXPECT_TRUE(files.OpenFiles({Path("maps/page.json")})) << element;
            continue;
        }
        const std::size_t before = document.Page().Items().size();
        AnswerLater(QMessageBox::No);
        EXPECT_FALSE(files.OpenFiles({Path("maps/page.json")})) << element;
        EXPECT_THAT(failed.toStdString(), HasSubstr(why));
        EXPECT_EQ(document.Page().Items().size(), before);
        AnswerLater(QMessageBox::Yes);
        EXPECT_TRUE(files.OpenFiles({Path("maps/page.json")})) << element;
    }
}

TEST_F(FileCommands, SavesAndOpensAgain) {
    WriteScene(folder.Path("scene.tif"), 60, 40);
    Add("map", {100.0, 100.0, 400.0, 300.0}, {Path("scene.tif")});
    Add("title", {500.0, 500.0, 700.0, 560.0});
    EXPECT_TRUE(window.isWindowModified());
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr("page.json"));
    EXPECT_THAT(Bytes("page.json"), HasSubstr("\"scene.tif\""));

    page_editor::EditorWindow other;
    ASSERT_TRUE(other.Files().OpenFiles({Path("page.json")}));
    EXPECT_EQ(host::WritePage(other.Document().Page(), {}),
              host::WritePage(document.Page(), {}));
    EXPECT_FALSE(other.isWindowModified());
    EXPECT_FALSE(other.Document().CanUndo());
    other.Canvas().SetZoom(1.0);
    EXPECT_TRUE(other.Canvas().Image() ==
                editor_tests::DrawnWhole(document.Page(), 96.0));
    const std::string saved = Bytes("page.json");
    ASSERT_TRUE(other.Files().SaveTo(Path("page.json")));
    EXPECT_EQ(Bytes("page.json"), saved);
}

TEST_F(FileCommands, MarksTheTitleUntilItIsSaved) {
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    EXPECT_TRUE(window.isWindowModified());
    Command("undo");
    Command("undo");
    EXPECT_FALSE(window.isWindowModified());
    Command("redo");
    EXPECT_TRUE(window.isWindowModified());
    Command("save");
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(FileCommands, LaysAPageOutAroundRasters) {
    WriteScene(folder.Path("scene.tif"), 60, 40);
    ASSERT_TRUE(files.OpenFiles({Path("scene.tif")}));
    EXPECT_GE(document.Count(), 3u);  // neat line, map, title at least
    EXPECT_EQ(files.Path(), "");
    EXPECT_FALSE(document.IsModified());
}

TEST_F(FileCommands, KnowsAPageFileByItsEndingInAnyCase) {
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    ASSERT_TRUE(files.SaveTo(Path("page.JSON")));
    files.New();
    ASSERT_TRUE(files.OpenFiles({Path("page.JSON")})) << LastFailure();
    EXPECT_EQ(document.Count(), 1u);
    EXPECT_EQ(files.Path(), Path("page.JSON"));
}

TEST_F(FileCommands, KeepsThePageWhenAFileCannotBeOpened) {
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    std::ofstream(folder.Path("bad.json")) << R"({"version": 2, "width": 500})";
    EXPECT_FALSE(files.OpenFiles({Path("bad.json")}));
    EXPECT_EQ(window.LastFailure(), Path("bad.json") + ": height: is missing");
    EXPECT_FALSE(files.OpenFiles({Path("none.json")}));
    EXPECT_THAT(LastFailure(), HasSubstr("none.json: No such file or directory"));
    EXPECT_FALSE(files.OpenFiles({Path("none.tif")}));
    EXPECT_THAT(LastFailure(), HasSubstr("none.tif: "));
    EXPECT_EQ(document.Count(), 1u);
    EXPECT_TRUE(document.CanUndo());
}

TEST_F(FileCommands, LeavesNothingHalfWritten) {
    EXPECT_FALSE(files.SaveTo(Path("none/page.json")));
    EXPECT_THAT(LastFailure(), HasSubstr("none/page.json: "));
    EXPECT_FALSE(files.ExportTo(Path("page.gif"), 96.0));
    EXPECT_THAT(LastFailure(), HasSubstr("ends in none of"));
    EXPECT_FALSE(files.ExportTo(Path("page.png"), 1.0e5));
    EXPECT_THAT(LastFailure(), HasSubstr("pixels"));
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(FileCommands, ExportsWhatIsDrawn) {
    Add("north-arrow-eight", {500.0, 300.0, 700.0, 500.0});
    ASSERT_TRUE(files.ExportTo(Path("page.png"), 144.0));
    const QImage read(Path("page.png"));
    EXPECT_TRUE(read.convertToFormat(QImage::Format_RGB32) ==
                editor_tests::DrawnWhole(document.Page(), 144.0));
    for (const char* name :
         {"page.jpg", "page.bmp", "page.tif", "page.ps", "page.pdf", "page.svg"}) {
        EXPECT_TRUE(files.ExportTo(Path(name), 50.0)) << name;
    }
    EXPECT_THAT(folder.Names(),
                ElementsAre("page.bmp", "page.jpg", "page.pdf", "page.png", "page.ps",
                            "page.svg", "page.tif"));
}

TEST_F(FileCommands, ExportsThePageAroundRasters) {
    WriteScene(folder.Path("scene.tif"), 120, 90);
    ASSERT_TRUE(files.OpenFiles({Path("scene.tif")}));
    const host::ItemType* const legend = host::FindItemType("legend");
    EXPECT_TRUE(std::any_of(document.Page().Items().begin(),
                            document.Page().Items().end(),
                            [&](const auto& item) { return legend->is(item); }));
    ASSERT_TRUE(files.ExportTo(Path("page.png"), 120.0));
    EXPECT_TRUE(QImage(Path("page.png")).convertToFormat(QImage::Format_RGB32) ==
                editor_tests::DrawnWhole(document.Page(), 120.0));
    for (const auto& [images, isJpeg] : {std::pair(host::MapImages::Lossless, false),
                                         std::pair(host::MapImages::Jpeg, true)}) {
        ASSERT_TRUE(files.ExportTo(Path("page.pdf"), 60.0, images));
        QFile pdf(Path("page.pdf"));
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
        EXPECT_EQ(pdf.readAll().contains("/DCTDecode"), isJpeg);
    }
}

TEST_F(FileCommands, AsksAboutUnsavedWork) {
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    EXPECT_TRUE(files.MayDiscard());  // without a question
    Add("frame", {10.0, 10.0, 50.0, 50.0});

    AnswerWith(QMessageBox::Cancel);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());

    AnswerWith(QMessageBox::Cancel);
    files.New();
    EXPECT_EQ(document.Count(), 1u);

    AnswerWith(QMessageBox::Save);
    EXPECT_TRUE(files.MayDiscard());
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(host::LoadPage(folder.Path("page.json")).Items().size(), 1u);

    Command("selectAll");
    Command("delete");
    AnswerWith(QMessageBox::Discard);
    EXPECT_TRUE(window.close());
    EXPECT_EQ(host::LoadPage(folder.Path("page.json")).Items().size(), 1u);
}

TEST_F(FileCommands, BeginsAnew) {
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    AnswerWith(QMessageBox::Discard);
    Command("new");
    EXPECT_EQ(document.Count(), 0u);
    EXPECT_FALSE(document.CanUndo());
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(FileCommands, RemembersTheLastFiles) {
    for (const QString& path : page_editor::RecentFiles()) {
        page_editor::RemoveRecentFile(path);
    }
    ASSERT_TRUE(files.SaveTo(Path("a.json")));
    ASSERT_TRUE(files.SaveTo(Path("b.json")));
    ASSERT_TRUE(files.SaveTo(Path("a.json")));
    EXPECT_EQ(page_editor::RecentFiles(), QStringList({Path("a.json"), Path("b.json")}));
    QFile::remove(Path("b.json"));
    EXPECT_FALSE(files.OpenFiles({Path("b.json")}));
    EXPECT_EQ(page_editor::RecentFiles(), QStringList({Path("a.json")}));
    for (int i = 0; i < 20; ++i) {
        page_editor::AddRecentFile(Path("many") + QString::number(i));
    }
    EXPECT_EQ(page_editor::RecentFiles().size(), 8);
}

struct Ended {
    int status;
    std::string out;
    std::string err;
};

Ended RunEditor(const QStringList& arguments) {
    QProcess process;
    process.start(PAGE_EDITOR_PROGRAM, arguments);
    process.waitForFinished(60'000);
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

TEST_F(FileCommands, TheProgramTellsWhatItIsGiven) {
    const Ended help = RunEditor({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out, HasSubstr("--screenshot"));
    const Ended wrong = RunEditor({"--wrong"});
    EXPECT_EQ(wrong.status, 2);
    const Ended missing =
        RunEditor({Path("none.json"), "--screenshot", Path("none.png")});
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("page_editor: " + folder.Path("none.json") +
                                       ": No such file or directory\n"));
    std::ofstream(folder.Path("strange.json"))
        << R"({"version": 2, "width": 200, "height": 150, "elements": [)"
        << R"({"type": "picture", "path": "/etc/hostname"}]})";
    const Ended strange =  // and nobody is asked
        RunEditor({Path("strange.json"), "--screenshot", Path("none.png")});
    EXPECT_EQ(strange.status, 1);
    EXPECT_THAT(strange.err, HasSubstr("/etc/hostname is outside "));
    EXPECT_FALSE(QFile::exists(Path("none.png")));
}

TEST_F(FileCommands, TheProgramDrawsItsWindow) {
    Add("title", {500.0, 500.0, 700.0, 560.0});
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    const Ended run = RunEditor(
        {Path("page.json"), "--select", "0", "--screenshot", Path("window.png")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_GT(QImage(Path("window.png")).width(), 800);
    EXPECT_EQ(RunEditor({Path("page.json"), "--select", "1"}).status, 1);
}

}  // namespace
