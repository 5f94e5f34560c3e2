// What is written on a page, and what is told when it cannot be.

#include "page/texts.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "page/document/document_test.h"
#include "recording/recording.h"
#include "recording/session.h"
#include "system/errors.h"
#include "system/utf8.h"

namespace {

using host::PageItem;
using host_tests::MakeVisible;
using host_tests::PixelsOf;
using recording::Recording;
using ::testing::ThrowsMessage;

/// What is within the n-th pair of quotes of a line.
std::string Quoted(const std::string& line, int n) {
    std::size_t from = 0;
    for (int i = 0; i < 2 * n; ++i) {
        from = line.find('"', from) + 1;
    }
    from = line.find('"', from) + 1;
    return line.substr(from, line.find('"', from) - from);
}

class TextsOfAPage : public host_tests::DocumentTest {
protected:
    PageItem Item(const std::string& type) {
        PageItem item = MakeVisible(*host::FindItemType(type), folder.Path());
        host::OpenRasters(item, store);
        return item;
    }
    host::Page PageOf(PageItem item) {
        host::Page page(300.0, 200.0);
        page.Items().push_back(std::move(item));
        return page;
    }
};

TEST_F(TextsOfAPage, AreAllThatIsWritten) {
    WriteScene(folder.Path("other.tif"), 8, 8);
    WriteRaster(folder.Path("scene.tif"), MadeRaster());  // of classes
    for (const bool ofClasses : {true, false}) {
        for (const host::ItemType& type : host::ItemTypes()) {
            SCOPED_TRACE(type.name);
            if (!ofClasses) {
                std::filesystem::copy_file(
                    folder.Path("other.tif"), folder.Path("scene.tif"),
                    std::filesystem::copy_options::overwrite_existing);
            }
            PageItem item = Item(type.name);
            std::vector<std::string> lines;
            {
                Recording recording;
                PixelsOf(item);
                lines = recording.Drawing();
            }
            bool written = false;
            const std::vector<host::WrittenText> texts = host::TextsOf(item);
            for (const std::string& line : lines) {
                if (line.rfind("GdipDrawString ", 0) != 0 || Quoted(line, 0).empty()) {
                    continue;
                }
                written = true;
                std::wstring drawn;
                ASSERT_TRUE(host::Widen(Quoted(line, 0), drawn));
                EXPECT_TRUE(std::any_of(
                    texts.begin(), texts.end(),
                    [&](const host::WrittenText& text) {
                        const std::string style =
                            " style " + std::to_string(text.style) + " ";
                        return text.family == Quoted(line, 1) &&
                               line.find(style) != std::string::npos &&
                               drawn.find_first_not_of(L" \u00A0" + text.characters) ==
                                   std::wstring::npos;
                    }))
                    << line;
            }
            EXPECT_EQ(written, !texts.empty());
        }
    }
}

TEST_F(TextsOfAPage, NameTheCharactersThatNoFontHas) {
    PageItem title = Item("title");
    EXPECT_EQ(host::RemarksOfTexts(PageOf(std::move(title))), std::vector<std::string>());
    title = Item("title");
    host::ElementOf<CMapTitle>(title)->SetFontValue(L"a\u0F40b\uE123\u0F40");
    host::FrameAs<host::PlacedFrame>(title)->SetName("head");
    EXPECT_THAT(host::RemarksOfTexts(PageOf(std::move(title))),
                ::testing::ElementsAre("head: no font has \"\u0F40\uE123\" (U+0F40 "
                                       "U+E123): boxes are drawn"));
    PageItem bar = Item("scale-bar-line");
    host::ElementOf<CScaleBarBase>(bar)->SetUnitsName(
        L"\u0F40\u0F41\u0F42\u0F44\u0F45\u0F46\u0F47\u0F49\u0F4A\u0F4B");
    const std::vector<std::string> remarks = host::RemarksOfTexts(PageOf(std::move(bar)));
    ASSERT_EQ(remarks.size(), 1u);
    EXPECT_EQ(remarks[0].find("scale-bar: no font has \""), 0u);
    EXPECT_NE(remarks[0].find(" U+0F49 and 2 more): boxes"), std::string::npos);
}

TEST_F(TextsOfAPage, OfALegendHaveItsNamesAndAreToldWhereTheyAreCut) {
    const struct {
        const wchar_t* names;
        float width;
        const wchar_t* written;
        std::vector<std::string> remarks;
    } rows[] = {{L"", 0.0f, L"scene.tif", {}},
                {L"Relief\nOf another", 0.0f, L"Relief", {}},
                {L"\nOf another", 1000.0f, L"\u2026影像名：scene.tif", {}},
                {L"A name that is too long",
                 80.0f,
                 L"\u2026影像名：A name that is too long",
                 {"legend: names or labels are too wide for it, and end in \u2026"}}};
    for (const auto& row : rows) {
        PageItem item = Item("legend");
        host::FrameAs<host::LegendFrame>(item)->SetName("legend");
        host::FrameAs<host::LegendFrame>(item)->SetNames(row.names);
        host::ElementOf<CMapLegend>(item)->SetMostWidth(row.width);
        host::OpenRasters(item, store);
        EXPECT_NE(host::TextsOf(item)[1].characters.find(row.written),
                  std::wstring::npos);
        EXPECT_EQ(host::RemarksOfTexts(PageOf(std::move(item))), row.remarks);
    }
}

TEST_F(TextsOfAPage, AreInFontsThatAreInstalled) {
    PageItem title = Item("title");
    host::ElementOf<CMapTitle>(title)->SetFontStyle(L"No Such");
    EXPECT_THAT(
        [&] { host::CheckFontsOf(PageOf(std::move(title))); },
        ThrowsMessage<host::PageError>("title: no font family \"No Such\" is installed"));
    EXPECT_NO_THROW(host::CheckFontsOf(PageOf(Item("legend"))));
}

// Only the last failure of a surface is kept; it is asked for after each item.
TEST_F(TextsOfAPage, AFailedCallFailsThePageByName) {
    const struct {
        const char* type;
        const char* function;
        Gdiplus::Status status;
        const char* told;
    } rows[] = {
        {"title", "GdipDrawString", Gdiplus::GenericError,
         "title: cannot be drawn: status 1"},
        {"title", "GdipCreateFont ", Gdiplus::OutOfMemory,
         "title: cannot be drawn: invalid parameter"},
        {"legend", "GdipFillRectangle", Gdiplus::OutOfMemory,
         "legend: cannot be drawn: out of memory"},
        {"picture", "GdipDrawImage", Gdiplus::InvalidParameter,
         "picture: cannot be drawn: invalid parameter"},
        {"north-arrow-one", "GdipDrawLine", Gdiplus::GenericError,
         "north-arrow: cannot be drawn: status 1"},
        {"scale-bar-line", "GdipDrawString", Gdiplus::FontFamilyNotFound,
         "scale-bar: cannot be drawn: no such font"},
        {"frame", "GdipDrawRectangle", Gdiplus::GenericError,
         "frame: cannot be drawn: status 1"},
        {"map", "GdipResetWorld", Gdiplus::GenericError,
         "page: cannot be drawn: status 1"},
    };
    for (const auto& row : rows) {
        host::Page page = PageOf(Item(row.type));
        host::FrameOf(page.Items()[0]).DrawBorder = true;
        page.Items().push_back(Item("map"));  // which is drawn well
        Recording recording;
        recording.FailCallsOf(row.function, row.status);
        EXPECT_THAT([&] { PixelsOf(page); }, ThrowsMessage<host::NamedError>(row.told));
    }
}

TEST_F(TextsOfAPage, AreOfASizeThatFontsHave) {
    const struct {
        const char* type;
        int size;
        const char* told;
    } rows[] = {
        {"title", 65'536,
         "title: is 65536 pixels high, and texts of at most 65535 are drawn"},
        {"title", 0, "title: is 0 pixels high, too little for its text"},
        {"scale-bar-line2", 3, "scale-bar: is 3 pixels high, too little for its text"},
    };
    for (const auto& row : rows) {
        PageItem item = Item(row.type);
        host::ElementOf<CMapSurround>(item)->SetSize(row.size);
        if (auto* const title = host::ElementOf<CMapTitle>(item)) {
            title->SetFontSize(row.size);
        }
        EXPECT_THAT([&] { PixelsOf(item); }, ThrowsMessage<host::NamedError>(row.told));
    }
}

}  // namespace
