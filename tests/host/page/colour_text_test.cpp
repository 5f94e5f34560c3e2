#include "page/colour_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using host::ColourFromText;
using host::ColourText;
using host::NamedColour;

TEST(ColourText, HasTheAlphaLastUnlessItIsOpaque) {
    const struct {
        Gdiplus::ARGB colour;
        std::string text;
    } rows[] = {
        {0xFF000000, "#000000"},   {0xFF3C4650, "#3C4650"},   {0x80FF0000, "#FF000080"},
        {0x44112233, "#11223344"}, {0x00FFFFFF, "#FFFFFF00"}, {0xFEFFFFFF, "#FFFFFFFE"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ColourText(row.colour), row.text);
        EXPECT_EQ(ColourFromText(row.text), row.colour) << row.text;
    }
    EXPECT_EQ(ColourFromText("#a0b0c0FF"), Gdiplus::ARGB{0xFFA0B0C0});
}

TEST(ColourText, IsNoOtherText) {
    for (const char* text :
         {"", "#", "#12345", "#1234567", "#123456789", "123456", "#12345G", "#-12345",
          "#+1234567", "# 123456", "#0x1234", "red", "#11223344 "}) {
        EXPECT_EQ(ColourFromText(text), std::nullopt) << text;
    }
}

TEST(ColourText, MayHaveAName) {
    EXPECT_EQ(NamedColour("navy"), Gdiplus::ARGB{0xFF000080});
    EXPECT_EQ(NamedColour("gray"), NamedColour("grey"));
    for (const char* none : {"", "Navy", "reddish", "#000000"}) {
        EXPECT_EQ(NamedColour(none), std::nullopt) << none;
    }
    for (const std::string& name : host::ColourNames()) {
        EXPECT_NE(NamedColour(name), std::nullopt) << name;
    }
}

}  // namespace
