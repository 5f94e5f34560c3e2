#include "system/one_line.h"

#include <gtest/gtest.h>

#include <string>

#include "system/utf8.h"

namespace {

using host::OneLine;

TEST(OneLine, EscapesWhatIsNotToBeSeen) {
    const struct {
        std::string text;
        std::string line;
    } rows[] = {
        {"", ""},
        {"page.png: is a \"map\" \\ 100 %", "page.png: is a \"map\" \\ 100 %"},
        {"a\nb\r\tc", "a\\nb\\r\\tc"},
        {"\x1B[2Ja\x07\x7F", "\\x1B[2Ja\\x07\\x7F"},
        {"Mün\xC2\x9B"
         "chen 奥",
         "Mün\\x9B"
         "chen 奥"},
        {"a\xE2\x80\xAE"
         "b\xE2\x80\xA8",
         "a\\u202Eb\\u2028"},
        {"M\xFC"
         "nchen\n\xC3",
         "M\\xFCnchen\\n\\xC3"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(OneLine(row.text), row.line);
        EXPECT_EQ(OneLine(row.line), row.line);
    }
}

TEST(OneLine, CutsTheMiddleOutOfWhatIsTooLong) {
    EXPECT_EQ(OneLine("0123456789", 10), "0123456789");
    EXPECT_EQ(OneLine("0123456789A", 10), "012345...A");
    EXPECT_EQ(OneLine("12345ä6789012", 10), "12345...2");
    EXPECT_EQ(OneLine("123456789ä12", 12), "1234567...12");
    EXPECT_EQ(OneLine("\n\n\n\n\n\n", 10), "\\n\\n\\n...n");
    const std::string lost = OneLine(std::string(5000, 'x') + ": File name too long");
    EXPECT_EQ(lost.size(), 1000u);
    EXPECT_EQ(lost.substr(0, 10), "xxxxxxxxxx");
    EXPECT_EQ(lost.substr(lost.size() - 21), "x: File name too long");
    std::wstring wide;
    for (std::size_t longest = 10; longest < 40; ++longest) {
        EXPECT_TRUE(host::Widen(OneLine("äöü€奥林äöü€奥林äöü€奥林", longest), wide));
        EXPECT_LE(OneLine("äöü€奥林äöü€奥林äöü€奥林", longest).size(), longest);
    }
}

}  // namespace
