#include "page_editor/panel/property_panel.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QtTest>
#include <cmath>
#include <utility>

#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/panel/number_field.h"

namespace {

using editor_tests::Answers;
using editor_tests::EditorTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr host::Box kBox = {300.0, 300.0, 500.0, 360.0};

class PropertyPanel : public EditorTest {
protected:
    /// Selects a new element.
    std::size_t Select(const char* type, const QStringList& named = {}) {
        const std::size_t item = Add(type, kBox, named);
        document.Select({item});
        return item;
    }

    template <class Widget>
    Widget* In(const char* property, const char* name = "") {
        page_editor::PropertyField* const field = panel.Field(property);
        Widget* const widget =
            field == nullptr ? nullptr : field->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << property;
        return widget;
    }

    /// Types lines in place of what stands there.
    void BeginLines(const char* property, const QStringList& lines) {
        auto* const text = In<QPlainTextEdit>(property);
        ASSERT_NE(text, nullptr);
        text->selectAll();
        for (int i = 0; i < lines.size(); ++i) {
            if (i > 0) {
                QTest::keyClick(text, Qt::Key_Return);
            }
            QTest::keyClicks(text, lines[i]);
        }
    }
    /// Types lines in place of what stands there, and leaves the field.
    void TypeLines(const char* property, const QStringList& lines) {
        BeginLines(property, lines);
        panel.FinishTyping();
    }
    /// Types a text in place of what stands there, and Enter.
    void Type(const char* property, const QString& text, const char* name = "") {
        Begin(property, text, name);
        QTest::keyClick(In<QLineEdit>(property, name), Qt::Key_Return);
    }
    /// Types a text in place of what stands there.
    void Begin(const char* property, const QString& text, const char* name = "") {
        auto* const line = In<QLineEdit>(property, name);
        ASSERT_NE(line, nullptr);
        line->selectAll();
        QTest::keyClicks(line, text);
    }
};

TEST_F(PropertyPanel, HasAFieldForEveryPropertyOfEveryType) {
    for (const host::ItemType& type : host::ItemTypes()) {
        SCOPED_TRACE(type.name);
        Select(type.name, FilesFor(type.name));
        for (const auto* properties : {&type.properties, &host::FrameProperties()}) {
            for (const host::Property& property : *properties) {
                EXPECT_NE(panel.Field(property.name), nullptr) << property.name;
            }
        }
    }
    document.Select({});
    EXPECT_EQ(panel.Field("left"), nullptr);
}

TEST_F(PropertyPanel, IsTakenByACommandAsFarAsItIsTyped) {
    const std::string raster = folder.Path("b.tif");
    const QString picture = Logo("copy.png");
    Scene("b.tif");
    const struct {
        const char* type;
        const char* property;
        bool isTyped;  ///< and not told before something else happens
        std::function<void()> change;
        std::string value;  ///< as page files have it
    } rows[] = {
        {"title", "text", true,
         [&] {
             BeginLines("text", {"Olinda", "and Recife"});
         },
         R"("Olinda\nand Recife")"},
        {"title", "fontSize", true, [&] { Begin("fontSize", "12.5"); }, "12.5"},
        {"title", "size", true, [&] { Begin("size", "77", "qt_spinbox_lineedit"); },
         "77"},
        {"title", "border", false, [&] { In<QCheckBox>("border")->click(); }, "false"},
        {"title", "color", true, [&] { Begin("color", "#ff001080"); }, R"("#FF001080")"},
        {"title", "fillColor", true, [&] { Begin("fillColor", "#00FF00"); },
         R"("#00FF00")"},
        {"title", "font", true, [&] { Begin("font", "Liberation Serif"); },
         R"("Liberation Serif")"},
        {"title", "fontStyle", false,
         [&] {
             auto* const box = In<QComboBox>("fontStyle");
             const int italic = box->findText("italic");
             box->setCurrentIndex(italic);
             Q_EMIT box->activated(italic);
         },
         R"("italic")"},
        {"north-arrow-four", "angle", true, [&] { Begin("angle", "30"); }, "30.0"},
        {"scale-bar-alternating", "divisions", false,
         [&] { In<QSpinBox>("divisions")->setValue(7); }, "7"},
        {"picture", "path", true, [&] { Begin("path", picture); },
         '"' + picture.toStdString() + '"'},
        {"map", "rasters", true,
         [&] { BeginLines("rasters", {QString::fromStdString(raster)}); },
         "[\"" + raster + "\"]"},
    };
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.property);
        const std::size_t item = Select(row.type, FilesFor(row.type));
        const std::string before = host::WriteItem(document.Item(item));
        const std::string after = "\"" + std::string(row.property) + "\":" + row.value;
        EXPECT_THAT(before, Not(HasSubstr(after)));
        row.change();
        EXPECT_EQ(host::WriteItem(document.Item(item)) == before, row.isTyped);
        Command("save");
        EXPECT_EQ(LastFailure(), "");
        EXPECT_THAT(host::WriteItem(document.Item(item)), HasSubstr(after));
        const host::Page saved = host::LoadPage(folder.Path("page.json"));
        EXPECT_THAT(host::WriteItem(saved.Items()[item]), HasSubstr(after));
        ExpectImageIsThePage();
        Command("undo");
        EXPECT_EQ(host::WriteItem(document.Item(item)), before);
    }
}

TEST_F(PropertyPanel, ShowsWhatIsChanged) {
    Select("title");
    TypeLines("text", {"Olinda"});
    EXPECT_EQ(document.UndoLabel(), "Change text");
    Type("color", "#ff001080");
    EXPECT_EQ(In<QLineEdit>("color")->text(), "#FF001080");
    In<QCheckBox>("border")->click();
    Command("undo");
    EXPECT_TRUE(In<QCheckBox>("border")->isChecked());
    Command("undo");
    Command("undo");
    EXPECT_EQ(In<QPlainTextEdit>("text")->toPlainText(), "Title");
    BeginLines("text", {"Recife"});
    Command("undo");  // of what is being typed
    EXPECT_EQ(In<QPlainTextEdit>("text")->toPlainText(), "Title");
}

TEST_F(PropertyPanel, MeasuresWhatIsChanged) {
    const std::size_t title = Select("title");
    const auto size = Value<std::int32_t>(title, "size");
    const double em = Value<double>(title, "fontSize");
    Type("fontSize", QString::number(em * 3.0));
    EXPECT_NEAR(Value<std::int32_t>(title, "size"), 3 * size, 3);
    EXPECT_EQ(In<QSpinBox>("size")->value(), Value<std::int32_t>(title, "size"));
}

TEST_F(PropertyPanel, ChangesANumberAndKeepsItsBits) {
    const std::size_t title = Select("title");
    Type("left", "123.45678901234567");
    EXPECT_EQ(Value<double>(title, "left"), 123.45678901234567);
    EXPECT_EQ(In<QLineEdit>("left")->text(), "123.457");
    QTest::keyClick(In<QLineEdit>("left"), Qt::Key_Return);  // nothing was typed
    EXPECT_EQ(Value<double>(title, "left"), 123.45678901234567);
    QTest::keyClick(In<QLineEdit>("left"), Qt::Key_Down);
    EXPECT_EQ(Value<double>(title, "left"), 123.45678901234567 - 1.0);
    QTest::keyClicks(In<QLineEdit>("left"), "25");  // not told yet
    QTest::keyClick(In<QLineEdit>("left"), Qt::Key_Up);
    EXPECT_EQ(Value<double>(title, "left"), 122.45725 + 1.0);
    Type("borderWidth", "0.1");
    EXPECT_EQ(In<QLineEdit>("borderWidth")->text(), "0.1");  // and not a float's digits
    QTest::keyClick(In<QLineEdit>("borderWidth"), Qt::Key_Up);
    EXPECT_EQ(In<QLineEdit>("borderWidth")->text(), "1.1");
    ExpectImageIsThePage();
}

TEST(NumberField, ShowsSixDigits) {
    const std::pair<double, const char*> rows[] = {
        {29.763779527559056, "29.7638"},
        {double{0.1f}, "0.1"},
        {-0.0, "-0"},
        {1.0 / 3.0e4, "3.33333e-05"},
        {99999.96, "100000"},
        {123456.789, "123456.789"},
        {1122.5196850393702, "1122.52"},
        {-400.0, "-400"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(page_editor::ShortNumberText(value).toStdString(), text);
    }
    EXPECT_EQ(page_editor::ShortNumberText(std::nan("")), "");
}

TEST_F(PropertyPanel, ChangesARatioAndLeavesItUnknown) {
    const std::size_t title = Select("title");
    Type("aspectRatio", "2.5");
    EXPECT_EQ(Value<double>(title, "aspectRatio"), 2.5);
    auto* const line = In<QLineEdit>("aspectRatio");
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(std::isnan(Value<double>(title, "aspectRatio")));
}

TEST_F(PropertyPanel, LeavesAFileWhereAnotherIsNotThere) {
    const QString logo = Logo();
    const std::size_t picture = Select("picture", {logo});
    Type("path", "no such.png");
    EXPECT_THAT(LastFailure(), HasSubstr("no such.png: No such file"));
    EXPECT_EQ(Value<std::string>(picture, "path"), logo.toStdString());
    EXPECT_EQ(In<QLineEdit>("path")->text(), logo);
}

TEST_F(PropertyPanel, ChangesRasters) {
    Scene("b.tif");
    const std::size_t map = Select("map", {Scene("a.tif")});
    const auto leave = [this] {
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(In<QPlainTextEdit>("rasters"), &out);
    };
    BeginLines("rasters", {Path("b.tif")});
    leave();
    EXPECT_THAT(Value<std::vector<std::string>>(map, "rasters"),
                ElementsAre(folder.Path("b.tif")));
    ExpectImageIsThePage();
    BeginLines("rasters", {"missing.tif"});
    leave();
    EXPECT_THAT(LastFailure(), HasSubstr("rasters: missing.tif"));
    EXPECT_THAT(Value<std::vector<std::string>>(map, "rasters"),
                ElementsAre(folder.Path("b.tif")));
}

TEST_F(PropertyPanel, ChangesTheOrderTheNamesAndTheChoiceOfALegendsRasters) {
    const QString a = Scene("a.tif");
    const QString b = Scene("b.tif");
    const std::size_t legend = Select("legend");
    const auto namesShown = [&] {
        std::vector<std::wstring> names;
        const auto& item = document.Page().Items()[legend];
        for (const auto& source : host::ElementOf<CMapLegend>(item)->GetShownSources()) {
            names.push_back(source.name);
        }
        return names;
    };
    TypeLines("rasters", {a, b});
    EXPECT_THAT(namesShown(), ElementsAre(L"", L""));
    TypeLines("names", {"", "Relief"});
    EXPECT_THAT(namesShown(), ElementsAre(L"", L"Relief"));
    EXPECT_EQ(In<QPlainTextEdit>("names")->toPlainText(), "\nRelief");
    TypeLines("rasters", {b, a});
    EXPECT_THAT(Value<std::vector<std::string>>(legend, "rasters"),
                ElementsAre(folder.Path("b.tif"), folder.Path("a.tif")));
    EXPECT_THAT(namesShown(), ElementsAre(L"", L"Relief")) << "they go by place";
    TypeLines("rasters", {a});
    EXPECT_THAT(namesShown(), ElementsAre(L""));
    ExpectImageIsThePage();
}

TEST_F(PropertyPanel, ChangesTheExtentOfAMap) {
    const std::size_t map = Select("map", {Scene()});
    In<QCheckBox>("extent")->click();
    Type("extent", "500100", "left");
    Type("extent", "8999500", "bottom");
    Type("extent", "500400", "right");
    EXPECT_FALSE(Value<std::optional<host::Box>>(map, "extent"));
    Begin("extent", "8999900", "top");
    Command("copy");  // takes what is typed
    const auto extent = Value<std::optional<host::Box>>(map, "extent");
    ASSERT_TRUE(extent);
    EXPECT_EQ(extent->right, 500400.0);
    EXPECT_EQ(extent->bottom, 8999500.0);
    EXPECT_EQ(extent->top, 8999900.0);
    ExpectImageIsThePage();
    Type("extent", "500000", "right");
    EXPECT_THAT(LastFailure(), HasSubstr("extent: must have its left below its right"));
    In<QCheckBox>("extent")->click();
    EXPECT_FALSE(Value<std::optional<host::Box>>(map, "extent"));
}

TEST_F(PropertyPanel, RefusesWhatIsOutOfRangeOrNoValue) {
    const std::size_t title = Select("title");
    const std::string before = document.UndoLabel();
    Type("width", "-1");
    EXPECT_EQ(LastFailure(), "width: must be from 0 to 1e+06");
    Type("width", "wide");
    EXPECT_EQ(LastFailure(), "width: must be a number");
    Type("width", "nan");
    EXPECT_EQ(LastFailure(), "width: must be a number");
    EXPECT_EQ(In<QLineEdit>("width")->text(), "200");
    Type("color", "red");
    EXPECT_THAT(LastFailure(), HasSubstr("color: must be a colour"));
    In<QComboBox>("font")->setEditText("Nobody's Font");
    QTest::keyClick(In<QComboBox>("font")->lineEdit(), Qt::Key_Return);
    EXPECT_THAT(LastFailure(), HasSubstr("no font family"));
    EXPECT_EQ(Value<std::string>(title, "font"), "Arial");
    EXPECT_EQ(document.UndoLabel(), before);
    ExpectImageIsThePage();
}

TEST_F(PropertyPanel, IsUnsavedWorkWhileOneTypes) {
    Select("title");
    ASSERT_TRUE(files.SaveTo(Path("page.json")));
    BeginLines("text", {"Olinda"});
    EXPECT_FALSE(editor_tests::Answering({Answers::Press("Cancel")},
                                         [this] { return window.close(); }));
}

TEST_F(PropertyPanel, ChangesAllThatAreSelected) {
    const std::size_t title = Select("title");
    const std::size_t arrow = Select("north-arrow-one");
    document.Select({title, arrow});
    EXPECT_EQ(panel.Field("text"), nullptr);
    Type("top", "500");
    EXPECT_EQ(BoxOf(title).top, 500.0);
    EXPECT_EQ(BoxOf(arrow).top, 500.0);
    Command("undo");
    EXPECT_EQ(BoxOf(title).top, 360.0);
    EXPECT_EQ(BoxOf(arrow).top, 360.0);
}

TEST_F(PropertyPanel, FollowsTheCanvas) {
    Select("north-arrow-one");
    Key(Qt::Key_Right);
    EXPECT_EQ(In<QLineEdit>("left")->text(), "301");
}

}  // namespace
