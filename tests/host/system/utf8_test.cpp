#include "system/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Utf8, IsWideTextAndBack) {
    const struct {
        std::wstring wide;
        std::string utf8;
    } rows[] = {
        {L"", ""},
        {L"Olinda", "Olinda"},
        {L"\u00DF \u20AC", "\xC3\x9F \xE2\x82\xAC"},
        {std::wstring(1, wchar_t{0x1F5FA}), "\xF0\x9F\x97\xBA"},
        {std::wstring(1, wchar_t{0x10FFFF}), "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(host::Narrow(row.wide), row.utf8);
        std::wstring wide;
        EXPECT_TRUE(host::Widen(row.utf8, wide)) << row.utf8;
        EXPECT_EQ(wide, row.wide) << row.utf8;
    }
}

TEST(Utf8, ShowsWhatIsNoCharacterAsReplaced) {
    const std::string replaced =
        "a\xEF\xBF\xBD"
        "b";
    for (const wchar_t none : {wchar_t{0xD800}, wchar_t{0xDFFF}, wchar_t{0x110000},
                               static_cast<wchar_t>(-1)}) {
        EXPECT_EQ(host::Narrow({L'a', none, L'b'}), replaced) << none;
    }
}

TEST(Utf8, LeavesTheTextAloneWhereTheBytesAreNone) {
    for (const char* bytes :
         {"\xFF", "a\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
        std::wstring wide = L"before";
        EXPECT_FALSE(host::Widen(bytes, wide)) << bytes;
        EXPECT_EQ(wide, L"before");
    }
}

}  // namespace
