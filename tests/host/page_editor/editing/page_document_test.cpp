#include "page_editor/editing/page_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>

#include "page/document/page_text.h"
#include "page/placed_frame.h"
#include "page_editor/editing/arrange.h"

namespace {

using host::FrameOf;
using page_editor::Indices;
using page_editor::PageDocument;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

host::PageItem Frame(const std::string& name) {
    return host::ReadItem(
        R"({"type":"frame","name":")" + name +
        R"(","frame":{"left":10,"top":60,"width":100,"height":50,"border":true}})");
}

std::string NamesOf(const PageDocument& document) {
    std::string names;
    for (const host::PageItem& item : document.Page().Items()) {
        const auto& frame = std::get<std::unique_ptr<CSurroundFrame>>(item);
        names += dynamic_cast<const host::PlacedFrame&>(*frame).Name();
    }
    return names;
}

/// A document with frames a, b, c and d, and what it told of changes since then.
class PageDocumentTest : public ::testing::Test {
protected:
    PageDocumentTest() {
        for (const char* name : {"a", "b", "c", "d"}) {
            document.Insert(Frame(name), "Add");
        }
        QObject::connect(&document, &PageDocument::ItemsChanged,
                         [this](const Indices& items) { changed = items; });
        QObject::connect(&document, &PageDocument::PageRearranged,
                         [this] { ++rearranged; });
    }

    void Move(const Indices& items, double dx) {
        document.ChangeItems(items, "Move", [dx](host::PageItem& item) {
            FrameOf(item).SetOffset(dx, 0.0);
        });
    }
    double Left(std::size_t item) { return document.Extent(item).TopLeft().x; }

    PageDocument document;
    Indices changed;
    int rearranged = 0;
};

TEST_F(PageDocumentTest, ChangesAndUndoesItems) {
    Move({1, 3}, 5.0);
    EXPECT_EQ(Left(1), 15.0);
    EXPECT_THAT(changed, ElementsAre(1, 3));
    EXPECT_EQ(document.UndoLabel(), "Move");
    EXPECT_EQ(document.RedoLabel(), "");
    document.Undo();
    EXPECT_EQ(Left(1), 10.0);
    EXPECT_EQ(Left(3), 10.0);
    EXPECT_THAT(changed, ElementsAre(1, 3));
    EXPECT_EQ(document.RedoLabel(), "Move");
    document.Redo();
    EXPECT_EQ(Left(3), 15.0);
    EXPECT_EQ(rearranged, 0);
}

TEST_F(PageDocumentTest, MakesNoCommandOfNoChange) {
    const std::string label = document.UndoLabel();
    Move({1}, 0.0);
    document.Rearrange({0, 1, 2, 3});
    document.SetSheet(document.Page().Width(), document.Page().Height());
    EXPECT_EQ(document.UndoLabel(), label);
    EXPECT_THAT(changed, IsEmpty());
}

TEST_F(PageDocumentTest, KeepsNothingOfAChangeThatFails) {
    EXPECT_THROW(document.ChangeItems({0, 1}, "Move",
                                      [](host::PageItem& item) {
                                          FrameOf(item).SetOffset(1.0, 0.0);
                                          throw std::runtime_error("no");
                                      }),
                 std::runtime_error);
    EXPECT_EQ(Left(0), 10.0);
    EXPECT_EQ(document.UndoLabel(), "Add");
}

TEST_F(PageDocumentTest, RefusesWhatNoPageFileHolds) {
    EXPECT_THROW(Move({2}, 1.0e9), host::PageError);
    EXPECT_EQ(Left(2), 10.0);
}

TEST_F(PageDocumentTest, RemovesAndBringsBack) {
    document.Select({1, 2});
    document.RemoveSelected();
    EXPECT_EQ(NamesOf(document), "ad");
    EXPECT_THAT(document.Selection(), IsEmpty());
    document.Undo();
    EXPECT_EQ(NamesOf(document), "abcd");
    EXPECT_THAT(document.Selection(), ElementsAre(1, 2));
    document.Redo();
    EXPECT_EQ(NamesOf(document), "ad");
    EXPECT_EQ(rearranged, 3);
}

TEST_F(PageDocumentTest, DuplicatesASelection) {
    document.Select({0, 2});
    document.DuplicateSelected();
    EXPECT_EQ(NamesOf(document), "abcdac");
    EXPECT_THAT(document.Selection(), ElementsAre(4, 5));
    EXPECT_EQ(Left(4), 26.0);
    document.Undo();
    EXPECT_EQ(NamesOf(document), "abcd");
}

TEST_F(PageDocumentTest, KeepsWhatThePageSaysOfItself) {
    host::Page page(400.0, 300.0);
    page.About().author = "N. N.";
    document.Replace(std::move(page), std::make_unique<host::RasterStore>());
    document.Insert(Frame("a"), "Add");
    document.SetSheet(500.0, 300.0);
    EXPECT_EQ(document.Page().About().author, "N. N.");
    document.Undo();
    EXPECT_EQ(document.Page().About().author, "N. N.");
}

TEST_F(PageDocumentTest, UndoesEverythingInTurnAndDoesItAgain) {
    Move({0}, 3.0);
    document.Select({3});
    document.RemoveSelected();
    document.Select({1});
    document.DuplicateSelected();
    document.Rearrange(
        page_editor::Reordered(4, document.Selection(), page_editor::Order::ToBack));
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    document.SetSheet(600.0, 600.0);
    const std::string end = host::WritePage(document.Page(), {});
    while (document.CanUndo()) {
        document.Undo();
    }
    EXPECT_EQ(document.Count(), 0u);
    EXPECT_EQ(document.UndoLabel(), "");
    while (document.CanRedo()) {
        document.Redo();
    }
    EXPECT_EQ(host::WritePage(document.Page(), {}), end);
}

TEST_F(PageDocumentTest, PastesWhatWasCopiedIntoAnotherPage) {
    document.Select({});
    EXPECT_EQ(document.TextOfSelected(), "");
    document.Select({0, 2});
    const std::string text = document.TextOfSelected();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
    PageDocument other;
    other.Paste(text);
    EXPECT_EQ(NamesOf(other), "ac");
    EXPECT_THAT(other.Selection(), ElementsAre(0, 1));
    EXPECT_EQ(other.Extent(0).TopLeft().x, 26.0);
    EXPECT_EQ(other.Extent(0).TopLeft().y, 44.0);
    EXPECT_EQ(other.UndoLabel(), "Paste");
    other.Undo();
    EXPECT_EQ(other.Count(), 0u);
}

TEST_F(PageDocumentTest, PastesNoOtherText) {
    const std::string item = host::WriteItem(Frame("e")) + "\n";
    for (
        const std::string& text :
        {std::string("some text"), item + "{", item + "{}", item + "\n",
         item +
             R"({"type":"map","rasters":["/none.tif"],"frame":{"width":9,"height":9}})"}) {
        EXPECT_THROW(document.Paste(text), std::runtime_error) << text;
        EXPECT_EQ(NamesOf(document), "abcd");
    }
    document.Paste("");
    EXPECT_EQ(NamesOf(document), "abcd");
    EXPECT_EQ(document.UndoLabel(), "Add");
}

}  // namespace
