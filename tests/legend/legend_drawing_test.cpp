// Drawing, with places worked out by hand.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "legend/square_legend.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using fakes::Raster;
using namespace square;
using namespace recording;

TEST(LegendDrawing, EveryPieceStandsAtItsPlace) {
    const Scaled rows[] = {
        {1.0, 1.0f, CPoint(300, 200), 300 - 128, 200 - 128},
        {0.5, 0.5f, CPoint(300, 200), 300 - 64, 200 - 64},
        {2.0, 2.0f, CPoint(300, 200), 300 - 256, 200 - 256},
        {3.125, 3.125f, CPoint(-5, 7), -5 - 400, 7 - 400},
        {8.0, 8.0f, CPoint(0, 0), -1024, -1024},
    };
    for (const Scaled& row : rows) {
        SCOPED_TRACE(row.scale);
        Square square;
        ASSERT_EQ(square.legend.GetSize(), 256);
        ASSERT_EQ(square.legend.GetAspectRatio(), 1.0f);
        EXPECT_TRUE(Equal(SquareDrawing(row), square.Draw(row.centre, row.scale)));
    }
}

TEST(LegendDrawing, WritesTheWordsThatAreSet) {
    Square square;
    square.legend.SetSourceCaption(L"");
    square.legend.SetBandCaption(L"Band ");
    square.legend.SetHighCaption(L"High: ");
    square.legend.SetLowCaption(L"\u0645\u0646\u062E\u0641\u0636 ");
    // The last is of a fifth source, which there is not.
    square.legend.SetShownSources({{}, {L"Elevation"}, {}, {}, {L"Nothing", false}});
    const Scaled place = {1.0, 1.0f, CPoint(300, 200), 172, 72};
    const Captions words = {"", "Band ", "High: ", "\u0645\u0646\u062E\u0641\u0636 ",
                            "Elevation"};
    EXPECT_TRUE(Equal(SquareDrawing(place, words), square.Draw(place.centre, 1.0)));
}

// In strips as always: of 254, five colours have 51 each, but the last, which has 50.
TEST(LegendDrawing, ARampIsInTheColoursThatAreGiven) {
    const std::vector<Gdiplus::ARGB> given[] = {{0xFF112233},
                                                {0xFF112233, 0x00445566},
                                                {1, 2, 3, 4, 5},
                                                std::vector<Gdiplus::ARGB>(1000, 7)};
    for (const std::vector<Gdiplus::ARGB>& colours : given) {
        SCOPED_TRACE(colours.size());
        Square square;
        LegendSource shown;
        shown.ramp.assign(colours.begin(), colours.end());
        square.legend.SetShownSources({{}, shown});
        const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
        std::vector<Named> expected =
            SquareDrawing({1.0, 1.0f, CPoint(300, 200), 172, 72});
        const std::string last = BrushLook(0xFF010101);
        for (std::size_t k = 0; k < 254; ++k) {
            const Gdiplus::ARGB opaque = colours[k * colours.size() / 254] | 0xFF000000;
            expected[10 + k].line.replace(expected[10 + k].line.find("brush"),
                                          last.size(), BrushLook(opaque));
            if (k == 253) {
                expected[264].line.replace(expected[264].line.find(last), last.size(),
                                           BrushLook(opaque));
            }
        }
        EXPECT_TRUE(Equal(expected, drawing));
    }
}

// Whatever its display type says, which is not asked for.
TEST(LegendDrawing, ASourceWithColoursOfARampIsExplainedByIt) {
    Raster classes(L"classes", DisplayClassified);
    classes.table.items = {{L"one", 1, 2, 3}, {L"two", 1, 2, 3}};
    classes.band.highest = 9.0;
    CMapLegend legend;
    legend.SetDataSouce({&classes});
    legend.SetShownSources({{L"", true, {Gdiplus::Color(0xFF112233)}}});
    Surface surface;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, Square::Ink);
    legend.ResetAspectRatio();
    EXPECT_EQ(legend.GetSize(), 24 + 10 + 12 + 4 * 6);
    recording.Clear();
    legend.Draw(surface.Graphics(), CPoint(0, 35), 1.0);
    EXPECT_EQ(recording.Drawing().size(), 1U + 1U + 1U + 254U + 1U);
    EXPECT_EQ(classes.displayType.Asked(), 0U);
}

TEST(LegendDrawing, LeavesOutTheSourcesThatAreHidden) {
    Square square;
    square.legend.SetShownSources({{L"", false}, {L"", false}, {L"", false}});
    const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
    std::vector<Named> expected = {
        {"title",
         DrawString("T", FontLook("Serif", 12, 1), 172, 72, BrushLook(0xFF112233))},
        {"file classes.tif",
         DrawString(kFileNameCaption + "classes.tif", FontLook("Mono", 10, 4), 172,
                    72 + 8 + 24, BrushLook(0x80445566))}};
    ASSERT_EQ(drawing.size(), expected.size() + 6);
    EXPECT_TRUE(Equal(expected, {drawing.begin(), drawing.begin() + 2}));
    EXPECT_EQ(square.gray.askedForBand, -1);
}

TEST(LegendDrawing, ThatWasNeverMeasuredHasNoLengths) {
    Raster rgb{L"rgb.tif", DisplayRGB};
    CMapLegend legend;
    legend.SetFileNameStyle(Gdiplus::FontStyleUnderline);
    legend.SetDataSouce({&rgb});
    legend.SetSize(100);
    legend.SetAspectRatio(2.0f);
    Surface surface;
    Recording recording(Mode::RecordOnly);
    recording.ScriptBounds({{0, 0, 0, 0}});
    legend.Draw(surface.Graphics(), CPoint(300, 200), 1.0);
    const std::vector<std::string> drawn = recording.Drawing();
    ASSERT_EQ(drawn.size(), 1U + 1U + 2U * 3U);
    const Gdiplus::ARGB colors[] = {0xFFFF0000, 0xFF008000, 0xFF0000FF};
    for (std::size_t band = 0; band < 3; ++band) {
        const std::string label = kBandCaption + std::to_string(band + 1);
        EXPECT_EQ(drawn[2 + 2 * band],
                  FillRectangle(BrushLook(colors[band]), 200, 150, 0, 0));
        EXPECT_EQ(drawn[3 + 2 * band], DrawString(label, "null", 200, 150, kBlack))
            << "GDI+ makes no font without a size";
    }
}

TEST(LegendDrawing, EveryCallInItsOrder) {
    Square square;
    const std::string titleFont = FontLook("Serif", 12, 1);
    const std::string entryFont = FontLook("Arial", 10, 4);
    const std::string fileFont = FontLook("Mono", 10, 4);
    const std::string nearFormat = FormatLook(0, 0);
    const std::string measured = "path[\"T\" \"Serif\" 12]";
    const std::vector<Named> drawing =
        SquareDrawing({1.0, 1.0f, CPoint(300, 200), 172, 72});

    std::vector<Named> expected = {
        {"title family", "GdipCreateFontFamilyFromName \"Serif\""},
        {"title font", "GdipCreateFont " + titleFont},
        {"brush", "GdipCreateSolidFill #FF112233"},
        drawing[0],
        {"entry family", "GdipCreateFontFamilyFromName \"Arial\""},
        {"entry font", "GdipCreateFont " + entryFont},
        {"file-name family", "GdipCreateFontFamilyFromName \"Mono\""},
        {"file-name font", "GdipCreateFont " + fileFont},
        {"path", "GdipCreatePath 0"},
        {"format", "GdipCreateStringFormat 0 0"},
        {"near", "GdipSetStringFormatAlign 0"},
        {"title size", "GdipGetFontSize " + titleFont},
        {"title style", "GdipGetFontStyle " + titleFont},
        {"title outline",
         "GdipAddPathString \"T\" \"Serif\" 12 style 1 at 0 0 0 0 " + nearFormat},
        {"title bounds", "GdipGetPathWorldBoundsI " + measured},
    };
    // The brush takes its colour before each piece, but for the low value of the ramp.
    for (std::size_t i = 1; i < drawing.size(); ++i) {
        const std::string& line = drawing[i].line;
        const std::string color = line.substr(line.find("brush[") + 6, 9);
        const bool low = line.find(kLowCaption) != std::string::npos;
        if (!low) {
            expected.push_back(
                {drawing[i].name + ": colour", "GdipSetSolidFillColor " + color});
        }
        expected.push_back(drawing[i]);
    }
    expected.push_back({"format", "GdipDeleteStringFormat " + nearFormat});
    expected.push_back({"path", "GdipDeletePath " + measured});
    expected.push_back({"file-name font", "GdipDeleteFont " + fileFont});
    expected.push_back({"file-name family", "GdipDeleteFontFamily family[\"Mono\"]"});
    expected.push_back({"entry font", "GdipDeleteFont " + entryFont});
    expected.push_back({"entry family", "GdipDeleteFontFamily family[\"Arial\"]"});
    expected.push_back({"brush", "GdipDeleteBrush " + kBlack});
    expected.push_back({"title font", "GdipDeleteFont " + titleFont});
    expected.push_back({"title family", "GdipDeleteFontFamily family[\"Serif\"]"});
    EXPECT_TRUE(Equal(expected, square.Draw(CPoint(300, 200), 1.0, true)));
}

TEST(LegendDrawing, HalvesOfHeightAndWidthAreRoundedUp) {
    const struct {
        int size;
        float aspect;
        double scale;
        int halfHeight;
        int halfWidth;
    } rows[] = {
        {101, 1.5f, 1.0, 51, 76},     // 50.5 + 0.5, 75.75 + 0.5
        {100, 1.0f, 1.0, 50, 50},     // 50.5, 50.5
        {100, 1.01f, 1.0, 50, 51},    // 101 / 2 = 50.5 + 0.5
        {1, 1.0f, 1.0, 1, 1},         // 1.0, 1.0
        {0, 1.0f, 1.0, 0, 0},         // 0.5, 0.5
        {7, 2.0f, 0.5, 2, 3},         // 3.5 is 3 high: 2.0, 3.5
        {101, 0.5f, 3.125, 158, 79},  // 315.625 is 315 high: 158.0, 79.25
        {-3, 1.0f, 1.0, -1, -1},      // -1.0
        {-4, 1.0f, 1.0, -1, -1},      // -1.5 toward zero
        {4, -2.0f, 1.0, 2, -3},       // 2.5, -3.5
    };
    for (const auto& row : rows) {
        CMapLegend legend;
        legend.SetTitleValue(L"T");
        legend.SetSize(row.size);
        legend.SetAspectRatio(row.aspect);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        legend.Draw(surface.Graphics(), CPoint(500, 600), row.scale);
        EXPECT_TRUE(Equal(
            {{"title", DrawString("T", "null", static_cast<float>(500 - row.halfWidth),
                                  static_cast<float>(600 - row.halfHeight), kBlack)}},
            recording.Drawing()))
            << row.size << " at " << row.scale;
    }
}

TEST(LegendDrawing, ValuesAreTruncatedTowardZero) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        const char* text;
    } rows[] = {{255.9, "255"},
                {-3.7, "-3"},
                {0.0, "0"},
                {-0.9, "0"},
                {0.999, "0"},
                {-1.0, "-1"},
                {65535.0, "65535"},
                {-32768.0, "-32768"},
                {1e300, "2147483647"},
                {-infinity, "-2147483648"},
                {infinity, "2147483647"},
                {std::nan(""), "0"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        Square square;
        square.gray.band.lowest = row.value;
        square.gray.band.highest = row.value;
        const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
        const float x = 172 + 1.8f * 64;
        const std::string font = FontLook("Arial", 10, 4);
        EXPECT_EQ(drawing[9], DrawString(kHighCaption + row.text, font, x, 207, kBlack));
        EXPECT_EQ(drawing[264], DrawString(kLowCaption + row.text, font, x, 206,
                                           BrushLook(0xFF010101)));
    }
}

TEST(LegendDrawing, ValuesAtTheEndsOfTheRampHaveTheDecimalsThatTheyNeed) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double lowest;
        double highest;
        const char* low;
        const char* high;
    } rows[] = {{-3.7, 255.9, "-4", "256"},
                {-0.314, 0.8699, "-0.31", "0.87"},
                {0.0, 9.5, "0.0", "9.5"},
                {0.0, 9.0, "0", "9"},
                {1.0, 99.96, "1", "100"},
                {0.0, 100.4, "0", "100"},
                {0.00012, 0.00034, "0.00012", "0.00034"},
                {0.001, 0.002, "0.001", "0.002"},
                {7.25, 7.25, "7.25", "7.25"},
                {-1234.5, -1234.5, "-1234", "-1234"},
                {0.0, 0.0, "0", "0"},
                {0.0, 1e-300, "0", "0"},
                {1e16, 0.0, "10000000000000000", "0"},
                {-infinity, infinity, "-inf", "inf"},
                {0.0, 1.26e-16, "0.00000000000000000", "0.00000000000000013"},
                {-infinity, 5.25, "-inf", "5"},
                {std::nan(""), 5.25, "nan", "5.25"},
                {5.25, std::nan(""), "5", "nan"},
                {std::nan(""), 0.0, "nan", "0"},
                {std::nan(""), std::nan(""), "nan", "nan"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.high);
        Square square;
        square.legend.SetAlignedLabels(true);
        square.gray.band.lowest = row.lowest;
        square.gray.band.highest = row.highest;
        const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
        const float x = 172 + 1.2f * 64;
        const std::string font = FontLook("Arial", 10, 4);
        // A fifth of a row above the ramp, which begins at 202 and is 24 high, and nine
        // tenths above its end.
        EXPECT_EQ(drawing[9], DrawString(kHighCaption + row.high, font, x, 200, kBlack));
        EXPECT_EQ(drawing[264], DrawString(kLowCaption + row.low, font, x, 217, kBlack));
    }
}

TEST(LegendDrawing, AlignedLabelsAreLevelWithTheirSwatches) {
    Square square;
    square.legend.SetAlignedLabels(true);
    const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
    const std::vector<std::string> plain = Square().Draw(CPoint(300, 200), 1.0);
    ASSERT_EQ(drawing.size(), plain.size());
    const float x = 172 + 1.2f * 64;
    const std::string font = FontLook("Arial", 10, 4);
    // A quarter of a row above swatches at 126, 144 and 162, and at 282, 300 and 318.
    const std::pair<std::size_t, Named> moved[] = {
        {3, {"red", DrawString(kBandCaption + "4", font, x, 123.5f, kBlack)}},
        {5, {"green", DrawString(kBandCaption + "3", font, x, 141.5f, kBlack)}},
        {7, {"blue", DrawString(kBandCaption + "1", font, x, 159.5f, kBlack)}},
        {268, {"water", DrawString("water", font, x, 279.5f, kBlack)}},
        {270, {"", DrawString("", font, x, 297.5f, kBlack)}},
        {272, {"forest", DrawString("forest", font, x, 315.5f, kBlack)}}};
    std::vector<std::string> expected = plain;
    expected[9] = drawing[9];  // the values of the ramp, as above
    expected[264] = drawing[264];
    for (const auto& [at, label] : moved) {
        expected[at] = label.line;
    }
    EXPECT_EQ(drawing, expected);
}

TEST(LegendDrawing, BandNumbersAreShownFromOne) {
    const struct {
        int band;
        const char* text;
    } rows[] = {{0, "1"},
                {6, "7"},
                {-1, "0"},
                {-2147483647 - 1, "-2147483647"},
                {2147483646, "2147483647"},
                {2147483647, "2147483647"}};
    for (const auto& row : rows) {
        Square square;
        square.rgb.red = row.band;
        EXPECT_EQ(square.Draw(CPoint(300, 200), 1.0)[3],
                  DrawString(kBandCaption + row.text, FontLook("Arial", 10, 4),
                             172 + 1.8f * 64, 126, kBlack));
    }
}

TEST(LegendDrawing, TheRampAsksTheFirstBandForAnEstimate) {
    Square square;
    square.Draw(CPoint(300, 200), 1.0);
    EXPECT_EQ(square.gray.askedForBand, 0);
    EXPECT_TRUE(square.gray.band.askedToApproximate);
}

TEST(LegendDrawing, ABandThatCannotTellItsValuesHasNought) {
    for (const bool aligned : {false, true}) {
        Square nought;
        nought.legend.SetAlignedLabels(aligned);
        nought.gray.band.lowest = nought.gray.band.highest = 0.0;
        const std::vector<std::string> drawing = nought.Draw(CPoint(300, 200), 1.0);
        Square square;
        square.legend.SetAlignedLabels(aligned);
        square.gray.band.computable = false;
        EXPECT_EQ(square.Draw(CPoint(300, 200), 1.0), drawing);
        square.gray.hasBand = false;
        EXPECT_EQ(square.Draw(CPoint(300, 200), 1.0), drawing);
    }
}

TEST(LegendDrawing, AClassThatTellsNoColourIsBlack) {
    Square square;
    for (fakes::Item& item : square.classes.table.items) {
        item.tellsColour = false;
    }
    const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
    EXPECT_EQ(drawing.at(drawing.size() - 2), FillRectangle(kBlack, 172, 318, 64, 6));
}

TEST(LegendDrawing, AMissingClassLeavesItsRowEmpty) {
    Square square;
    square.classes.table.missing = 1;
    const std::vector<std::string> drawing = square.Draw(CPoint(300, 200), 1.0);
    std::vector<Named> expected = SquareDrawing({1.0, 1.0f, CPoint(300, 200), 172, 72});
    expected.erase(expected.end() - 4, expected.end() - 2);
    EXPECT_TRUE(Equal(expected, drawing));
}

TEST(LegendDrawing, LengthsBeyondTheLimitStayAtIt) {
    const struct {
        CPoint centre;
        float left, top;
    } rows[] = {
        {CPoint(-2147483647 - 1, -2147483647 - 1), -2147483648.0f, -2147483648.0f},
        {CPoint(-2000000000, 2000000000), -2147483648.0f, 1500000000.0f},
    };
    for (const auto& row : rows) {
        CMapLegend legend;
        legend.SetSize(1000000000);
        legend.SetAspectRatio(1.0f);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        legend.Draw(surface.Graphics(), row.centre, 1.0);
        EXPECT_TRUE(Equal(
            {{"title", DrawString("", "null", row.left, row.top, BrushLook(0xFF000000))}},
            recording.Drawing()));
    }
}

}  // namespace
