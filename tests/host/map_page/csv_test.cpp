#include "map_page/csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map_page/error.h"

namespace {

using Records = std::vector<std::vector<std::string>>;

TEST(Csv, ReadsRecordsAndTheirLines) {
    const struct {
        std::string text;
        Records records;
        std::vector<std::size_t> lines;
    } rows[] = {
        {"", {}, {}},
        {"\n\r\n", {}, {}},
        {"a", {{"a"}}, {1}},
        {"a,b\n", {{"a", "b"}}, {1}},
        {"a,b\r\nc,d\r\n", {{"a", "b"}, {"c", "d"}}, {1, 2}},
        {",\n", {{"", ""}}, {1}},
        {"a,\n,b", {{"a", ""}, {"", "b"}}, {1, 2}},
        {"\"a,b\",c", {{"a,b", "c"}}, {1}},
        {"\"say \"\"so\"\"\"", {{"say \"so\""}}, {1}},
        {"\"\",\"\"\"\"", {{"", "\""}}, {1}},
        {"\"two\nlines\",x\nnext,y", {{"two\nlines", "x"}, {"next", "y"}}, {1, 3}},
        {"\"two\r\nlines\"\n\n\nnext", {{"two\r\nlines"}, {"next"}}, {1, 5}},
        {"\xEF\xBB\xBFname\nä", {{"name"}, {"ä"}}, {1, 2}},
        {" a , b ", {{" a ", " b "}}, {1}},
        {"a\rb,c", {{"a\rb", "c"}}, {1}},
    };
    for (const auto& row : rows) {
        Records fields;
        std::vector<std::size_t> lines;
        for (const map_page::CsvRecord& record : map_page::ReadCsv(row.text)) {
            fields.push_back(record.fields);
            lines.push_back(record.line);
        }
        EXPECT_EQ(fields, row.records) << row.text;
        EXPECT_EQ(lines, row.lines) << row.text;
    }
}

TEST(Csv, TellsTheLineOfWhatIsWrong) {
    const struct {
        std::string text;
        std::string error;
    } rows[] = {
        {"a\n\"b\nc", "line 2: has a quote that is not closed"},
        {"\"", "line 1: has a quote that is not closed"},
        {"a\n\nb\"c\"", "line 3: has text beside quotes"},
        {"\"a\"b", "line 1: has text beside quotes"},
        {"\"a\" ,b", "line 1: has text beside quotes"},
        {"a,b\nc,\xFF\xFE\n", "line 2: is not valid UTF-8"},
        {std::string("a\n\nb\0c\n", 7), "line 3: has a zero byte"},
    };
    for (const auto& row : rows) {
        EXPECT_THAT([&row] { map_page::ReadCsv(row.text); },
                    ::testing::ThrowsMessage<map_page::Error>(row.error))
            << row.text;
    }
}

}  // namespace
