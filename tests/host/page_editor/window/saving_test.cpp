// Nothing is replaced that somebody may want back.

#include <gmock/gmock.h>
#include <unistd.h>

#include <QFile>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/window/save_dialog.h"

namespace {

using editor_tests::Answering;
using editor_tests::Answers;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Saving : public editor_tests::EditorTest {};

TEST(SaveDialog, FinishesNames) {
    const struct {
        const char* typed;
        const char* ending;
        const char* name;
    } exports[] = {
        {"map", "", "map.png"},
        {"map.pdf", "", "map.pdf"},
        {"map", ".pdf", "map.pdf"},
        {"map.png", ".pdf", "map.pdf"},
        {"plan.v2", ".pdf", "plan.v2.pdf"},
        {"plan.v2", "", "plan.v2.png"},
        {"map.JPEG", ".jpg", "map.JPEG"},
        {"map.tiff", ".tif", "map.tiff"},
        {"a.b/map", ".ps", "a.b/map.ps"},
    };
    for (const auto& row : exports) {
        EXPECT_EQ(page_editor::ExportFileName(row.typed, row.ending), row.name);
    }
    EXPECT_EQ(page_editor::PageFileName("plan"), "plan.json");
    EXPECT_EQ(page_editor::PageFileName("plan.v2"), "plan.v2.json");
    EXPECT_EQ(page_editor::PageFileName("plan.JSON"), "plan.JSON");
}

TEST_F(Saving, AsksAboutTheNameThatIsWritten) {
    Write("vor.json", "kept");
    Command("save",
            {Answers::Name(Path("vor")), Answers::Press("No"), Answers::Cancel()});
    EXPECT_EQ(Bytes("vor.json"), "kept");
    EXPECT_EQ(files.Path(), "");
    Command("saveAs", {Answers::Name(Path("vor")), Answers::Press("Yes")});
    EXPECT_NE(Bytes("vor.json"), "kept");
    EXPECT_EQ(files.Path(), Path("vor.json"));
    Command("saveAs", {Answers::Name(Path("plan.v2"))});
    EXPECT_THAT(folder.Names(), ElementsAre("plan.v2.json", "vor.json"));
    EXPECT_TRUE(files.OpenFiles({Path("plan.v2.json")}));
}

TEST_F(Saving, ExportsTheFormatThatIsChosen) {
    Command("export", {Answers::Name(Path("map.png"), "PDF"), Answers::Accept()});
    EXPECT_EQ(Bytes("map.pdf").substr(0, 5), "%PDF-");
    Command("export", {Answers::Name(Path("map"), "JPEG"), Answers::Accept()});
    EXPECT_THAT(folder.Names(), ElementsAre("map.jpg", "map.pdf"));
    Command("export",
            {Answers::Name(Path("map"), "PDF"), Answers::Press("No"), Answers::Cancel()});
}

TEST_F(Saving, ReplacesNothingThatThePageIsDrawnFrom) {
    Add("map", {100.0, 100.0, 400.0, 300.0}, {Scene("scan.png")});
    Add("picture", {500.0, 100.0, 600.0, 200.0}, {Logo()});
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    ASSERT_EQ(symlink("scan.png", folder.Path("link.png").c_str()), 0);
    ASSERT_EQ(link(folder.Path("scan.png").c_str(), folder.Path("hard.png").c_str()), 0);
    ASSERT_EQ(symlink("page.json", folder.Path("page.png").c_str()), 0);
    ASSERT_EQ(symlink("logo.png", folder.Path("logo.json").c_str()), 0);
    const std::string scan = Bytes("scan.png");
    const std::string logo = Bytes("logo.png");
    const std::string page = Bytes("page.json");
    for (const char* name :
         {"scan.png", "logo.png", "link.png", "hard.png", "page.png"}) {
        EXPECT_FALSE(files.ExportTo(Path(name), 50.0)) << name;
        EXPECT_THAT(LastFailure(), HasSubstr(folder.Path(name) + ": would replace "));
    }
    EXPECT_FALSE(files.SaveTo(Path("logo.json")));
    Command("export",
            {Answers::Name(Path("scan")), Answers::Press("OK"), Answers::Cancel()});
    EXPECT_TRUE(Bytes("scan.png") == scan);
    EXPECT_TRUE(Bytes("logo.png") == logo);
    EXPECT_EQ(Bytes("page.json"), page);
}

TEST_F(Saving, AsksBeforeItReplacesWhatOthersSaved) {
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    page_editor::EditorWindow other;
    ASSERT_TRUE(other.Files().OpenFiles({Path("page.json")}));
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    Command("save");  // and nobody is asked
    const std::string saved = Bytes("page.json");
    other.Insert("title");
    const auto save = [&other] { return other.Files().Save(); };
    EXPECT_FALSE(Answering({Answers::Press("Cancel")}, save));
    EXPECT_EQ(Bytes("page.json"), saved);
    EXPECT_TRUE(other.isWindowModified());
    EXPECT_TRUE(
        Answering({Answers::Press("Save as…"), Answers::Name(Path("mine"))}, save));
    EXPECT_EQ(Bytes("page.json"), saved);
    EXPECT_FALSE(other.isWindowModified());

    Write("page.json", saved.c_str());  // the same, a moment later
    Command("undo");
    Command("save");
    Write("page.json", "{}");
    Command("save", {Answers::Press("Replace")});
    EXPECT_EQ(host::LoadPage(folder.Path("page.json")).Items().size(), 1u);
    QFile::remove(Path("page.json"));
    EXPECT_TRUE(files.Save());
}

TEST_F(Saving, ShowsWhereItFailed) {
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    Add("frame", {10.0, 10.0, 50.0, 50.0});
    const QFile::Permissions before = QFile::permissions(Path("page.json"));
    ASSERT_TRUE(QFile::setPermissions(Path("page.json"), QFile::ReadOwner));
    EXPECT_FALSE(files.Save());
    EXPECT_TRUE(window.Failures().isVisible());
    EXPECT_THAT(window.Failures().Text().toStdString(),
                HasSubstr(folder.Path("page.json") + ": "));
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_FALSE(Answering({Answers::Press("Save")}, [this] { return window.close(); }));
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(QFile::setPermissions(Path("page.json"), before));
    EXPECT_TRUE(files.Save());
    EXPECT_FALSE(window.Failures().isVisible());
}

}  // namespace
