// Pages whose files were moved, and what else a page remarks.

#include <gmock/gmock.h>

#include <QFile>

#include "page/document/page_text.h"
#include "page/made_raster.h"
#include "page_editor/editor_fixture.h"

namespace {

using ::testing::HasSubstr;

class MissingFiles : public editor_tests::EditorTest {
protected:
    std::string Told() { return window.Remarks().Text().toStdString(); }
    /// A page around a raster, with a legend, whose raster and picture are then gone.
    void OpenMoved() {
        ASSERT_TRUE(files.OpenFiles({Scene()}));
        window.Insert("picture", {Logo()});
        ASSERT_TRUE(files.SaveTo(Path("page.json")));
        ASSERT_TRUE(QFile::rename(Path("scene.tif"), Path("moved.tif")));
        ASSERT_TRUE(QFile::rename(Path("logo.png"), Path("moved.png")));
        files.New();
        ASSERT_TRUE(files.OpenFiles({Path("page.json")}));
        canvas.SetZoom(1.0);
        for (std::size_t i = 0; i < document.Count(); ++i) {
            map = std::holds_alternative<host::MapFrame>(document.Item(i)) ? i : map;
        }
    }
    std::size_t map = 0;
};

TEST_F(MissingFiles, AreShownAndSavedAsTheyWereNamed) {
    OpenMoved();
    EXPECT_TRUE(IsHatched(map));
    EXPECT_TRUE(window.Remarks().isVisible());
    EXPECT_THAT(Told(), HasSubstr(folder.Path("scene.tif") + ": "));
    EXPECT_THAT(Told(), HasSubstr(folder.Path("logo.png") + ": "));
    EXPECT_FALSE(window.isWindowModified());
    const std::string before = Bytes("page.json");
    ASSERT_TRUE(files.SaveTo(Path("again.json")));
    EXPECT_EQ(Bytes("again.json"), before);
    EXPECT_FALSE(files.ExportTo(Path("page.png"), 50.0));
    EXPECT_THAT(window.Failures().Text().toStdString(), HasSubstr(": No such file"));
    EXPECT_FALSE(QFile::exists(Path("page.png")));
}

TEST_F(MissingFiles, LetThePageBeWorkedOn) {
    OpenMoved();
    const host::Box before = BoxOf(map);
    document.Select({map});
    Key(Qt::Key_Right);
    EXPECT_EQ(BoxOf(map).left, before.left + 1.0);
    Command("duplicate");
    Command("delete");
    Command("undo");
    Command("undo");
    Command("undo");
    EXPECT_EQ(BoxOf(map).left, before.left);
    EXPECT_TRUE(IsHatched(map));
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(MissingFiles, AreMendedInThePanel) {
    OpenMoved();
    document.Select({map});
    const auto set = [&](const char* name) {
        panel.Field("rasters")->changed(std::vector<std::string>{folder.Path(name)});
    };
    set("none.tif");
    EXPECT_THAT(LastFailure(), HasSubstr("none.tif: "));
    EXPECT_TRUE(IsHatched(map));
    set("moved.tif");
    EXPECT_FALSE(IsHatched(map));
    EXPECT_EQ(Told().find("scene.tif"), std::string::npos) << Told();
    Command("undo");
    EXPECT_TRUE(IsHatched(map));
    EXPECT_THAT(Told(), HasSubstr("scene.tif"));
    Command("redo");
    for (std::size_t i = 0; i < document.Count(); ++i) {
        document.Select({i});
        if (i != map && panel.Field("rasters") != nullptr) {
            set("moved.tif");
        }
        if (panel.Field("path") != nullptr) {
            panel.Field("path")->changed(folder.Path("moved.png"));
        }
    }
    EXPECT_TRUE(files.ExportTo(Path("page.png"), 50.0)) << LastFailure();
    ExpectImageIsThePage();
}

TEST_F(MissingFiles, AreNoReasonToShowNoWindow) {
    Write("bad.json", "{");
    EXPECT_FALSE(files.OpenFiles({Path("bad.json")}));
    EXPECT_TRUE(window.Failures().isVisible());
    EXPECT_THAT(window.Failures().Text().toStdString(),
                HasSubstr(folder.Path("bad.json") + ": "));
    for (const QSize size : {QSize(1024, 700), QSize(1600, 1000)}) {
        window.resize(size);
        EXPECT_EQ(window.size(), size);
    }
}

class RemarksBar : public MissingFiles {};

TEST_F(RemarksBar, OfWhatCannotBeTrueAreShownAsLongAsTheyHold) {
    MadeRaster raster;  // without a coordinate system
    raster.transform = {1.0e300, 1.0, 0.0, 1.0e300, 0.0, -1.0};
    raster.projection = "EPSG:32725";
    WriteRaster(folder.Path("far.tif"), raster);
    EXPECT_FALSE(window.Remarks().isVisible());
    const std::size_t bar = Add("scale-bar-alternating", {100.0, 20.0, 400.0, 60.0});
    document.ChangeItems({bar}, "Fit", [](host::PageItem& item) {
        const auto* const property =
            host::FindProperty(host::TypeOf(item)->properties, "distances");
        property->write(item, std::int32_t{1});
    });
    const std::size_t two = Add("map", {500.0, 100.0, 700.0, 300.0}, {Scene()});
    document.Select({two});
    WriteRaster(folder.Path("plain.tif"), {});
    panel.Field("rasters")->changed(
        std::vector<std::string>{folder.Path("scene.tif"), folder.Path("plain.tif")});
    EXPECT_THAT(Told(), HasSubstr("plain.tif: left off the map: it has no georeference"));
    Command("delete");
    EXPECT_FALSE(window.Remarks().isVisible()) << Told();
    const std::size_t far = Add("map", {100.0, 100.0, 400.0, 300.0}, {Path("far.tif")});
    EXPECT_TRUE(window.Remarks().isVisible());
    EXPECT_THAT(Told(), HasSubstr("scale bar"));
    document.Select({far});
    Command("delete");
    EXPECT_FALSE(window.Remarks().isVisible()) << Told();
    Command("undo");
    EXPECT_TRUE(window.Remarks().isVisible());
}

TEST_F(RemarksBar, TellsOfAMapWithoutDataOnceItIsDrawn) {
    MadeRaster nothing;
    nothing.width = 1;
    nothing.height = 1;
    nothing.transform = {500000.0, 30.0, 0.0, 9000000.0, 0.0, -30.0};
    nothing.projection = "EPSG:32725";
    nothing.hole = true;
    WriteRaster(folder.Path("nothing.tif"), nothing);
    const std::size_t blank =
        Add("map", {100.0, 100.0, 400.0, 300.0}, {Path("nothing.tif")});
    EXPECT_THAT(Told(), HasSubstr("nothing.tif: it has no data in the map's extent"));
    document.Select({blank});
    Command("delete");
    EXPECT_FALSE(window.Remarks().isVisible()) << Told();
}

}  // namespace
