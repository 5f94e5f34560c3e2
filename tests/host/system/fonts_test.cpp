#include "system/fonts.h"

#include <gtest/gtest.h>

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

}  // namespace
