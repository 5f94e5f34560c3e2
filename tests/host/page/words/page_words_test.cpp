#include "page/words/page_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "legend/fake_sources.h"
#include "page/document/item_type.h"
#include "page/element_of.h"
#include "page/made_picture.h"
#include "page/numeric_scale.h"
#include "page/placed_frame.h"
#include "page/words/colour_words.h"
#include "page/words/phrase.h"
#include "system/gdiplus_session.h"

namespace {

using ::testing::ElementsAre;

host::PageItem& Add(host::Page& page, const char* type) {
    page.Items().push_back(host::FindItemType(type)->make());
    return page.Items().back();
}

template <class Element>
Element& In(host::PageItem& item) {
    return *host::ElementOf<Element>(item);
}

/// What is read of a page, a line an item: "Figure: …".
std::vector<std::string> Read(const host::Page& page) {
    constexpr const char* kRoles[] = {"Heading: ", "Text: ", "Figure: "};
    std::vector<std::string> lines;
    for (const host::SpokenItem& item : host::WordsOf(page).items) {
        lines.push_back(kRoles[static_cast<int>(item.role)] + item.text);
    }
    return lines;
}

/// What is read of the one element of a page in a language.
std::string ReadOf(const char* type, const char* language,
                   const std::function<void(host::PageItem&)>& set) {
    host::Page page(400.0, 300.0);
    page.About().language = language;
    set(Add(page, type));
    const std::vector<std::string> lines = Read(page);
    return lines.empty() ? "" : lines.front();
}

std::function<void(host::PageItem&)> Turned(float angle) {
    return [angle](host::PageItem& item) { In<CNorthArrowBase>(item).SetAngle(angle); };
}

std::function<void(host::PageItem&)> Bar(int divisions, double value,
                                         const wchar_t* unit) {
    return [=](host::PageItem& item) {
        host::FrameAs<host::ScaleBarFrame>(item)->SetDivisionValue(value);
        In<CScaleBarBase>(item).SetMainDivCount(divisions);
        In<CScaleBarBase>(item).SetUnitsNameVerbatim(unit);
    };
}

TEST(PageWords, StandForWhatIsDrawn) {
    const host::GdiplusSession session;
    const struct {
        const char* type;
        const char* language;
        std::function<void(host::PageItem&)> set;
        const char* read;
    } rows[] = {
        {"scale-bar-line", "en", Bar(4, 3.0, L"km"),
         "Figure: Scale bar: 12 km in 4 divisions"},
        {"scale-bar-line", "en", Bar(1, 0.5, L"mi"), "Figure: Scale bar: 0.5 mi"},
        // A bar rounds a division down to one digit, and draws none of nothing.
        {"scale-bar-line2", "de", Bar(4, 2500.0, L"m"),
         "Figure: Maßstabsleiste: 8000 m in 4 Teilen"},
        {"scale-bar-line", "zh", Bar(2, 100.0, L"米"), "Figure: 比例尺：200 米，共2段"},
        {"scale-bar-line", "en", Bar(4, 0.0, L"km"), ""},
        {"scale-bar-line", "en", Bar(0, 3.0, L"km"), ""},
        {"scale-bar-line", "en", Bar(4, std::nan(""), L"km"), ""},
        {"north-arrow-one", "en", Turned(0.04f), "Figure: North arrow: north is up"},
        {"north-arrow-one", "en", Turned(-3.0f),
         "Figure: North arrow: north is 3° left of up"},
        {"north-arrow-two", "en", Turned(0.25f),
         "Figure: North arrow: north is 0.3° right of up"},
        {"north-arrow-four", "fr", Turned(270.0f),
         "Figure: Flèche du nord : le nord est à 90° à gauche de la verticale"},
        {"title", "en",
         [](host::PageItem& item) {
             In<CMapTitle>(item).SetFontValue(L"One\ntwo\xFFFF");
         },
         "Heading: One two\uFFFD"},
        {"frame", "en", [](host::PageItem&) {}, ""},
        {"map", "en", [](host::PageItem&) {}, ""},  // nothing is shown
        {"picture", "pt",
         [](host::PageItem& item) {
             host::FrameAs<host::PlacedFrame>(item)->SetName("Cidade");
         },
         "Figure: Imagem, Cidade"},
        {"north-arrow-one", "en",
         [](host::PageItem& item) {
             host::FrameAs<host::PlacedFrame>(item)->SetAlternativeText("Up\tis north");
         },
         "Figure: Up is north"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ReadOf(row.type, row.language, row.set), row.read) << row.type;
    }
}

TEST(PageWords, NameTheColoursOfALegend) {
    const host::GdiplusSession session;
    fakes::Raster bands(L"scene", DisplayRGB);
    fakes::Raster classes(L"cover", DisplayClassified);
    classes.table.items = {
        {L"Water", 0, 0, 255}, {L"", 0, 100, 0}, {L"Sand", 250, 240, 190}};
    fakes::Raster ramp(L"relief", DisplayGray);
    ramp.band.lowest = -1.25;
    ramp.band.highest = 88.0;
    classes.band.highest = 3.0;
    fakes::Raster away(L"away", DisplayRGB);
    away.available = false;
    const auto set = [&](host::PageItem& item) {
        auto& legend = In<CMapLegend>(item);
        host::SetCaptions(legend, host::English());
        legend.SetTitleValue(L"Key");
        host::FrameAs<host::LegendFrame>(item)->SetSources(
            {&bands, &away, &classes, &ramp, &classes},
            {{},
             {},
             {L"Land"},
             {},
             {L"Heat", true, {Gdiplus::Color(255, 0, 0), Gdiplus::Color(0, 0, 255)}}});
    };
    EXPECT_EQ(ReadOf("legend", "en", set),
              "Figure: Key: scene: Band 1, red; Band 2, green; Band 3, blue. "
              "Land: Water, blue; dark green; Sand, light yellow. "
              "relief: High: 88, white; Low: -1.25, black. "
              "Heat: High: 3, red; Low: 0, blue");
}

TEST(PageWords, CallColoursAsPeopleDo) {
    const struct {
        Gdiplus::ARGB colour;
        const wchar_t* words;
    } rows[] = {
        {0xFF000000, L"black"},       {0xFFFFFFFF, L"white"},
        {0xFF808080, L"grey"},        {0xFF404040, L"dark grey"},
        {0xFFD3D3D3, L"light grey"},  {0xFFFF0000, L"red"},
        {0xFF800000, L"dark red"},    {0xFFFFC0CB, L"pink"},
        {0xFFFFA500, L"orange"},      {0xFF8B4513, L"brown"},
        {0xFFA0694F, L"brown"},       {0xFFFFFF00, L"yellow"},
        {0xFF00FF00, L"green"},       {0xFF006400, L"dark green"},
        {0xFF90EE90, L"light green"}, {0xFF00CED1, L"turquoise"},
        {0xFF0000FF, L"blue"},        {0xFF000080, L"dark blue"},
        {0x80ADD8E6, L"light blue"},  {0xFF800080, L"dark purple"},
        {0xFFFF69B4, L"pink"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(host::ColourWords(row.colour, host::English().spoken), row.words)
            << std::hex << row.colour;
    }
}

TEST(PageWords, AreReadInTheOrderOfThePage) {
    const host::GdiplusSession session;
    host::Page page(400.0, 300.0);
    const auto text = [&](const wchar_t* words, double size, double top) {
        host::PageItem& item = Add(page, "title");
        In<CMapTitle>(item).SetFontValue(words);
        In<CMapTitle>(item).SetFontSize(size);
        host::FrameOf(item).SetExtent({0.0, top - 20.0, 100.0, top});
    };
    Add(page, "north-arrow-one");
    text(L"Sources", 8.0, 20.0);
    text(L"Subtitle", 12.0, 260.0);
    In<host::NumericScale>(Add(page, "numeric-scale")).SetDenominator(25000.0);
    auto& map = std::get<host::MapFrame>(Add(page, "map"));
    map.frame.SetExtent({0.0, 20.0, 300.0, 200.0});
    map.picture = std::make_shared<host_tests::MadePicture>([](int, int) { return 0U; });
    map.name = "Harbour";
    text(L"Title", 20.0, 300.0);
    EXPECT_THAT(Read(page),
                ElementsAre("Heading: Title", "Text: Subtitle", "Figure: Map, Harbour",
                            "Text: 1\u00A0:\u00A025\u00A0000",
                            "Figure: North arrow: north is up", "Text: Sources"));
    EXPECT_EQ(host::WordsOf(page).about.title, "Title");
    page.About().title = "Given";
    EXPECT_EQ(host::WordsOf(page).about.title, "Given");
    EXPECT_EQ(host::WordsOf(host::Page(9.0, 9.0)).about.title, "Map");
    host::FrameAs<host::ScaleBarFrame>(Add(page, "scale-bar-line"))
        ->SetLanguage(*host::FindLanguage("ru"));
    EXPECT_EQ(host::WordsOf(page).about.language, "ru");
    page.About().language = "ja";
    EXPECT_EQ(host::WordsOf(page).about.language, "ja");
}

TEST(Phrases, AreFilledAndRounded) {
    EXPECT_EQ(host::Filled(L"{1} of {0}{2", {L"{1}", L"a"}), L"a of {1}{2");
    EXPECT_EQ(host::RoundedText(-8.0801, 2), L"-8.08");
    EXPECT_EQ(host::RoundedText(-0.004, 2), L"0");
    EXPECT_EQ(host::DigitsText(12345.6, 4), L"12346");
    EXPECT_EQ(host::DigitsText(0.0123456, 4), L"0.01235");
}

}  // namespace
