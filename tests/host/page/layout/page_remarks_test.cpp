#include "page/layout/page_remarks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "page/catalogue.h"
#include "page/document/document_test.h"
#include "page/document/page_text.h"
#include "page/layout/text_size.h"

namespace {

using PageRemarks = host_tests::DocumentTest;

/// An item at a place on a sheet of 400 x 300 units, drawn with a border.
std::string Item(const std::string& type, const std::string& box,
                 const std::string& more = "", const std::string& frame = "") {
    return R"({"type": ")" + type + R"(", )" + more + R"("frame": {"border": true, )" +
           frame + box + "}}";
}

std::string At(int left, int top, int width, int height) {
    return "\"left\": " + std::to_string(left) + ", \"top\": " + std::to_string(top) +
           ", \"width\": " + std::to_string(width) +
           ", \"height\": " + std::to_string(height);
}

TEST_F(PageRemarks, TellOfEachElementWhatAReaderWouldStumbleOver) {
    const std::string map =
        Item("map", At(50, 250, 200, 200), R"("rasters": ["scene.tif"], )");
    const std::string neatLine =
        Item("frame", At(10, 290, 380, 280), R"("name": "neat line", )");
    const auto titleAt = [](int left, int top, const std::string& text = "Olinda",
                            const std::string& size = "20",
                            const std::string& name = "title") {
        return Item("title", At(left, top, 100, 28),
                    R"("font": "Arial", "text": ")" + text + R"(", "fontSize": )" + size +
                        R"(, "name": ")" + name + "\", ");
    };
    const std::string title = titleAt(100, 280);
    const std::string logo = R"("path": "logo.png", "size": 48, )";
    const std::string opaque = R"("fill": true, "fillColor": "#FFFFFF", )";
    const auto bar = [](int divisions, int subdivisions, double length) {
        return Item("scale-bar-line", At(50, 80, 300, 60),
                    R"("size": 40, "divisions": )" + std::to_string(divisions) +
                        R"(, "subdivisions": )" + std::to_string(subdivisions) +
                        R"(, "divisionValue": 100, "divisionLength": )" +
                        std::to_string(length) + ", ");
    };
    const struct {
        const char* what;
        std::string elements;
        std::vector<std::string> remarks;  ///< how each begins
    } rows[] = {
        {"a page as it should be", neatLine + "," + map + "," + title, {}},
        {"drawn in another order", title + "," + map + "," + neatLine, {}},
        {"within the map", map + "," + titleAt(60, 240), {}},
        {"before the map", titleAt(60, 240) + "," + map, {"title: is covered by map"}},
        {"over the map's edge",
         map + "," + titleAt(200, 240),
         {"title: lies over the edge of map"}},
        {"under the map's edge", titleAt(200, 240) + "," + map, {"map: lies over title"}},
        {"over the neat line",
         neatLine + "," + titleAt(295, 280),
         {"title: lies over the edge of neat line"}},
        {"under a neat line's edge",
         titleAt(295, 280) + "," + neatLine,
         {"title: lies over the edge of neat line"}},
        {"two titles",
         title + "," + titleAt(150, 270, "Olinda", "20", "sub"),
         {"sub: lies over title"}},
        {"side by side", title + "," + titleAt(200, 280), {}},
        {"on a panel", Item("frame", At(90, 290, 150, 60), "", opaque) + "," + title, {}},
        {"under a panel",
         title + "," +
             Item("frame", At(90, 290, 150, 60), R"("name": "panel", )", opaque),
         {"title: is covered by panel"}},
        {"a title that was made longer",
         titleAt(100, 280, "Olinda and its surroundings"),
         {"title: leaves its frame by "}},
        {"a title without a frame",
         R"({"type": "title", "text": "Olinda", "frame": {"left": 200, "top": 200}})",
         {}},
        {"over the edge of the sheet",
         Item("picture", At(370, 100, 70, 60), logo),
         {"picture: leaves the sheet by 10.6 mm"}},
        {"beside the sheet",
         Item("picture", At(420, 100, 70, 60), logo),
         {"picture: lies beside the sheet"}},
        {"larger than its frame, 64 x 48",
         Item("picture", At(100, 100, 40, 40), logo),
         {"picture: leaves its frame by 3.2 mm"}},
        {"small type",
         titleAt(100, 280, "a", "6"),
         {"title: is written in 4.5 points, smaller than 5"}},
        {"type that is large enough", titleAt(100, 280, "a", "6.7"), {}},
        {"a bar", bar(4, 2, 40.0), {}},
        {"a bar whose numbers meet",
         bar(10, 0, 20.0),
         {"scale-bar: its numbers run into one another"}},
        {"a bar of fifty divisions",
         bar(50, 2, 4.0),
         {"scale-bar: its numbers run into one another",
          "scale-bar: its ticks are less than 0.5 mm apart"}},
        {"a bar of many subdivisions",
         bar(4, 30, 40.0),
         {"scale-bar: its ticks are less than 0.5 mm apart"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const host::Page page = host::ReadPage(host_tests::PageText(row.elements),
                                               host::FilePaths(folder.Path("page.json")));
        const std::vector<std::string> remarks = host::RemarksOf(page);
        EXPECT_EQ(remarks.size(), row.remarks.size())
            << ::testing::PrintToString(remarks);
        for (std::size_t i = 0; i < remarks.size() && i < row.remarks.size(); ++i) {
            EXPECT_THAT(remarks[i], ::testing::StartsWith(row.remarks[i]));
        }
    }
}

/// The em sizes in which an element of 100 units writes, as its manual says.
TEST_F(PageRemarks, KnowTheSmallestTextOfEveryElement) {
    const struct {
        const char* item;
        double units;
    } rows[] = {
        {R"("title", "text": "a", "fontSize": 40)", 40.0},
        {R"("numeric-scale", "fontSize": 24)", 24.0},
        {R"("scale-bar-alternating", "size": 100)", 25.0},
        {R"("north-arrow-one", "size": 100)", 400.0 / 15.0},
        {R"("north-arrow-two", "size": 100)", 200.0 / 15.0},
        {R"("north-arrow-four", "size": 100)", 20.0},
        {R"("north-arrow-eight", "size": 100)", 10.0},
    };
    for (const auto& row : rows) {
        const auto points = host::SmallestText(
            host::ReadItem(R"({"type": )" + std::string(row.item) + "}"));
        ASSERT_TRUE(points.has_value()) << row.item;
        EXPECT_NEAR(*points, row.units * 0.75, 1e-9) << row.item;
    }
    EXPECT_FALSE(host::SmallestText(host::ReadItem(R"({"type": "frame"})")));
    for (const host::CatalogueEntry* const entry : host::StylesOf(SurroundNorthArrow)) {
        const auto arrow = host::NewElement<CNorthArrowBase>(*entry);
        EXPECT_GT(host::LettersOf(*arrow), 0.0) << entry->name;
    }
}

/// A legend's rows are as high as the ink of "Band_1", and so is what it writes.
TEST_F(PageRemarks, KnowHowSmallALegendIs) {
    const auto points = [&](const std::string& more) {
        host::PageItem item = host::ReadItem(
            R"({"type": "legend", "fileNameSize": 40, "titleSize": 60, "rasters": [")" +
            folder.Path("scene.tif") + "\"]" + more + "}");
        host::OpenRasters(item, store);
        return host::SmallestText(item).value_or(0.0) / 0.75;
    };
    const double natural = points("");
    EXPECT_GT(natural, 0.75 * 40.0);
    EXPECT_LE(natural, 40.0);
    EXPECT_LT(points(R"(, "size": 40)"), 0.25 * 40.0);
}

}  // namespace
