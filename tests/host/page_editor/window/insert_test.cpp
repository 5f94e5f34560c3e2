#include <gmock/gmock.h>

#include <QAction>

#include "page/catalogue.h"
#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "page/placed_frame.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using host::Box;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Insert : public EditorTest {
protected:
    /// What a frame's name says that it holds, as page files write it.
    static QString Family(const host::PageItem& item) {
        const auto& name = host::FrameAs<host::PlacedFrame>(item)->Name();
        return QString::fromStdString(name).replace(' ', '-');
    }

    void ExpectInTheMiddle(std::size_t item) {
        const host::Box box = BoxOf(item);
        EXPECT_GT(box.Width(), 10.0);
        EXPECT_GT(box.Height(), 10.0);
        EXPECT_NEAR(box.MiddleX(), document.Page().Width() / 2.0, 0.1);
        EXPECT_NEAR(box.MiddleY(), document.Page().Height() / 2.0, 0.1);
    }
};

TEST_F(Insert, AddsEveryTypeToAnEmptySheet) {
    std::size_t count = 0;
    for (const host::ItemType& type : host::ItemTypes()) {
        SCOPED_TRACE(type.name);
        window.Insert(type.name, FilesFor(type.name));
        ASSERT_EQ(document.Count(), ++count);
        EXPECT_EQ(host::TypeOf(document.Item(count - 1)), &type);
        EXPECT_THAT(document.Selection(), ElementsAre(count - 1));
        ExpectInTheMiddle(count - 1);
        ExpectImageIsThePage();
    }
    while (document.CanUndo()) {
        Command("undo");
    }
    EXPECT_EQ(document.Count(), 0u);
    while (document.CanRedo()) {
        Command("redo");
    }
    EXPECT_EQ(document.Count(), count);
    ExpectImageIsThePage();
}

TEST_F(Insert, AddsNothingThatOneDoesNotSee) {
    const QImage empty = canvas.Image().copy();
    for (const host::ItemType& type : host::ItemTypes()) {
        window.Insert(type.name, FilesFor(type.name));
        EXPECT_FALSE(canvas.Image() == empty) << type.name;
        Command("undo");
        EXPECT_TRUE(canvas.Image() == empty) << type.name;
    }
}

TEST_F(Insert, EveryElementIsInTheMenuAndLaidOutForTheMap) {
    window.Insert("map", {Scene()});
    for (const host::CatalogueEntry& entry : host::kCatalogue) {
        SCOPED_TRACE(entry.name);
        const auto* const action = window.findChild<QAction*>(entry.name);
        ASSERT_NE(action, nullptr);
        EXPECT_EQ(action->statusTip(), entry.about);
        window.Insert(entry.name, FilesFor(entry.name));
        const host::PageItem& item = document.Item(document.Count() - 1);
        EXPECT_TRUE(entry.is(*host::ElementOf<CMapSurround>(item)));
        // The layout names what it places.
        EXPECT_EQ(Family(item).toStdString(), host::FamilyName(entry.family));
        ExpectInTheMiddle(document.Count() - 1);
    }
}

TEST_F(Insert, ScaleBarsAreTrueToTheMapWhateverItsSize) {
    window.Insert("map", {Scene()});
    window.Insert("scale-bar-line");
    // 60 pixels of 30 m across the map's frame. Bars are true to the ground, which
    // differs from the map by less than half a thousandth at the middle meridian of a UTM
    // zone.
    const auto expectTrue = [this] {
        const double perUnit = 60.0 * 30.0 / BoxOf(0).Width();
        EXPECT_NEAR(
            Value<double>(1, "divisionValue") / Value<double>(1, "divisionLength"),
            perUnit, 5e-4 * perUnit);
    };
    expectTrue();
    Place(0, {100.0, 100.0, 250.0, 200.0});
    expectTrue();
    ExpectImageIsThePage();
}

TEST_F(Insert, LegendsExplainTheMap) {
    window.Insert("map", {Scene()});
    window.Insert("legend");
    EXPECT_THAT(Value<std::vector<std::string>>(1, "rasters"),
                ElementsAre(folder.Path("scene.tif")));
    EXPECT_GT(Value<std::int32_t>(1, "size"), 10);
}

TEST_F(Insert, SpeaksTheLanguageThatIsChosen) {
    window.Insert("map", {Scene()});
    window.Insert("legend");
    window.Insert("scale-bar-line");
    const auto words = [this] {
        return std::vector<std::string>{Value<std::string>(1, "title"),
                                        Value<std::string>(1, "bandCaption"),
                                        Value<std::string>(2, "units")};
    };
    EXPECT_THAT(words(), ElementsAre("Legend", "Band ", "m"));
    window.findChild<QAction*>("language-ru")->trigger();
    EXPECT_EQ(window.LastFailure(), "");
    EXPECT_THAT(words(), ElementsAre("Условные обозначения", "Канал ", "м"));
    ExpectImageIsThePage();
    document.Undo();
    EXPECT_THAT(words(), ElementsAre("Legend", "Band ", "m"));
}

TEST_F(Insert, TellsWhichFileCannotBeUsed) {
    window.Insert("map", {"missing.tif"});
    EXPECT_THAT(LastFailure(), HasSubstr("missing.tif"));
    window.Insert("picture", {Path("none.png")});
    EXPECT_THAT(LastFailure(), HasSubstr("none.png: No such file"));
    window.Insert("compass");
    EXPECT_EQ(window.LastFailure(), "compass: is not a type of element");
    EXPECT_EQ(document.Count(), 0u);
    EXPECT_FALSE(document.CanUndo());
}

}  // namespace
