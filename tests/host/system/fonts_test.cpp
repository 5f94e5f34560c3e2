#include "system/fonts.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

TEST(Fonts, KnowInstalledFamiliesAndTheirEquals) {
    for (const char* known :
         {"Liberation Sans", "liberation SANS", "Arial", "Times New Roman",
          "WenQuanYi Zen Hei", "文泉驿正黑", "sans-serif", "Serif"}) {
        EXPECT_TRUE(host::IsFontFamilyKnown(known)) << known;
    }
    // And not what any font would stand in for.
    for (const char* unknown :
         {"", "No Such Family", "/usr/share/fonts/none.ttf", "\xFF\xFE"}) {
        EXPECT_FALSE(host::IsFontFamilyKnown(unknown)) << unknown;
    }
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
