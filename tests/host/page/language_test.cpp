#include "page/language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>

#include "host/page/layout/laid_out.h"
#include "legend/fake_sources.h"
#include "page/document/item_type.h"
#include "page/document/page_changes.h"
#include "page/document/page_text.h"
#include "page/document/unused_changes.h"
#include "page/texts.h"
#include "system/fonts.h"
#include "system/separate_process.h"

namespace {

using host::Language;
using host_tests::LaidOut;

class InLanguage : public ::testing::TestWithParam<std::size_t> {
protected:
    const Language& language = host::Languages()[GetParam()];
};

INSTANTIATE_TEST_SUITE_P(Every, InLanguage,
                         ::testing::Range<std::size_t>(0, host::Languages().size()),
                         [](const ::testing::TestParamInfo<std::size_t>& parameter) {
                             return host::Languages()[parameter.param].code;
                         });

TEST_P(InLanguage, NoTwoUnitsAreCalledAlike) {
    EXPECT_EQ(host::FindLanguage(language.code), &language);
    EXPECT_EQ(&host::LanguageAt(host::PlaceOf(language)), &language);
    for (const host::DistanceUnitFacts& facts : host::DistanceUnits()) {
        EXPECT_STRNE(language.Unit(facts.unit), L"");
        if (!host::IsByLength(facts.unit)) {
            EXPECT_EQ(language.UnitCalled(language.Unit(facts.unit)), facts.unit);
        }
    }
    EXPECT_EQ(language.UnitCalled(L"parsecs"), std::nullopt);
}

TEST_P(InLanguage, WhatIsSpokenHasRoomForItsValues) {
    const host::SpokenWords& words = language.spoken;
    const struct {
        const wchar_t* phrase;
        std::size_t values;
    } rows[] = {{words.map, 0},       {words.picture, 0},     {words.fromTo, 2},
                {words.north, 1},     {words.south, 1},       {words.east, 1},
                {words.west, 1},      {words.bar, 2},         {words.dividedBar, 3},
                {words.northIsUp, 0}, {words.northIsLeft, 1}, {words.northIsRight, 1},
                {words.dark, 1},      {words.light, 1},       {words.separator, 0}};
    std::set<std::wstring> phrases;
    for (const auto& row : rows) {
        const std::wstring phrase = row.phrase;
        EXPECT_TRUE(phrases.insert(phrase).second) << host::PlaceOf(language);
        for (std::size_t value = 0; value < 3; ++value) {
            const std::wstring place = L"{" + std::to_wstring(value) + L"}";
            EXPECT_EQ(phrase.find(place) != std::wstring::npos, value < row.values);
        }
    }
    for (const wchar_t* colour :
         {words.black, words.grey, words.white, words.red, words.orange, words.yellow,
          words.green, words.turquoise, words.blue, words.purple, words.pink,
          words.brown}) {
        EXPECT_TRUE(phrases.insert(colour).second);
    }
}

/// A page in a language, 12 km wide, so that a division of its bar is less than a
/// kilometre.
LaidOut PageIn(const Language& language, fakes::Raster& bands, fakes::Raster& ramp) {
    host::PageDesign design;
    host::ParsePaperSize("A4", design.paper);
    design.language = &language;
    design.scaleBar.distances = host::BarDistances::Map;
    host::MapOnPage map{nullptr, 4.0 / 3.0, host::Box{0.0, 0.0, 12000.0, 9000.0}};
    map.projection = R"(LOCAL_CS["site",UNIT["metre",1]])";
    map.sources = {&bands, &ramp};
    return {design, map};
}

std::vector<std::wstring> TextsOf(const host::Page& page) {
    std::vector<std::wstring> texts;
    for (const host::PageItem& item : page.Items()) {
        for (const host::WrittenText& text : host::TextsOf(item)) {
            texts.push_back(text.characters);
        }
    }
    return texts;
}

TEST_P(InLanguage, APageHasItsWordsAndItsFileKeepsThem) {
    using ::testing::Contains;
    using ::testing::HasSubstr;
    fakes::Raster bands(L"scene", DisplayRGB);
    fakes::Raster ramp(L"relief", DisplayGray);
    const LaidOut laid = PageIn(language, bands, ramp);
    const std::vector<std::wstring> texts = TextsOf(laid.page);
    EXPECT_THAT(texts, Contains(std::wstring(language.legend)));
    EXPECT_THAT(texts, Contains(HasSubstr(language.source + std::wstring(L"scene") +
                                          language.source + L"relief")));
    for (const wchar_t* const word :
         {language.band, language.high, language.low, language.metre}) {
        EXPECT_THAT(texts, Contains(HasSubstr(word)));
    }
    EXPECT_EQ(laid.The<CScaleBarBase>(SurroundScaleBar).GetUnitsName(), language.metre);
    EXPECT_THAT(host::RemarksOfTexts(laid.page), ::testing::IsEmpty())
        << "every word has its letters";

    const std::string file = host::WritePage(laid.page, {});
    const LaidOut read(host::ReadPage(file, {}));
    EXPECT_EQ(host::WritePage(read.page, {}), file);
    EXPECT_EQ(&read.Of<host::ScaleBarFrame>(SurroundScaleBar)->GetLanguage(), &language);
    const auto& legend = read.The<CMapLegend>(SurroundLegend);
    EXPECT_EQ(legend.GetBandCaption(), language.band);
    EXPECT_EQ(legend.GetLowCaption(), language.low);
}

TEST_P(InLanguage, TheSignOfAValueStandsBeforeItsDigits) {
    for (const std::wstring caption : {language.high, language.low}) {
        const bool isFromTheRight = std::any_of(
            caption.begin(), caption.end(),
            [](wchar_t letter) { return letter >= L'\u0590' && letter < L'\u0900'; });
        EXPECT_EQ(caption.front() == L'\u202B', isFromTheRight);
        EXPECT_EQ(caption.back() == L'\u200E', isFromTheRight);
    }
}

TEST_P(InLanguage, APageOfAnotherIsChangedButForWhatSomebodyWrote) {
    fakes::Raster bands(L"scene", DisplayRGB);
    fakes::Raster ramp(L"relief", DisplayGray);
    const Language& another = *host::FindLanguage("zh");
    LaidOut changed = PageIn(another, bands, ramp);
    host::PageChanges changes;
    changes.language = &language;
    host::Change(changed.page, host::Merged({}, changes));
    EXPECT_THAT(host::RemarksOfUnused(changes, changed.page), ::testing::IsEmpty());
    EXPECT_EQ(TextsOf(changed.page), TextsOf(PageIn(language, bands, ramp).page));

    LaidOut own = PageIn(another, bands, ramp);
    auto& legend = own.The<CMapLegend>(SurroundLegend);
    auto& bar = own.The<CScaleBarBase>(SurroundScaleBar);
    legend.SetTitleValue(L"What it shows");
    legend.SetHighCaption(L"Peak ");
    bar.SetUnitsNameVerbatim(L"paces");
    host::Change(own.page, changes);
    EXPECT_EQ(legend.GetTitleValue(), L"What it shows");
    EXPECT_EQ(legend.GetHighCaption(), L"Peak ");
    EXPECT_EQ(legend.GetLowCaption(), language.low);
    EXPECT_EQ(bar.GetUnitsName(), L"paces");
}

TEST(Languages, AreKnownByTheirLocales) {
    EXPECT_EQ(host::FindLanguage("tlh"), nullptr);
    EXPECT_EQ(&host::LanguageAt(-1), &host::English());
    const struct {
        const char* all;
        const char* messages;
        const char* lang;
        const char* code;
    } rows[] = {
        {nullptr, nullptr, nullptr, "en"}, {nullptr, nullptr, "de_AT.UTF-8", "de"},
        {nullptr, "fr", "de_DE", "fr"},    {"ar_EG@calendar", "fr_FR", "de_DE", "ar"},
        {"", "", "zh-TW", "zh"},           {"C.UTF-8", "fr_FR", "de_DE", "en"},
        {"POSIX", nullptr, nullptr, "en"}, {nullptr, nullptr, "tlh_AQ", "en"},
        {nullptr, nullptr, "d", "en"}};
    for (const auto& row : rows) {
        const std::pair<const char*, const char*> values[] = {
            {"LC_ALL", row.all}, {"LC_MESSAGES", row.messages}, {"LANG", row.lang}};
        const auto ask = [&](const host::Progress&) -> std::string {
            for (const auto& [name, value] : values) {
                value == nullptr ? unsetenv(name) : setenv(name, value, 1);
            }
            return host::LanguageOfLocale().code;
        };
        EXPECT_EQ(host::InSeparateProcess("asking", ask), row.code);
    }
}

TEST(Languages, OfAPageWithoutWordsAreTold) {
    host::PageChanges changes;
    changes.language = &host::English();
    host::Page page(400.0, 300.0);
    page.Items().push_back(host::FindItemType("title")->make());
    EXPECT_THAT(host::RemarksOfUnused(changes, page),
                ::testing::ElementsAre(
                    "the page has no legend or scale bar to be in a language"));
    page.Items().push_back(host::FindItemType("scale-bar-line")->make());
    EXPECT_THAT(host::RemarksOfUnused(changes, page), ::testing::IsEmpty());
}

}  // namespace
