// Texts of pages: what is read, and what is told of those that cannot be.

#include "page/document/page_text.h"
#include "map_surround/scale_bar.h"

#include <gmock/gmock.h>

#include <random>
#include <regex>

#include "hostile_files/damage.h"
#include "map_surround/title.h"
#include "page/document/document_test.h"
#include "page/document/item_type.h"
#include "page/document/page_error.h"
#include "system/utf8.h"

namespace {

using host::FilePaths;
using host::ReadPage;
using host_tests::PageOfEveryType;
using host_tests::PageText;
using PageTexts = host_tests::DocumentTest;

std::string ErrorOf(const std::string& text) {
    return host_tests::PageErrorOf([&] { ReadPage(text, {}); });
}

TEST_F(PageTexts, WrongPagesAreToldInOneLineThatNamesThePlace) {
    const std::string deep(100'000, '[');
    const struct {
        std::string text;
        std::string error;
    } rows[] = {
        // No JSON.
        {"",
         "line 1, column 1: is not valid JSON: unexpected end of input; "
         "expected '[', '{', or a literal"},
        {"{\n  \"version\": 1,\n  \"width\" 5\n}",
         "line 3, column 11: is not valid JSON: unexpected number literal; "
         "expected ':'"},
        {std::string("{\"version\": 1}\n\0", 16), "line 2, column 1: is a zero byte"},
        {"{\"version\": 1} x", "line 1, column 16: is not valid JSON: invalid literal"},
        {deep,
         "[0][0][0][0][0][0][0][0][0][0][0][0][0][0][0][0]: nests more than 16 "
         "deep"},
        {"{\"a\":" + deep,
         "a[0][0][0][0][0][0][0][0][0][0][0][0][0][0][0]: nests more "
         "than 16 deep"},
        {"{\"title\": \"\xC3\x28\"}", "line 1, column 13: is not valid UTF-8"},
        {"{\"a\": 1, \"a\": 2}", "a: is given twice"},
        {PageText(R"({"type": "frame"}, {"frame": {"left": 1, "left": 2}})"),
         "elements[1].frame.left: is given twice"},
        {PageText(R"({"type": "title", "size": 1e999})"),
         "elements[0].size: is a number beyond the range of a double"},
        {"[1, 2, 1e999]", "[2]: is a number beyond the range of a double"},
        // No page.
        {"[]", "must be an object"},
        {"5", "must be an object"},
        {"{}", "version: is missing"},
        {R"({"version": 4})", "version: must be from 1 to 3"},
        {R"({"version": 1.0})", "version: must be from 1 to 3"},
        {R"({"version": "1"})", "version: must be from 1 to 3"},
        {R"({"version": 1, "colour": 1})", "colour: is not known"},
        {R"({"version": 1, "a)" + std::string(100, 'b') + R"(": 1})",
         "a" + std::string(35, 'b') + "..." + std::string(21, 'b') + ": is not known"},
        {"{\"version\": 1, \"a\\u0007\\u001b[1m\xC3\xA4\": 1}",
         "a\\x07\\x1B[1m\xC3\xA4: is not known"},
        {R"({"version": 1})", "width: is missing"},
        {R"({"version": 1, "width": "400", "height": 300})", "width: must be a number"},
        {R"({"version": 1, "width": 1e300, "height": 300})",
         "width: must be from 20 to 5000 mm in units of 1/96 inch"},
        {R"({"version": 1, "width": 400, "height": 75})",
         "height: must be from 20 to 5000 mm in units of 1/96 inch"},
        {R"({"version": 1, "width": 400, "height": 300})", "elements: is missing"},
        {R"({"version": 3, "width": 400, "height": 300, "author": 5})",
         "author: must be a text"},
        {R"({"version": 3, "width": 400, "height": 300, "title": "a\u0000"})",
         "title: must be text without zero characters"},
        {R"({"version": 3, "width": 400, "height": 300, "language": "tlh"})",
         "language: must be the code of a supported language"},
        {R"({"version": 1, "width": 400, "height": 300, "elements": {}})",
         "elements: must be a list"},
        // No element.
        {PageText("5"), "elements[0]: must be an object"},
        {PageText("{}"), "elements[0].type: is missing"},
        {PageText(R"({"type": "frame"}, {"type": "frame"},
                     {"type": "title", "size": "40"})"),
         "elements[2].size: must be a whole number"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ErrorOf(row.text), row.error) << row.text.substr(0, 200);
    }
}

TEST_F(PageTexts, WrongPropertiesAreTold) {
    const struct {
        std::string element;  ///< its type and what follows it
        std::string error;    ///< below it
    } rows[] = {
        {R"("frame", "text": "")", "text: is not known"},
        {R"("frame", "frame": [])", "frame: must be an object"},
        {R"("frame", "frame": {"name": ""})", "frame.name: is not known"},
        {R"("title", "size": 4.5)", "size: must be a whole number"},
        {R"("title", "size": -1)", "size: must be from 0 to 1e+06"},
        {R"("title", "size": 4294967297)", "size: must have at most 32 bits"},
        {R"("title", "size": 12345678901234567890123)",
         "size: must have at most 32 bits"},
        {R"("title", "fontSize": "big")", "fontSize: must be a number"},
        {R"("title", "fontSize": 1e300)", "fontSize: must be from 0 to 20000"},
        {R"("title", "fontSize": null)", "fontSize: must be a number"},
        {R"("title", "angle": 361)", "angle: must be from -360 to 360"},
        {R"("title", "aspectRatio": -1)", "aspectRatio: must be from 0 to 1e+06"},
        {R"("title", "text": 5)", "text: must be a text"},
        {R"("title", "text": "a\u0000b")", "text: must be text without zero characters"},
        {R"("title", "text": ")" + std::string(10'001, 'x') + "\"",
         "text: must have at most 10000 characters"},
        {R"("title", "color": "#12345")", "color: must be #RRGGBB or #RRGGBBAA"},
        {R"("title", "color": 5)", "color: must be a text"},
        {R"("scale-bar-line", "unitPosition": "above")",
         "unitPosition: must be one of after, before"},
        {R"("scale-bar-line", "unitPosition": 0)", "unitPosition: must be a text"},
        {R"("frame", "frame": {"border": 1})", "frame.border: must be true or false"},
        {R"("map", "rasters": "a.tif")", "rasters: must be a list of files"},
        {R"("map", "rasters": ["a.tif", 5])", "rasters[1]: must be a text"},
        {R"("map", "rasters": [""])", "rasters: must name a file"},
        {R"("map", "extent": [0, 0, 1, 1])",
         "extent: must be null or have left, bottom, right and top"},
        {R"("map", "extent": {"left": 0, "bottom": 0, "right": 1, "up": 1})",
         "extent.top: is missing"},
        {R"("map", "extent": {"left": 0, "bottom": 0, "right": "1", "top": 1})",
         "extent.right: must be a number"},
        {R"("map", "extent": {"left": 1, "bottom": 0, "right": 0, "top": 1})",
         "extent: must have its left below its right and its bottom below its top"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ErrorOf(PageText(R"({"type": )" + row.element + "}")),
                  "elements[0]." + row.error)
            << row.element.substr(0, 200);
    }
    EXPECT_THAT(ErrorOf(PageText(R"({"type": "logo"})")),
                ::testing::StartsWith("elements[0].type: must be one of map, frame, "
                                      "title, picture"));
}

TEST_F(PageTexts, WhatIsLeftOutHasItsDefaultAndIsMeasured) {
    const host::Page page =
        ReadPage(PageText(R"({"type": "title", "text": "Olinda", "font": "Arial"})"), {});
    ASSERT_EQ(page.Items().size(), 1u);
    const auto& title = *host::ElementOf<CMapTitle>(page.Items().front());
    CMapTitle expected;
    expected.SetFontValue(L"Olinda");
    expected.SetFontStyle(L"Arial");
    expected.ResetAspectRatio();
    EXPECT_EQ(title.GetSize(), expected.GetSize());
    EXPECT_EQ(title.GetAspectRatio(), expected.GetAspectRatio());
    EXPECT_EQ(host::FrameOf(page.Items().front()).Reserved4, 5);
}

TEST_F(PageTexts, IntegersMayHaveAPointAndNumbersNone) {
    const host::Page page = ReadPage(
        PageText(R"({"type": "title", "size": 40.0, "fontSize": 12, "angle": -90})"), {});
    const auto& title = *host::ElementOf<CMapTitle>(page.Items().front());
    EXPECT_EQ(title.GetSize(), 40);
    EXPECT_EQ(title.GetAngle(), -90.0f);
}

TEST_F(PageTexts, PagesOfEveryTypeTakeTheSameBytesAgain) {
    host::Page page(793.7007874015749, 1122.5196850393702);
    for (const host::ItemType& type : host::ItemTypes()) {
        page.Items().push_back(type.make());
    }
    page.About() = {"Küste", "N. N.", "A map", "sea, land", "ja"};
    const FilePaths paths(folder.Path("page.json"));
    const std::string text = WritePage(page, paths);
    const host::Page again = ReadPage(text, paths);
    EXPECT_EQ(again.About().title + again.About().author + again.About().subject +
                  again.About().keywords + again.About().language,
              "KüsteN. N.A mapsea, landja");
    EXPECT_EQ(again.Width(), 793.7007874015749);
    EXPECT_EQ(again.Height(), 1122.5196850393702);
    EXPECT_EQ(again.Items().size(), host::ItemTypes().size());
    EXPECT_EQ(WritePage(again, paths), text);
}

/// A page of every type whose every colour is this one.
std::string PageOfColour(int version, const std::string& colour) {
    // As version 1 has every bar, which has no word for that.
    const std::string inexact = std::regex_replace(WritePage(PageOfEveryType(), {}),
                                                   std::regex("( *\"exact\": )true,\n"),
                                                   version == 1 ? "" : "$1false,\n");
    const std::string text =
        std::regex_replace(inexact, std::regex("\"#[0-9A-F]+\""), "\"" + colour + "\"");
    return std::regex_replace(text, std::regex("\"version\": 3"),
                              "\"version\": " + std::to_string(version));
}

TEST_F(PageTexts, HasTheAlphaFirstInVersion1AndLastSince) {
    const struct {
        std::string first;   ///< as in a page of version 1
        std::string second;  ///< as in a page of version 2
    } rows[] = {
        {"#112233", "#112233"}, {"#44112233", "#11223344"}, {"#00ffaa00", "#FFAA0000"}};
    for (const auto& row : rows) {
        const std::string newest = PageOfColour(3, row.second);
        EXPECT_EQ(WritePage(ReadPage(newest, {}), {}), newest);
        EXPECT_EQ(WritePage(ReadPage(PageOfColour(2, row.second), {}), {}), newest);
        EXPECT_EQ(WritePage(ReadPage(PageOfColour(1, row.first), {}), {}), newest);
    }
    for (const char* none : {"#12345", "x11223344", "112233445", "#1122334G"}) {
        EXPECT_EQ(ErrorOf(PageOfColour(1, none)),
                  "elements[0].frame.borderColor: must be #RRGGBB or #AARRGGBB in "
                  "version 1")
            << none;
        EXPECT_EQ(ErrorOf(PageOfColour(2, none)),
                  "elements[0].frame.borderColor: must be #RRGGBB or #RRGGBBAA")
            << none;
    }
}

TEST_F(PageTexts, OfVersion1IsOtherwiseAsWrongAsLaterOnes) {
    for (const char* elements : {"5", "{}", R"({"type": "logo", "color": "#12"})",
                                 R"({"type": "title", "color": 5})",
                                 R"({"type": 5, "frame": {"borderColor": "#FF000000"}})",
                                 R"({"type": "frame", "frame": 5})"}) {
        const std::string error = ErrorOf(PageText(elements));
        EXPECT_NE(error, "") << elements;
        EXPECT_EQ(ErrorOf(PageText(elements, 1)), error) << elements;
    }
    EXPECT_EQ(ErrorOf(R"({"version": 1, "width": 400, "height": 300, "elements": 5})"),
              "elements: must be a list");
}

// As the bars of their time did, which translated some words.
TEST_F(PageTexts, UpToVersion2HasTheUnitsThatItsBarsWrote) {
    const auto unitOf = [](int version, const std::string& rest) {
        const host::Page page =
            ReadPage(PageText(R"({"type": "scale-bar-line")" + rest + "}", version), {});
        return host::ElementOf<CScaleBarBase>(page.Items().front())->GetUnitsName();
    };
    for (const int version : {1, 2, 3}) {
        const bool isOld = version < 3;
        EXPECT_EQ(unitOf(version, R"(, "units": "metre")"), isOld ? L"米" : L"metre");
        EXPECT_EQ(unitOf(version, R"(, "units": "km")"), L"km");
        EXPECT_EQ(unitOf(version, ""), L"单位");
    }
    EXPECT_EQ(ErrorOf(PageText(R"({"type": "scale-bar-line", "units": 5})", 2)),
              "elements[0].units: must be a text");
    EXPECT_NE(
        ErrorOf(PageText("{\"type\": \"scale-bar-line\", \"units\": \"a\\u0000\"}", 2)),
        "");
}

TEST_F(PageTexts, PathsAreRelativeToTheFile) {
    const std::string above = folder.Path();
    const FilePaths paths(above + "/maps/page.json");
    const struct {
        std::string inMemory;
        std::string inFile;
    } rows[] = {
        {above + "/maps/a.tif", "a.tif"},
        {above + "/b.tif", "../b.tif"},
        {above + "/maps/deep/c d.tif", "deep/c d.tif"},
        {"/vsizip/a.zip/b.tif", "/vsizip/a.zip/b.tif"},
        {"NETCDF:grid.nc:depth", "NETCDF:grid.nc:depth"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(paths.ToFile(row.inMemory), row.inFile);
        EXPECT_EQ(paths.FromFile(row.inFile), row.inMemory);
    }
    EXPECT_EQ(paths.FromFile("/data/x.tif"), "/data/x.tif");
    EXPECT_EQ(FilePaths("page.json").FromFile("a.tif"), "a.tif");
    EXPECT_EQ(FilePaths("page.json").ToFile("a.tif"), "a.tif");
    EXPECT_EQ(FilePaths().ToFile(above + "/b.tif"), above + "/b.tif");
    std::filesystem::create_directory(above + "/maps");
    const std::string odd = folder.Write("maps/a:b.tif", "x");
    EXPECT_EQ(paths.ToFile(odd), "./a:b.tif");
    EXPECT_EQ(paths.FromFile("./a:b.tif"), odd);
}

TEST_F(PageTexts, LoadingTellsWhyAFileCannotBeRead) {
    EXPECT_THROW(host::LoadPage(folder.Path("none.json")), std::runtime_error);
    EXPECT_THROW(host::LoadPage(folder.Path()), std::runtime_error);
    std::filesystem::resize_file(folder.Path("scene.tif"), 17u << 20);
    EXPECT_THROW(host::LoadPage(folder.Path("scene.tif")), std::runtime_error);
}

TEST_F(PageTexts, DamagedPagesAreReadOrRefused) {
    const std::string text = WritePage(PageOfEveryType(), {});
    int refused = 0;
    for (unsigned seed = 0; seed < 2000; ++seed) {
        std::mt19937 random(seed);
        const bool asText = seed % 2 == 0;
        const std::string error = ErrorOf(asText ? hostile_files::DamageText(text, random)
                                                 : hostile_files::Damage(text, random));
        refused += error.empty() ? 0 : 1;
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
        std::wstring valid;
        EXPECT_TRUE(host::Widen(error, valid)) << error;
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 2000);
}

}  // namespace
