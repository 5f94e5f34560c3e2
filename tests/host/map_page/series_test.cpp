// map_page --series: a page for each row of a list.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "map_page/page_file_folder.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;

class Series : public host_tests::PageFileTest {
protected:
    Series() {
        EXPECT_EQ(
            Run({"data/scene.tif", "--title", "A scene", "--save", "page.json"}).status,
            0);
        fs::create_directory(folder.Path("out"));
    }

    void WriteList(const std::string& text) const {
        std::ofstream(folder.Path("list.csv")) << text;
    }

    Result Draw(const std::string& output = "out/{name}.png",
                const std::string& jobs = "2") const {
        return Run({"page.json", "--series", "list.csv", "-o", output, "--dpi", "50",
                    "--jobs", jobs});
    }

    std::vector<std::string> Outputs() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path("out"))) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(Series, DrawsAPageForEachRow) {
    WriteList(
        "name,title,rasters,extent\r\n"
        "same,,,\r\n"
        "titled,\"Another, \"\"longer\"\" title\",,\r\n"
        "classes,,data/classes.tif;data/scene.tif,\r\n"
        "part,,,500300 8998200 500900 8998800\r\n");
    for (const char* jobs : {"1", "4"}) {
        const Result result = Draw("out/{name}.png", jobs);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.out, "list.csv: 4 drawn, 0 already there, 0 failed\n");
        EXPECT_EQ(Outputs(), (std::vector<std::string>{"classes.png", "part.png",
                                                       "same.png", "titled.png"}));
        ASSERT_EQ(Run({"page.json", "-o", "one.png", "--dpi", "50"}).status, 0);
        const std::string one = ContentsOf(folder.Path("one.png"));
        EXPECT_TRUE(ContentsOf(folder.Path("out/same.png")) == one);
        for (const char* other : {"classes.png", "part.png", "titled.png"}) {
            EXPECT_FALSE(ContentsOf(folder.Path(std::string("out/") + other)) == one);
            fs::remove(folder.Path(std::string("out/") + other));
        }
        fs::remove(folder.Path("out/same.png"));
    }
}

TEST_F(Series, HasColumnsForWhatOptionsSay) {
    WriteList(
        "name,scale,units,title-size,scale-bar,size,north-angle,picture\n"
        "same,,,,,,,\n"
        "scaled,1:50000,,,,,,\n"
        "other,1:40000,mi,9,line2,A5,-30,\n"
        "wrong,none,,,,,,\n"
        "outside,,,,,,,/etc/passwd\n");
    const Result result = Draw();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(
        result.err,
        ::testing::AllOf(
            ::testing::HasSubstr("list.csv: line 5: --scale: none is no scale such as "
                                 "1:25000\n"),
            ::testing::HasSubstr("list.csv: line 6: /etc/passwd: is outside "),
            ::testing::HasSubstr("3 drawn, 0 already there, 2 failed\n")));
    const std::vector<std::pair<std::string, Arguments>> rows = {
        {"same", {}},
        {"scaled", {"--scale", "1:50000"}},
        {"other",
         {"--scale", "1:40000", "--units", "mi", "--title-size", "9", "--scale-bar",
          "line2", "--size", "A5", "--north-angle", "-30"}}};
    for (const auto& [name, options] : rows) {
        Arguments arguments = {"page.json", "-o", "one.png", "--dpi", "50"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        ASSERT_EQ(Run(arguments).status, 0) << name;
        EXPECT_TRUE(ContentsOf(folder.Path("one.png")) ==
                    ContentsOf(folder.Path("out/" + name + ".png")))
            << name;
    }
}

TEST_F(Series, KeepsOfABarWhatItsFitSays) {
    const auto partOf = [](const std::string& page, const char* name) {
        const std::size_t from = page.find(name);
        return page.substr(from, page.find('\n', from) - from);
    };
    const std::pair<const char*, const char*> rows[] = {{"count", "\"divisions\": "},
                                                        {"value", "\"divisionValue\": "}};
    for (const auto& [fit, kept] : rows) {
        const std::string before = partOf(ContentsOf(folder.Path("page.json")), kept);
        for (const char* scale : {"1:10000", "1:20000"}) {
            const Result result = Run({"page.json", "--units", "m", "--scale", scale,
                                       "--fit", fit, "--save", "kept.json"});
            ASSERT_EQ(result.status, 0) << result.err;
            const std::string page = ContentsOf(folder.Path("kept.json"));
            EXPECT_EQ(partOf(page, kept), before) << fit;
            fs::rename(folder.Path("kept.json"), folder.Path("page.json"));
        }
    }
}

TEST_F(Series, TellsAFailingRowByItsLineAndGoesOn) {
    WriteList(
        "name,title,rasters,extent\n"
        "a,\"two\nlines\",,\n"
        "b,,data/none.tif,\n"
        "c,,,1 2 3\n"
        "d,,,5 5 1 9\n"
        "e,x\n"
        ",x,,\n"
        "f,,data/scene.tif;,\n"
        "g,,,\n");
    const Result result = Draw();
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
            ::testing::HasSubstr("map_page: list.csv: line 4: page.json: "
                                 "elements[1].rasters: data/none.tif: no such file\n"),
            ::testing::HasSubstr("map_page: list.csv: line 5" + notFour),
            ::testing::HasSubstr("map_page: list.csv: line 6" + notFour),
            ::testing::HasSubstr("map_page: list.csv: line 7: has 2 fields, not 4\n"),
            ::testing::HasSubstr(
                "map_page: list.csv: line 8: name: is empty, and part of the output's "
                "name\n"),
            ::testing::HasSubstr("map_page: list.csv: line 9: rasters: has an empty "
                                 "name\n"),
            ::testing::EndsWith(
                "map_page: list.csv: 2 drawn, 0 already there, 6 failed\n")));
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 8);
    EXPECT_EQ(Outputs(), (std::vector<std::string>{"a.png", "g.png"}));
}

TEST_F(Series, LeavesWhatIsThereAndDrawsTheRest) {
    WriteList("name,title\na,A\nb,B\n");
    std::ofstream(folder.Path("out/a.png")) << "what was drawn before";
    const Result result = Draw();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "list.csv: 1 drawn, 1 already there, 0 failed\n");
    EXPECT_EQ(ContentsOf(folder.Path("out/a.png")), "what was drawn before");
}

TEST_F(Series, NoValueLeadsIntoAnotherFolder) {
    WriteList("name,title\n../../a/b,A\n..,B\n/etc/c,C\n");
    const Result result = Draw();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(Outputs(),
              (std::vector<std::string>{"_..png", "_._.._a_b.png", "_etc_c.png"}));
}

TEST_F(Series, WarnsWithTheLine) {
    MadeRaster elsewhere;
    WriteRaster(folder.Path("data/plain.tif"), elsewhere);
    WriteList("name,rasters\na,data/scene.tif;data/plain.tif\n");
    const Result result = Draw();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err,
              "map_page: warning: list.csv: line 2: data/plain.tif: left off the map: it "
              "has no georeference\n");
}

struct WrongRow {
    std::string list;
    std::string output;
    std::string error;
};

TEST_F(Series, TellsAListThatIsNoneBeforeDrawing) {
    const WrongRow rows[] = {
        {"", "out/{name}.png", "list.csv: has no first row with the names of columns"},
        {"name\na\nb\n", "none/{name}.png", "none/: No such file or directory"},
        {"name\na\n\xFF\n", "out/{name}.png", "list.csv: line 3: is not valid UTF-8"},
        {"name,\na,b\n", "out/{name}.png",
         "list.csv: line 1: has a column without a name"},
        {"name,name\na,b\n", "out/{name}.png",
         "list.csv: line 1: names the column \"name\" twice"},
        {"name\n\"a\n", "out/{name}.png",
         "list.csv: line 2: has a quote that is not closed"},
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
         "list.csv: the column \"titel\" is no element with a text in page.json, and not "
         "in the output's name"},
    };
    for (const WrongRow& row : rows) {
        WriteList(row.list);
        const Result result = Draw(row.output);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "map_page: " + row.error + "\n");
        EXPECT_EQ(Outputs(), std::vector<std::string>{});
    }
    const Result gif = Draw("out/{name}.gif");
    EXPECT_EQ(gif.status, 2);
    EXPECT_EQ(gif.err,
              "map_page: out/{name}.gif: ends in none of .png .jpg .jpeg .bmp .tif .tiff "
              ".pdf .svg .ps\n");
    fs::remove(folder.Path("list.csv"));
    EXPECT_EQ(Draw().err, "map_page: list.csv: No such file or directory\n");
    EXPECT_EQ(Run({"data/scene.tif", "--series", "list.csv", "-o", "a.png"}).err,
              "map_page: --series: goes with a page file only\n");
    EXPECT_EQ(Run({"page.json", "--jobs", "2", "-o", "a.png"}).err,
              "map_page: --jobs requires --series: see map_page --help\n");
}

}  // namespace
