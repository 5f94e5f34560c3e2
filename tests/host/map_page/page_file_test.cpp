// map_page with page files: saving the automatic page, and drawing what was saved.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "map_page/page_file_folder.h"
#include "page/catalogue.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::ContentsOf;
using host_tests::Result;

class PageFile : public host_tests::PageFileTest {
protected:
    /// The drawing of a page with an option, by way of the page file it is saved in.
    std::string DrawnWith(const char* option, const std::string& value) {
        fs::remove(folder.Path("page.json"));
        const Result saved =
            Run({"data/scene.tif", "--save", "page.json", option, value});
        EXPECT_EQ(saved.status, 0) << saved.err;
        const Result drawn = Run({"page.json", "-o", "page.png", "--dpi", "60"});
        EXPECT_EQ(drawn.status, 0) << drawn.err;
        return ContentsOf(folder.Path("page.png"));
    }
};

TEST_F(PageFile, DrawsThePixelsOfThePageThatWasSaved) {
    const Arguments designs[] = {
        {"--title", "A scene", "--picture", "logo.png"},
        {"--size", "A5", "--portrait", "--scale-bar", "stepped", "--units", "m",
         "--north-arrow", "two", "--north-angle", "33.3", "--shadow", "off"},
        {"--scale-bar", "equal-alternating", "--distances", "map", "--unit-position",
         "before", "--north-arrow", "one", "--no-legend", "--background", "#11223344"},
        {"--scale-bar", "line3", "--north-arrow", "four", "--legend-title", "", "--title",
         "Ünïted", "--title-style", "italic", "--border", "none"},
        {"--scale-bar", "line2", "--north-angle", "true"},
        {"--scale-bar", "line", "--divisions", "2", "--subdivisions", "5"},
    };
    for (const Arguments& design : designs) {
        for (const char* dpi : {"96", "300"}) {
            Arguments arguments = {
                "data/classes.tif", "data/scene.tif",  "-o",    "drawn.png",
                "--save",           "pages/page.json", "--dpi", dpi};
            fs::create_directory(folder.Path("pages"));
            arguments.insert(arguments.end(), design.begin(), design.end());
            const Result drawn = Run(arguments);
            ASSERT_EQ(drawn.status, 0) << drawn.err;
            const Result again =
                Run({"pages/page.json", "-o", "again.png", "--dpi", dpi,
                     "--allow-outside", "data", "--allow-outside", "logo.png"});
            ASSERT_EQ(again.status, 0) << again.err;
            EXPECT_EQ(again.err, "");
            EXPECT_TRUE(ContentsOf(folder.Path("drawn.png")) ==
                        ContentsOf(folder.Path("again.png")))
                << design.front() << " at " << dpi;
        }
    }
}

TEST_F(PageFile, EveryStyleOfTheCatalogueIsAWordASavedTypeAndADrawing) {
    const std::string help = Run({"--help"}).out;
    const struct {
        MapSurroundType family;
        const char* option;
    } families[] = {{SurroundScaleBar, "--scale-bar"},
                    {SurroundNorthArrow, "--north-arrow"}};
    for (const auto& [family, option] : families) {
        const std::string wrong =
            Run({"data/scene.tif", "--save", "page.json", option, "wrong"}).err;
        const std::string without = DrawnWith(option, "none");
        for (const host::CatalogueEntry* const entry : host::StylesOf(family)) {
            SCOPED_TRACE(entry->name);
            EXPECT_NE(help.find(entry->Style()), std::string::npos);
            EXPECT_NE(wrong.find(entry->Style()), std::string::npos);
            EXPECT_FALSE(DrawnWith(option, entry->Style()) == without);
            EXPECT_NE(ContentsOf(folder.Path("page.json"))
                          .find("\"type\": \"" + std::string(entry->name) + "\""),
                      std::string::npos);
        }
    }
}

TEST_F(PageFile, KeepsTheWordsOfTheLanguageInWhichItWasMade) {
    const auto saved = [this](const char* locale, const Arguments& arguments) {
        const auto speak = [locale] { setenv("LC_ALL", locale, 1); };
        Arguments all = arguments;
        all.insert(all.end(), {"--save", "saved.json"});
        EXPECT_EQ(host_tests::RunningMapPage(folder, all, speak).Wait().status, 0);
        return ContentsOf(folder.Path("saved.json"));
    };
    const struct {
        const char* locale;
        const char* option;
        const char* band;
    } rows[] = {{"C", "", "\"Band \""},
                {"de_AT.UTF-8", "", "\"Kanal \""},
                {"de_AT.UTF-8", "--language=fr", "\"Bande \""},
                {"C", "--language=zh", "\"\u6CE2\u6BB5_\""}};
    for (const auto& row : rows) {
        Arguments arguments = {"data/scene.tif"};
        arguments.insert(arguments.end(), *row.option == '\0' ? 0 : 1, row.option);
        const std::string page = saved(row.locale, arguments);
        EXPECT_NE(page.find(std::string("\"bandCaption\": ") + row.band),
                  std::string::npos)
            << page;
        host_tests::WriteFile(folder.Path("page.json"), page);
        EXPECT_EQ(saved("ja_JP", {"page.json"}), page);
        EXPECT_NE(saved("C", {"page.json", "--language", "ru"})
                      .find("\"title\": \"Условные обозначения\""),
                  std::string::npos);
    }
}

TEST_F(PageFile, IsSavedWithoutDrawingAndSaysWhereItIs) {
    const Result result = Run({"data/scene.tif", "--save", "page.json"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "page.json: 5 elements, " +
                              std::to_string(fs::file_size(folder.Path("page.json"))) +
                              " bytes\n");
    EXPECT_EQ(folder.Names(),
              (std::vector<std::string>{"data", "logo.png", "page.json"}));
    EXPECT_NE(ContentsOf(folder.Path("page.json")).find("\"data/scene.tif\""),
              std::string::npos);
}

TEST_F(PageFile, OfVersion1DrawsTheSamePixels) {
    ASSERT_EQ(Run({"data/scene.tif", "--save", "page.json", "--border", "#11223344",
                   "--background", "#ffeedd80"})
                  .status,
              0);
    // Bars of version 1 are not exact, and version 2 can have such ones.
    std::string text =
        std::regex_replace(ContentsOf(folder.Path("page.json")),
                           std::regex("\"exact\": true"), "\"exact\": false");
    host_tests::WriteFile(folder.Path("second.json"), text);
    ASSERT_EQ(Run({"second.json", "-o", "second.png"}).status, 0);
    text = std::regex_replace(text, std::regex(" *\"exact\": false,\n"), "");
    for (const auto& [second, first] :
         {std::pair("\"version\": 3", "\"version\": 1"),
          std::pair("#11223344", "#44112233"), std::pair("#FFEEDD80", "#80FFEEDD")}) {
        EXPECT_NE(text.find(second), std::string::npos) << second;
        text = std::regex_replace(text, std::regex(second), first);
    }
    host_tests::WriteFile(folder.Path("first.json"), text);
    const Result result = Run({"first.json", "-o", "first.png"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(ContentsOf(folder.Path("first.png")) ==
                ContentsOf(folder.Path("second.png")));
}

TEST_F(PageFile, MayEndInAnyCase) {
    ASSERT_EQ(Run({"data/scene.tif", "--save", "page.JSON"}).status, 0);
    const Result result = Run({"page.JSON", "-o", "page.png", "--dpi", "50"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(Run({"page.JSON", "page.json", "-o", "page.png"}).status, 2);
}

TEST_F(PageFile, MovesWithItsRasters) {
    fs::create_directories(folder.Path("a/data"));
    fs::rename(folder.Path("data/scene.tif"), folder.Path("a/data/scene.tif"));
    ASSERT_EQ(Run({"a/data/scene.tif", "--save", "a/page.json"}).status, 0);
    fs::rename(folder.Path("a"), folder.Path("b"));
    for (const char* output : {"page.jpg", "page.tif"}) {  // GDAL writes only the latter
        const Result result = Run({"b/page.json", "-o", output, "--dpi", "50"});
        EXPECT_EQ(result.status, 0) << result.err;
    }
}

struct ErrorRow {
    int status;
    std::string line;
    Arguments arguments;
};

TEST_F(PageFile, SaysWhatIsWrongInOneLineAndOverwritesNothing) {
    const std::string before = "what was here before";
    std::ofstream(folder.Path("page.png")) << before;
    const auto write = [this](const std::string& name, const std::string& elements) {
        std::ofstream(folder.Path(name))
            << R"({"version": 2, "width": 400, "height": 300, "elements": [)" << elements
            << "]}";
    };
    write("good.json", "");
    write("titles.json", R"({"type": "title"}, {"type": "title"})");
    write("size.json", R"({"type": "frame"}, {"type": "title", "size": "big"})");
    write("raster.json", R"({"type": "map", "rasters": ["none.tif"]})");
    write("picture.json", R"({"type": "picture", "path": "none.png"})");
    write("font.json", R"({"type": "title", "font": "No Such"})");
    std::ofstream(folder.Path("broken.json")) << "{\n\"version\": }";
    std::ofstream(folder.Path("empty.json"));
    fs::create_directory(folder.Path("folder.json"));
    const std::vector<std::string> names = folder.Names();
    const ErrorRow rows[] = {
        {1,
         "size.json: elements[1].size: must be a whole number",
         {"size.json", "-o", "page.png"}},
        {1,
         "raster.json: elements[0].rasters: none.tif: no such file",
         {"raster.json", "-o", "page.png"}},
        {1,
         "picture.json: elements[0].path: none.png: No such file or directory",
         {"picture.json", "-o", "page.png"}},
        {1,
         "font.json: elements[0].font: no font family \"No Such\" is installed",
         {"font.json", "-o", "page.png"}},
        {1,
         "broken.json: line 2, column 12: is not valid JSON: unexpected '}'; expected "
         "'[', '{', or a literal",
         {"broken.json", "-o", "page.png"}},
        {1,
         "empty.json: line 1, column 1: is not valid JSON: unexpected end of input; "
         "expected '[', '{', or a literal",
         {"empty.json", "-o", "page.png"}},
        {1, "none.json: No such file or directory", {"none.json", "-o", "page.png"}},
        {1, "folder.json: is not a file", {"folder.json", "-o", "page.png"}},
        {2,
         "page.gif: ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .svg .ps",
         {"good.json", "-o", "page.gif"}},
        {2,
         "--save: does not go with --series, whose pages are many",
         {"good.json", "--series", "a.csv", "-o", "page.png", "--save", "other.json"}},
        {2,
         "size.json: is a second page file",
         {"good.json", "data/scene.tif", "size.json", "-o", "page.png"}},
        {1,
         "good.json: --title: the page has no title",
         {"good.json", "-o", "page.png", "--title", "A"}},
        {1,
         "good.json: --units: the page has no scale bar",
         {"good.json", "-o", "page.png", "--units", "mi"}},
        {1,
         "titles.json: --title-size: the page has 2 of its kind, and none is called "
         "\"title\"",
         {"titles.json", "-o", "page.png", "--title-size", "12"}},
        {1,
         "good.json: would replace good.json, which the page is drawn from",
         {"good.json", "--size", "A3", "--save", "good.json"}},
        {2, "--output or --save is required: see map_page --help", {"good.json"}},
        {2, "page.txt: does not end in .json", {"data/scene.tif", "--save", "page.txt"}},
        {1,
         "none/page.json: No such file or directory",
         {"data/scene.tif", "--save", "none/page.json"}},
        {1,
         "none/page.json: No such file or directory",
         {"data/scene.tif", "-o", "page.png", "--save", "none/page.json"}},
    };
    for (const ErrorRow& row : rows) {
        const Result result = Run(row.arguments);
        EXPECT_EQ(result.status, row.status) << row.line;
        EXPECT_EQ(result.err, "map_page: " + row.line + "\n");
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(ContentsOf(folder.Path("page.png")), before) << row.line;
        EXPECT_EQ(folder.Names(), names) << row.line;
    }
}

struct TemplateRow {
    Arguments options;
    std::vector<std::string> says;  ///< what the page that is saved then says
};

TEST_F(PageFile, SaysWhatItDoesUnlessAnOptionSaysOtherwise) {
    fs::copy(folder.Path("logo.png"), folder.Path("data/other.png"));
    ASSERT_EQ(Run({"data/scene.tif", "--title", "A scene", "--picture", "logo.png",
                   "--save", "page.json"})
                  .status,
              0);
    const TemplateRow rows[] = {
        {{"--title", "Another"}, {R"("text": "Another")"}},
        {{"--title-font", "Times New Roman", "--title-style", "italic"},
         {R"("font": "Times New Roman")", R"("fontStyle": "italic")"}},
        {{"--title-size", "12"}, {R"("fontSize": 16.0)"}},
        {{"--picture", "data/other.png"}, {R"("path": "data/other.png")"}},
        {{"--legend-title", "Key", "--legend-font", "Times New Roman"},
         {R"("title": "Key")", R"("titleFont": "Times New Roman")",
          R"("fileNameFont": "Times New Roman")"}},
        {{"data/classes.tif"}, {R"("data/classes.tif")"}},
        {{"--extent", "500000", "8999000", "500900", "8999900"},
         {R"("right": 500900.0)"}},
        {{"--scale", "1:5000", "--numeric-scale"},
         {R"("scale": 5000.0)", R"("denominator": 5000.0)"}},
        {{"--numeric-scale", "--border", "red"}, {R"("type": "numeric-scale")"}},
        {{"--numeric-scale", "--scale-bar", "none"}, {R"("type": "numeric-scale")"}},
        {{"--stretch", "stddev", "2", "--bands", "3,2,1", "--nodata", "0"},
         {R"("stretch": "stddev 2")", R"("bands": "3,2,1")", R"("noData": "0")"}},
        {{"--scale-bar", "line2", "--divisions", "3", "--subdivisions", "5"},
         {R"("type": "scale-bar-line2")", R"("divisions": 3)", R"("subdivisions": 5)",
          R"("scaleBarType": "line2")"}},
        {{"--units", "yd", "--unit-position", "before", "--fit", "width"},
         {R"("unit": "yd")", R"("units": "yd")", R"("unitPosition": "before")",
          R"("fit": "width")"}},
        {{"--unit-name", "Mtr"}, {R"("unit": "m")", R"("units": "Mtr")"}},
        {{"--distances", "map"}, {R"("distances": "map")"}},
        {{"--north-arrow", "four", "--north-angle", "30"},
         {R"("type": "north-arrow-four")", R"("angle": 30.0)", R"("trueNorth": false)"}},
        {{"--size", "A3"}, {R"("width": 1587.40)", R"("height": 1122.51)"}},
        {{"--size", "A3", "--portrait"}, {R"("width": 1122.51)", R"("height": 1587.40)"}},
        {{"--border", "red", "--shadow", "off", "--background", "#11223344"},
         {R"("borderColor": "#FF0000")", R"("shadow": false)",
          R"("fillColor": "#11223344")"}},
    };
    for (const TemplateRow& row : rows) {
        const std::string what = ::testing::PrintToString(row.options);
        Arguments arguments = {"page.json"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        arguments.insert(arguments.end(),
                         {"--save", "new.json", "-o", "a.png", "--dpi", "60"});
        const Result result = Run(arguments);
        ASSERT_EQ(result.status, 0) << what << result.err;
        const std::string before = ContentsOf(folder.Path("page.json"));
        const std::string after = ContentsOf(folder.Path("new.json"));
        std::size_t saidBefore = 0;
        for (const std::string& says : row.says) {
            saidBefore += before.find(says) == std::string::npos ? 0 : 1;
            EXPECT_NE(after.find(says), std::string::npos) << what << says;
        }
        EXPECT_LT(saidBefore, row.says.size()) << what << "changes nothing";
        ASSERT_EQ(Run({"new.json", "-o", "b.png", "--dpi", "60"}).status, 0) << what;
        EXPECT_TRUE(ContentsOf(folder.Path("a.png")) == ContentsOf(folder.Path("b.png")))
            << what;
    }
    for (const Arguments& gone :
         {Arguments{"--scale-bar", "none"}, {"--north-arrow", "none"}, {"--no-legend"}}) {
        Arguments arguments = {"page.json", "--save", "new.json"};
        arguments.insert(arguments.end(), gone.begin(), gone.end());
        const Result result = Run(arguments);
        EXPECT_EQ(result.out.rfind("new.json: 6 elements", 0), 0u) << result.out;
    }
}

TEST_F(PageFile, OnAnotherSheetIsTheSamePageLargerOrSmaller) {
    ASSERT_EQ(Run({"data/scene.tif", "--title", "A scene", "--save", "page.json"}).status,
              0);
    // A4 at 141.4 dpi has the pixels of A3 at 100.
    ASSERT_EQ(Run({"page.json", "-o", "a4.png", "--dpi", "141.42"}).status, 0);
    ASSERT_EQ(Run({"page.json", "--size", "A3", "-o", "a3.png", "--dpi", "100"}).status,
              0);
    const auto inkOf = [this](const std::string& name) {
        const std::string path = folder.Path(name);
        Gdiplus::Bitmap bitmap(std::wstring(path.begin(), path.end()).c_str());
        std::vector<double> squares;
        for (UINT i = 0; i < 16 * 11; ++i) {
            double dark = 0.0;
            for (UINT pixel = 0; pixel < 10'000; pixel += 3) {
                Gdiplus::Color colour;
                bitmap.GetPixel(static_cast<INT>(i % 16 * 100 + pixel % 100),
                                static_cast<INT>(i / 16 * 100 + pixel / 100), &colour);
                dark += 255 - colour.GetGreen();
            }
            squares.push_back(dark / 255.0 / 3334.0);
        }
        return squares;
    };
    const std::vector<double> small = inkOf("a4.png");
    const std::vector<double> large = inkOf("a3.png");
    for (std::size_t i = 0; i < small.size(); ++i) {
        EXPECT_NEAR(large[i], small[i], 0.04) << "square " << i;
    }
}

TEST_F(PageFile, IsNotDrawnStrictlyWhereSomethingIsToBeSaidOfIt) {
    ASSERT_EQ(Run({"data/scene.tif", "--title", "A", "--save", "good.json"}).status, 0);
    host_tests::WriteFile(
        folder.Path("bad.json"),
        std::regex_replace(ContentsOf(folder.Path("good.json")),
                           std::regex("\"text\": \"A\""),
                           "\"text\": \"As long as can be, and longer\""));
    host_tests::WriteFile(folder.Path("list.csv"), "name\na\n");
    const Arguments calls[] = {
        {"data/scene.tif", "--title", "A", "--size", "30x30"},
        {"bad.json"},
        {"bad.json", "--series", "list.csv"},
    };
    for (const Arguments& call : calls) {
        Arguments arguments = call;
        arguments.insert(arguments.end(), {"--dpi", "200", "-o", "{name}.png"});
        const Result lenient = Run(arguments);
        EXPECT_EQ(lenient.status, 0) << call.front();
        EXPECT_NE(lenient.err.find("warning: "), std::string::npos) << call.front();
        fs::remove(folder.Path("{name}.png"));
        fs::remove(folder.Path("a.png"));

        arguments.emplace_back("--strict");
        const std::vector<std::string> names = folder.Names();
        const Result strict = Run(arguments);
        EXPECT_EQ(strict.status, 1) << call.front();
        EXPECT_EQ(strict.out, "") << call.front();
        EXPECT_EQ(strict.err.find(lenient.err), 0u) << strict.err;
        EXPECT_NE(
            strict.err.find(".png: is not written, for --strict allows no warnings\n"),
            std::string::npos)
            << strict.err;
        EXPECT_EQ(folder.Names(), names) << call.front();
    }
    const Result good = Run({"good.json", "-o", "good.png", "--dpi", "50", "--strict"});
    EXPECT_EQ(good.status, 0) << good.err;
}

TEST_F(PageFile, TellsItsSchema) {
    const Result result = Run({"--schema"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, ContentsOf(MAP_SURROUND_PAGE_SCHEMA));
}

}  // namespace
