// Every element of the catalogue, through each part of the host that reads it.

#include "page/catalogue.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

#include "page/document/document_test.h"
#include "page/document/item_type.h"
#include "page/document/page_text.h"
#include "page/element_of.h"
#include "page/layout/layout.h"
#include "page/layout/map_on_page.h"
#include "page/placed_frame.h"

namespace {

using host::CatalogueEntry;
using host::kCatalogue;
using host::PageItem;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST(Catalogue, EveryEntryMakesWhatItSays) {
    std::set<std::string> names;
    for (const CatalogueEntry& entry : kCatalogue) {
        SCOPED_TRACE(entry.name);
        EXPECT_TRUE(names.insert(entry.name).second) << "is there twice";
        EXPECT_THAT(entry.name, StartsWith(host::FamilyName(entry.family)));
        EXPECT_STRNE(entry.about, "");
        const auto element = entry.make();
        EXPECT_EQ(element->GetItemType(), entry.family);
        EXPECT_EQ(host::FindEntry(*element), &entry);
        EXPECT_THAT(typeid(*element).name(), HasSubstr(entry.className));
    }
}

TEST(Catalogue, EveryStyleHasAWordAndOneOfEachFamilyIsUsual) {
    for (const MapSurroundType family : {SurroundScaleBar, SurroundNorthArrow}) {
        std::set<std::string> words = {"", "none"};
        int usual = 0;
        for (const CatalogueEntry* const entry : host::StylesOf(family)) {
            EXPECT_TRUE(words.insert(entry->Style()).second) << entry->name;
            EXPECT_EQ(std::string(host::FamilyName(family)) + "-" + entry->Style(),
                      entry->name);
            usual += entry->isUsual ? 1 : 0;
        }
        EXPECT_EQ(usual, 1);
    }
    for (const MapSurroundType family :
         {SurroundMapTitle, SurroundPicture, SurroundLegend}) {
        ASSERT_EQ(host::StylesOf(family).size(), 1u);
        EXPECT_STREQ(host::StylesOf(family).front()->Style(), "");
        EXPECT_EQ(host::UsualStyle(family), nullptr);
    }
}

TEST(Catalogue, AnElementIsTakenOverAsWhatItIs) {
    std::unique_ptr<CMapSurround> element = std::make_unique<CScaleLine>();
    EXPECT_EQ(host::TakeAs<CNorthArrowBase>(element), nullptr);
    ASSERT_NE(element, nullptr);
    EXPECT_NE(host::TakeAs<CScaleBarBase>(element), nullptr);
    EXPECT_EQ(element, nullptr);
}

class CatalogueOnPages : public host_tests::DocumentTest {
protected:
    CatalogueOnPages() : m_path(folder.Path("scene.tif")) {}

    /// A page laid out around the scene, with everything that is in the catalogue once.
    host::Page PageWith(const CatalogueEntry& entry) {
        host::PageDesign design;
        design.title.text = L"Title";
        const std::string logo = folder.Path("logo.png");
        design.picture.path = std::wstring(logo.begin(), logo.end());
        if (entry.family == SurroundScaleBar) {
            design.scaleBar.style = &entry;
        } else if (entry.family == SurroundNorthArrow) {
            design.northArrow.style = &entry;
        }
        host::Page page =
            host::LayOut(design, DescribeMap(store.Map({m_path}, std::nullopt))).page;
        NameRasters(page, {m_path});
        return page;
    }

    /// The place of the item that holds an element of an entry.
    static std::size_t Find(const host::Page& page, const CatalogueEntry& entry) {
        const auto& items = page.Items();
        return static_cast<std::size_t>(
            std::find_if(items.begin(), items.end(),
                         [&](const PageItem& item) {
                             const auto* const element =
                                 host::ElementOf<CMapSurround>(item);
                             return element != nullptr && entry.is(*element);
                         }) -
            items.begin());
    }

private:
    std::string m_path;
};

TEST_F(CatalogueOnPages, EveryEntryIsLaidOutWrittenReadAndDrawnTheSame) {
    for (const CatalogueEntry& entry : kCatalogue) {
        SCOPED_TRACE(entry.name);
        host::Page page = PageWith(entry);
        const std::size_t place = Find(page, entry);
        ASSERT_LT(place, page.Items().size()) << "is not laid out";

        const host::FilePaths paths(folder.Path("page.json"));
        const std::string text = WritePage(page, paths);
        EXPECT_THAT(text, HasSubstr("\"type\": \"" + std::string(entry.name) + "\""));
        host::Page again = host::ReadPage(text, paths);
        OpenRasters(again, store);
        EXPECT_EQ(Find(again, entry), place);
        EXPECT_EQ(WritePage(again, paths), text);

        const auto pixels = host_tests::PixelsOf(page);
        EXPECT_TRUE(host_tests::PixelsOf(again) == pixels);
        auto& items = page.Items();
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(place));
        EXPECT_FALSE(host_tests::PixelsOf(page) == pixels) << "is not seen";
    }
}

TEST_F(CatalogueOnPages, TheUsualStylesAreWhatNobodyChose) {
    const host::Page page = PageWith(kCatalogue.front());
    for (const MapSurroundType family : {SurroundScaleBar, SurroundNorthArrow}) {
        EXPECT_LT(Find(page, *host::UsualStyle(family)), page.Items().size());
    }
}

TEST(Catalogue, EveryEntryIsAnItemTypeInItsPlace) {
    const auto& types = host::ItemTypes();
    // The map and the empty frame before them, the scale in figures after.
    ASSERT_EQ(types.size(), kCatalogue.size() + 3);
    for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
        EXPECT_STREQ(types[i + 2].name, kCatalogue[i].name);
        EXPECT_EQ(types[i + 2].element, &kCatalogue[i]);
    }
}

std::string Document(const std::string& path) {
    return host_tests::ContentsOf(MAP_SURROUND_SOURCES "/" + path);
}

auto HasWord(const std::string& word) { return HasSubstr("`" + word + "`"); }

TEST(Catalogue, EveryEntryIsInTheDocumentation) {
    const std::string readme = Document("README.md");
    const std::string pageFile = Document("docs/page_file.md");
    std::string elements;
    for (const char* const page :
         {"title", "picture", "legend", "north_arrows", "scale_bars"}) {
        elements += Document(std::string("docs/elements/") + page + ".md");
    }
    for (const CatalogueEntry& entry : kCatalogue) {
        EXPECT_THAT(readme, HasWord(entry.className));
        EXPECT_THAT(pageFile, AnyOf(HasWord(entry.name),
                                    HasWord(std::string("-") + entry.Style())));
        EXPECT_THAT(elements, HasSubstr(entry.className));
    }
}

TEST(Catalogue, EveryPropertyIsInTheDocumentation) {
    const std::string pageFile = Document("docs/page_file.md");
    const auto expectIn = [&](const std::vector<host::Property>& properties) {
        for (const host::Property& property : properties) {
            EXPECT_THAT(pageFile, HasWord(property.name));
        }
    };
    expectIn(host::FrameProperties());
    for (const host::ItemType& type : host::ItemTypes()) {
        expectIn(type.properties);
    }
}

}  // namespace
