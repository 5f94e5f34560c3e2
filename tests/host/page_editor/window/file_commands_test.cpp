#include "page_editor/window/file_commands.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QProcess>
#include <algorithm>
#include <filesystem>

#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/window/recent_files.h"

namespace {

using editor_tests::Answering;
using editor_tests::Answers;
using editor_tests::EditorTest;
using ::testing::HasSubstr;

class FileCommands : public EditorTest {};

// A page of a stranger: the rasters and pictures beside it are read, and no others unless
// the person says so.
TEST_F(FileCommands, AsksBeforeAPageHasMoreReadThanWhatIsBesideIt) {
    std::filesystem::create_directory(folder.Path("maps"));
    Scene("maps/scene.tif");
    Scene();
    Write("maps/scene.vrt",
          "<VRTDataset rasterXSize=\"60\" rasterYSize=\"40\"><VRTRasterBand "
          "dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>" +
              folder.Path("scene.tif") +
              "</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>");
    const std::string outside = folder.Path("scene.tif") + " is outside " +
                                std::filesystem::canonical(folder.Path("maps")).string();
    const std::pair<std::string, std::string> rows[] = {
        {R"("type": "map", "rasters": ["scene.tif"])", ""},
        {R"("type": "map", "rasters": ["../scene.tif"])", outside},
        {R"("type": "map", "rasters": ["scene.vrt"])",
         "reads " + folder.Path("scene.tif") + ", which is outside"},
        {R"("type": "picture", "path": "../scene.tif")", outside},
    };
    const auto open = [this] { return files.OpenFiles({Path("maps/page.json")}); };
    for (const auto& [element, why] : rows) {
        Write("maps/page.json",
              R"({"version": 2, "width": 800, "height": 600, "elements": [{)" + element +
                  R"(, "frame": {"width": 300, "height": 200}}]})");
        if (why.empty()) {
            EXPECT_TRUE(open()) << element;
            continue;
        }
        const std::size_t before = document.Count();
        EXPECT_FALSE(Answering({Answers::Press("No")}, open)) << element;
        EXPECT_THAT(LastFailure(), HasSubstr(why));
        EXPECT_EQ(document.Count(), before);
        EXPECT_TRUE(Answering({Answers::Press("Yes")}, open)) << element;
    }
}

TEST_F(FileCommands, SavesAndOpensAgain) {
    Add("map", {100.0, 100.0, 400.0, 300.0}, {Scene()});
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

TEST_F(FileCommands, KeepsThePageWhenAFileCannotBeOpened) {
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    Write("bad.json", R"({"version": 2, "width": 500})");
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

TEST_F(FileCommands, LaysAPageOutAroundRastersAndExportsIt) {
    ASSERT_TRUE(files.OpenFiles({Scene()}));
    EXPECT_EQ(files.Path(), "");
    EXPECT_FALSE(document.IsModified());
    const host::ItemType* const legend = host::FindItemType("legend");
    EXPECT_TRUE(std::any_of(document.Page().Items().begin(),
                            document.Page().Items().end(),
                            [&](const auto& item) { return legend->is(item); }));
    ASSERT_TRUE(files.ExportTo(Path("page.png"), 144.0));
    EXPECT_TRUE(QImage(Path("page.png")).convertToFormat(QImage::Format_RGB32) ==
                editor_tests::DrawnWhole(document.Page(), 144.0));
    for (const char* name :
         {"page.jpg", "page.bmp", "page.tif", "page.ps", "page.pdf", "page.svg"}) {
        EXPECT_TRUE(files.ExportTo(Path(name), 50.0)) << name;
        EXPECT_TRUE(QFile::exists(Path(name))) << name;
    }
    for (const auto& [images, isJpeg] : {std::pair(host::MapImages::Lossless, false),
                                         std::pair(host::MapImages::Jpeg, true)}) {
        ASSERT_TRUE(files.ExportTo(Path("page.pdf"), 60.0, images));
        EXPECT_EQ(Bytes("page.pdf").find("/DCTDecode") != std::string::npos, isJpeg);
    }
}

TEST_F(FileCommands, AsksAboutUnsavedWork) {
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    EXPECT_TRUE(files.MayDiscard());  // without a question
    Add("frame", {10.0, 10.0, 50.0, 50.0});

    const auto close = [this] { return window.close(); };
    EXPECT_FALSE(Answering({Answers::Press("Cancel")}, close));
    EXPECT_TRUE(window.isVisible());
    Command("new", {Answers::Press("Cancel")});
    EXPECT_EQ(document.Count(), 1u);

    EXPECT_TRUE(
        Answering({Answers::Press("Save")}, [this] { return files.MayDiscard(); }));
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(host::LoadPage(folder.Path("page.json")).Items().size(), 1u);

    Command("selectAll");
    Command("delete");
    EXPECT_EQ(document.Count(), 0u);
    EXPECT_TRUE(Answering({Answers::Press("Discard")}, close));
    EXPECT_EQ(host::LoadPage(folder.Path("page.json")).Items().size(), 1u);
}

TEST_F(FileCommands, BeginsAnew) {
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    Command("new", {Answers::Press("Discard")});
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
    Write("strange.json", R"({"version": 2, "width": 200, "height": 150, "elements": [)"
                          R"({"type": "picture", "path": "/etc/hostname"}]})");
    const QString none = Path("none.json");
    const struct {
        QStringList arguments;
        int status;
        std::string said;
    } rows[] = {
        {{"--help"}, 0, "--screenshot"},
        {{"--wrong"}, 2, "wrong"},
        {{none, "--screenshot", Path("none.png")},
         1,
         "page_editor: " + none.toStdString() + ": No such file or directory\n"},
        // And nobody is asked.
        {{Path("strange.json"), "--screenshot", Path("none.png")},
         1,
         "/etc/hostname is outside "},
    };
    for (const auto& row : rows) {
        const Ended run = RunEditor(row.arguments);
        EXPECT_EQ(run.status, row.status) << row.said;
        EXPECT_THAT(row.status == 0 ? run.out : run.err, HasSubstr(row.said));
    }
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
