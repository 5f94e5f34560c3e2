// map_page with page files: saving the automatic page, and drawing what was saved.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "map_page/page_file_folder.h"
#include "map_page/squares.h"
#include "page/catalogue.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class PageFile : public host_tests::PageFileTest {
protected:
    /// The drawing of a page with an option, by way of the page file it is saved in.
    std::string DrawnWith(const char* option, const std::string& value) {
        fs::remove(folder.Path("page.json"));
        RunWell(Arguments{option, value} + "data/scene.tif --save page.json");
        RunWell("page.json -o page.png --dpi 60");
        return Contents("page.png");
    }
};

TEST_F(PageFile, DrawsThePixelsOfThePageThatWasSaved) {
    const Arguments designs[] = {
        "--title Scene --picture logo.png",
        "--size A5 --portrait --scale-bar stepped --units m --north-arrow two "
        "--north-angle 33.3 --shadow off",
        "--scale-bar equal-alternating --distances map --unit-position before "
        "--north-arrow one --no-legend --background #11223344",
        Arguments{"--legend-title", ""} +
            "--scale-bar line3 --north-arrow four --title Ünïted --title-style italic "
            "--border none",
        "--scale-bar line2 --north-angle true --bands 3,2,1 --nodata 7 "
        "--stretch percent 5 95",
        "--scale-bar line --divisions 2 --subdivisions 5",
    };
    fs::create_directory(folder.Path("pages"));
    for (const Arguments& design : designs) {
        for (const char* dpi : {"96", "300"}) {
            RunWell(design + "data/classes.tif data/scene.tif -o drawn.png" +
                    "--save pages/page.json --dpi" + dpi);
            const Result again =
                RunWell(Arguments("pages/page.json -o again.png --dpi") + dpi +
                        "--allow-outside data --allow-outside logo.png");
            EXPECT_EQ(again.err, "");
            EXPECT_TRUE(Contents("drawn.png") == Contents("again.png"))
                << design.front() << " at " << dpi;
        }
    }
}

TEST_F(PageFile, SaysHowItsRasterIsShown) {
    RunWell(
        "data/scene.tif --save page.json --stretch percent 5 95 --bands 3,2,1 --nodata "
        "7");
    EXPECT_THAT(Contents("page.json"),
                ::testing::AllOf(HasSubstr(R"("stretch": "percent 5 95")"),
                                 HasSubstr(R"("bands": "3,2,1")"),
                                 HasSubstr(R"("noData": "7")")));
}

TEST_F(PageFile, EveryStyleOfTheCatalogueIsAWordASavedTypeAndADrawing) {
    const std::string help = Run("--help").out;
    for (const auto& [family, option] : {std::pair(SurroundScaleBar, "--scale-bar"),
                                         {SurroundNorthArrow, "--north-arrow"}}) {
        const std::string wrong =
            Run({"data/scene.tif", "--save", "page.json", option, "wrong"}).err;
        const std::string without = DrawnWith(option, "none");
        for (const host::CatalogueEntry* const entry : host::StylesOf(family)) {
            SCOPED_TRACE(entry->name);
            EXPECT_THAT(help, HasSubstr(entry->Style()));
            EXPECT_THAT(wrong, HasSubstr(entry->Style()));
            EXPECT_FALSE(DrawnWith(option, entry->Style()) == without);
            EXPECT_THAT(Contents("page.json"),
                        HasSubstr("\"type\": \"" + std::string(entry->name) + "\""));
        }
    }
}

TEST_F(PageFile, KeepsTheWordsOfTheLanguageInWhichItWasMade) {
    const auto saved = [this](const char* locale, const Arguments& arguments) {
        const auto speak = [locale] { setenv("LC_ALL", locale, 1); };
        EXPECT_EQ(Run(arguments + "--save saved.json", speak).status, 0);
        return Contents("saved.json");
    };
    const struct {
        const char* locale;
        Arguments call;
        const char* band;
    } rows[] = {{"C", "data/scene.tif", "\"Band \""},
                {"de_AT.UTF-8", "data/scene.tif", "\"Kanal \""},
                {"de_AT.UTF-8", "data/scene.tif --language=fr", "\"Bande \""},
                {"C", "data/scene.tif --language=zh", "\"\u6CE2\u6BB5_\""}};
    for (const auto& row : rows) {
        const std::string page = saved(row.locale, row.call);
        EXPECT_THAT(page, HasSubstr(std::string("\"bandCaption\": ") + row.band));
        Write("page.json", page);
        EXPECT_EQ(saved("ja_JP", "page.json"), page);
        EXPECT_THAT(saved("C", "page.json --language ru"),
                    HasSubstr("\"title\": \"Условные обозначения\""));
    }
}

TEST_F(PageFile, IsSavedWithoutDrawingAndSaysWhereItIs) {
    const Result result = RunWell("data/scene.tif --save page.json");
    EXPECT_EQ(result.out, "page.json: 5 elements, " +
                              std::to_string(fs::file_size(folder.Path("page.json"))) +
                              " bytes\n");
    EXPECT_THAT(folder.Names(), ElementsAre("data", "logo.png", "page.json"));
    EXPECT_THAT(Contents("page.json"), HasSubstr("\"data/scene.tif\""));
}

TEST_F(PageFile, MayEndInAnyCase) {
    RunWell("data/scene.tif --save page.JSON");
    RunWell("page.JSON -o page.png --dpi 50");
    EXPECT_EQ(Run("page.JSON page.json -o page.png").status, 2);
}

TEST_F(PageFile, MovesWithItsRasters) {
    fs::create_directories(folder.Path("a/data"));
    fs::rename(folder.Path("data/scene.tif"), folder.Path("a/data/scene.tif"));
    RunWell("a/data/scene.tif --save a/page.json");
    fs::rename(folder.Path("a"), folder.Path("b"));
    RunWell("b/page.json -o page.jpg --dpi 50");
    RunWell("b/page.json -o page.tif --dpi 50");  // which GDAL writes
}

TEST_F(PageFile, SaysWhatItDoesUnlessAnOptionSaysOtherwise) {
    fs::copy(folder.Path("logo.png"), folder.Path("data/other.png"));
    RunWell("data/scene.tif --title Scene --picture logo.png --save page.json");
    const struct {
        Arguments options;
        std::vector<std::string> says;  ///< what the page that is saved then says
    } rows[] = {
        {"--title Another", {R"("text": "Another")"}},
        {{"--title-font", "Times New Roman", "--title-style", "italic"},
         {R"("font": "Times New Roman")", R"("fontStyle": "italic")"}},
        {"--title-size 12", {R"("fontSize": 16.0)"}},
        {"--picture data/other.png", {R"("path": "data/other.png")"}},
        {{"--legend-title", "Key", "--legend-font", "Times New Roman"},
         {R"("title": "Key")", R"("titleFont": "Times New Roman")",
          R"("fileNameFont": "Times New Roman")"}},
        {{"data/classes.tif"}, {R"("data/classes.tif")"}},
        {"--extent 500000 8999000 500900 8999900", {R"("right": 500900.0)"}},
        {"--scale 1:5000 --numeric-scale",
         {R"("scale": 5000.0)", R"("denominator": 5000.0)"}},
        {"--numeric-scale --border red", {R"("type": "numeric-scale")"}},
        {"--numeric-scale --scale-bar none", {R"("type": "numeric-scale")"}},
        {"--stretch stddev 2 --bands 3,2,1 --nodata 0",
         {R"("stretch": "stddev 2")", R"("bands": "3,2,1")", R"("noData": "0")"}},
        {"--scale-bar line2 --divisions 3 --subdivisions 5",
         {R"("type": "scale-bar-line2")", R"("divisions": 3)", R"("subdivisions": 5)",
          R"("scaleBarType": "line2")"}},
        {"--units yd --unit-position before --fit width",
         {R"("unit": "yd")", R"("units": "yd")", R"("unitPosition": "before")",
          R"("fit": "width")"}},
        {"--unit-name Mtr", {R"("unit": "m")", R"("units": "Mtr")"}},
        {"--distances map", {R"("distances": "map")"}},
        {"--north-arrow four --north-angle 30",
         {R"("type": "north-arrow-four")", R"("angle": 30.0)", R"("trueNorth": false)"}},
        {"--size A3", {R"("width": 1587.40)", R"("height": 1122.51)"}},
        {"--size A3 --portrait", {R"("width": 1122.51)", R"("height": 1587.40)"}},
        {"--border red --shadow off --background #11223344",
         {R"("borderColor": "#FF0000")", R"("shadow": false)",
          R"("fillColor": "#11223344")"}},
    };
    const std::string before = Contents("page.json");
    for (const auto& row : rows) {
        const std::string what = ::testing::PrintToString(row.options);
        RunWell("page.json" + row.options + "--save new.json -o a.png --dpi 60");
        const std::string after = Contents("new.json");
        std::size_t saidBefore = 0;
        for (const std::string& says : row.says) {
            saidBefore += before.find(says) == std::string::npos ? 0 : 1;
            EXPECT_THAT(after, HasSubstr(says)) << what;
        }
        EXPECT_LT(saidBefore, row.says.size()) << what << "changes nothing";
        RunWell("new.json -o b.png --dpi 60");
        EXPECT_TRUE(Contents("a.png") == Contents("b.png")) << what;
    }
    for (const char* gone : {"--scale-bar none", "--north-arrow none", "--no-legend"}) {
        EXPECT_THAT(Run(gone + Arguments("page.json --save new.json")).out,
                    StartsWith("new.json: 6 elements"));
    }
}

TEST_F(PageFile, OnAnotherSheetIsTheSamePageLargerOrSmaller) {
    RunWell("data/scene.tif --title Scene --save page.json");
    // A4 at 141.4 dpi has the pixels of A3 at 100.
    RunWell("page.json -o a4.png --dpi 141.42");
    RunWell("page.json --size A3 -o a3.png --dpi 100");
    const std::vector<double> small = host_tests::SquaresOf(folder.Path("a4.png"), 100);
    const std::vector<double> large = host_tests::SquaresOf(folder.Path("a3.png"), 100);
    ASSERT_EQ(small.size(), 3U * 16 * 11);
    ASSERT_EQ(large.size(), small.size());
    for (std::size_t i = 0; i < small.size(); ++i) {
        EXPECT_NEAR(large[i], small[i], 10.0) << "square " << i / 3;
    }
}

TEST_F(PageFile, IsNotDrawnStrictlyWhereSomethingIsToBeSaidOfIt) {
    RunWell("data/scene.tif --title A --save good.json");
    Write("bad.json", std::regex_replace(Contents("good.json"), std::regex("\"A\""),
                                         "\"As long as can be, and longer\""));
    Write("list.csv", "name\na\n");
    for (const char* call : {"data/scene.tif --title A --size 30x30", "bad.json",
                             "bad.json --series list.csv"}) {
        const Arguments lenient = Arguments(call) + "--dpi 200 -o {name}.png";
        const std::string warnings = RunWell(lenient).err;
        EXPECT_THAT(warnings, HasSubstr("warning: "));
        fs::remove(folder.Path("{name}.png"));
        fs::remove(folder.Path("a.png"));

        const std::vector<std::string> names = folder.Names();
        const Result strict = Run(lenient + "--strict");
        EXPECT_EQ(strict.status, 1) << call;
        EXPECT_EQ(strict.out, "") << call;
        EXPECT_THAT(strict.err, StartsWith(warnings));
        EXPECT_THAT(strict.err,
                    HasSubstr(".png: is not written: --strict allows no warnings\n"));
        EXPECT_EQ(folder.Names(), names) << call;
    }
    RunWell("good.json -o good.png --dpi 50 --strict");
}

TEST_F(PageFile, TellsItsSchema) {
    EXPECT_EQ(RunWell("--schema").out, ContentsOf(MAP_SURROUND_PAGE_SCHEMA));
}

}  // namespace
