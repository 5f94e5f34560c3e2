#include "system/fonts.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

TEST(Fonts, KnowInstalledFamiliesAndTheirEquals) {
    EXPECT_TRUE(host::IsFontFamilyKnown("Liberation Sans"));
    EXPECT_TRUE(host::IsFontFamilyKnown("liberation SANS"));
    EXPECT_TRUE(host::IsFontFamilyKnown("Arial"));
    EXPECT_TRUE(host::IsFontFamilyKnown("Times New Roman"));
    EXPECT_TRUE(host::IsFontFamilyKnown("WenQuanYi Zen Hei"));
    EXPECT_TRUE(host::IsFontFamilyKnown("文泉驿正黑"));
    EXPECT_TRUE(host::IsFontFamilyKnown("sans-serif"));
    EXPECT_TRUE(host::IsFontFamilyKnown("Serif"));
}

TEST(Fonts, DoNotKnowWhatAnyFontWouldStandInFor) {
    EXPECT_FALSE(host::IsFontFamilyKnown(""));
    EXPECT_FALSE(host::IsFontFamilyKnown("No Such Family"));
    EXPECT_FALSE(host::IsFontFamilyKnown("/usr/share/fonts/none.ttf"));
    EXPECT_FALSE(host::IsFontFamilyKnown("\xFF\xFE"));
}

TEST(Fonts, StandInForEachOtherButNotForEverything) {
    const host::FontChain arial("Arial", false, false);
    EXPECT_EQ(arial.Missing(L"Olinda 影像 1 : 25\u00A0000\u200B\uFE0F"), U"");
    // Tibetan, a letter of nobody's, and Tibetan again.
    EXPECT_EQ(arial.Missing(L"a\u0F56\uE123b\u0F56"), U"\u0F56\uE123");
    EXPECT_EQ(arial.Missing(L"\U0001F5FA"), U"\U0001F5FA");
    EXPECT_EQ(arial.Missing(L"\xD800"), U"\xD800");
}

TEST(Fonts, AreOfNoUseWhenTheirFilesCannotBeOpened) {
    const host::FontChain chain("Arial", true, false);
    EXPECT_EQ(chain.WhyUnusable(L"Olinda 影像"), "");
    rlimit before = {};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none = {0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const std::string why = chain.WhyUnusable(L"Olinda");
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_NE(why.find("Sans-Bold.ttf: Too many open files"), std::string::npos) << why;
}

}  // namespace
