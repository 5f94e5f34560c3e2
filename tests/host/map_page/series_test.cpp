// map_page --series: a page for each row of a list.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::Result;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Series : public host_tests::PageFileTest {
protected:
    Series() {
        RunWell("data/scene.tif --title Scene --save page.json");
        fs::create_directory(folder.Path("out"));
    }

    Result Draw(const std::string& list, const Arguments& jobs = "--jobs 2") const {
        Write("list.csv", list);
        return Run("page.json --series list.csv -o out/{name}.png --dpi 50" + jobs);
    }

    std::vector<std::string> Outputs() const { return folder.Names("out"); }
};

TEST_F(Series, DrawsAPageForEachRow) {
    const std::string list =
        "name,title,rasters,extent\r\n"
        "same,,,\r\n"
        "titled,\"Another, \"\"longer\"\" title\",,\r\n"
        "classes,,data/classes.tif;data/scene.tif,\r\n"
        "part,,,500300 8998200 500900 8998800\r\n";
    for (const char* jobs : {"--jobs 1", "--jobs 4"}) {
        const Result result = Draw(list, jobs);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.out, "list.csv: 4 drawn, 0 already there, 0 failed\n");
        EXPECT_THAT(Outputs(),
                    ElementsAre("classes.png", "part.png", "same.png", "titled.png"));
        RunWell("page.json -o one.png --dpi 50");
        const std::string one = Contents("one.png");
        EXPECT_TRUE(Contents("out/same.png") == one);
        for (const char* other : {"classes.png", "part.png", "titled.png"}) {
            EXPECT_FALSE(Contents(std::string("out/") + other) == one);
            fs::remove(folder.Path(std::string("out/") + other));
        }
        fs::remove(folder.Path("out/same.png"));
    }
}

TEST_F(Series, HasColumnsForWhatOptionsSay) {
    const Result result = Draw(
        "name,scale,units,title-size,scale-bar,size,north-angle,picture\n"
        "same,,,,,,,\n"
        "scaled,1:50000,,,,,,\n"
        "other,1:40000,mi,9,line2,A5,-30,\n"
        "wrong,none,,,,,,\n"
        "outside,,,,,,,/etc/passwd\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err,
                ::testing::AllOf(
                    HasSubstr("list.csv: line 5: --scale: none is not a scale such as "
                              "1:25000\n"),
                    HasSubstr("list.csv: line 6: /etc/passwd: is outside "),
                    HasSubstr("3 drawn, 0 already there, 2 failed\n")));
    const std::vector<std::pair<std::string, Arguments>> rows = {
        {"same", {}},
        {"scaled", "--scale 1:50000"},
        {"other",
         "--scale 1:40000 --units mi --title-size 9 --scale-bar line2 --size A5 "
         "--north-angle -30"}};
    for (const auto& [name, options] : rows) {
        RunWell("page.json -o one.png --dpi 50" + options);
        EXPECT_TRUE(Contents("one.png") == Contents("out/" + name + ".png")) << name;
    }
}

TEST_F(Series, TellsAFailingRowByItsLineAndGoesOn) {
    const Result result = Draw(
        "name,title,rasters,extent\n"
        "a,\"two\nlines\",,\n"
        "b,,data/none.tif,\n"
        "c,,,1 2 3\n"
        "d,,,5 5 1 9\n"
        "e,x\n"
        ",x,,\n"
        "f,,data/scene.tif;,\n"
        "g,,,\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    const std::string notFour =
        ": extent: must be left, bottom, right and top: four numbers with one space "
        "between two\n";
    EXPECT_THAT(
        result.err,
        ::testing::AllOf(
            ::testing::ContainsRegex(
                "warning: list.csv: line 2: title: is set in .* points "
                "to fit its frame, instead of .* points\n"),
            HasSubstr("map_page: list.csv: line 4: page.json: "
                      "elements[1].rasters: data/none.tif: no such file\n"),
            HasSubstr("map_page: list.csv: line 5" + notFour),
            HasSubstr("map_page: list.csv: line 6" + notFour),
            HasSubstr("map_page: list.csv: line 7: has 2 fields, not 4\n"),
            HasSubstr(
                "map_page: list.csv: line 8: name: is empty, and part of the output's "
                "name\n"),
            HasSubstr("map_page: list.csv: line 9: rasters: has an empty "
                      "name\n"),
            ::testing::EndsWith(
                "map_page: list.csv: 2 drawn, 0 already there, 6 failed\n")));
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 8);
    EXPECT_THAT(Outputs(), ElementsAre("a.png", "g.png"));
}

TEST_F(Series, LeavesWhatIsThereAndDrawsTheRest) {
    Write("out/a.png", "what was drawn before");
    const Result result = Draw("name,title\na,A\nb,B\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "list.csv: 1 drawn, 1 already there, 0 failed\n");
    EXPECT_EQ(Contents("out/a.png"), "what was drawn before");
}

TEST_F(Series, NoValueLeadsIntoAnotherFolder) {
    const Result result = Draw("name,title\n../../a/b,A\n..,B\n/etc/c,C\n");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(Outputs(), ElementsAre("_..png", "_._.._a_b.png", "_etc_c.png"));
}

TEST_F(Series, TellsAListThatIsNoneBeforeDrawing) {
    const struct {
        const char* list;
        const char* output;
        const char* error;
    } rows[] = {
        {"", "out/{name}.png", "list.csv: has no first row with the names of columns"},
        {"name\na\nb\n", "none/{name}.png", "none/: No such file or directory"},
        {"name\na\n\xFF\n", "out/{name}.png", "list.csv: line 3: is not valid UTF-8"},
        {"name,\na,b\n", "out/{name}.png",
         "list.csv: line 1: has a column without a name"},
        {"name,name\na,b\n", "out/{name}.png",
         "list.csv: line 1: names the column \"name\" twice"},
        {"name\na\n", "out/{nam}.png",
         "list.csv: out/{nam}.png: the list has no column \"nam\""},
        {"name\na\n", "out/{name.png", "list.csv: out/{name.png: has a { without }"},
        {"name\na\nb\n", "out/page.png",
         "list.csv: lines 2 and 3: have one output, out/page.png"},
        {"name\na\nb\na\n", "out/{name}.png",
         "list.csv: lines 2 and 4: have one output, out/a.png"},
        {"name\na/b\na_b\n", "out/{name}.png",
         "list.csv: lines 2 and 3: have one output, out/a_b.png"},
        {"name,titel\na,b\n", "out/{name}.png",
         "list.csv: the column \"titel\" is not an element with a text in page.json, and "
         "not "
         "in the output's name"},
    };
    for (const auto& row : rows) {
        Write("list.csv", row.list);
        ExpectError(1, row.error,
                    {"page.json", "--series", "list.csv", "-o", row.output});
        EXPECT_THAT(Outputs(), ::testing::IsEmpty());
    }
    fs::remove(folder.Path("list.csv"));
    ExpectError(1, "list.csv: No such file or directory",
                "page.json --series list.csv -o {name}.png");
}

}  // namespace
