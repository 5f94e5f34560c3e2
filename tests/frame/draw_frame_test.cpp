#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "map_surround/frame.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr Gdiplus::ARGB kBorder = 0xFF204060;
constexpr Gdiplus::ARGB kFill = 0xFFFFF0E0;
constexpr Gdiplus::ARGB kShadow = 0x80404040;
constexpr Gdiplus::ARGB kTransparent = 0x00FFFFFF;

std::vector<std::string> FrameTrace(CFrameBase& frame, CRect rect) {
    Surface surface;
    Recording recording(Mode::RecordOnly);
    frame.DrawFrame(surface.Graphics(), rect);
    return recording.Lines();
}

CFrameBase ColouredFrame() {
    CFrameBase frame;
    frame.BorderColor = Gdiplus::Color(kBorder);
    frame.FillColor = Gdiplus::Color(kFill);
    frame.ShadowColor = Gdiplus::Color(kShadow);
    return frame;
}

// A rectangle 100 wide and 50 high from (10, 20), with border gaps 3 and 4, fill gaps 1
// and 2, a border 2 wide, and a shadow that falls a quarter right and a half down.
TEST(DrawFrame, DrawsWhatIsSwitchedOnInOrder) {
    const std::string pen = PenLook(kBorder, 2);
    const std::string dashedPen = PenLook(kBorder, 2, 1);
    const std::string shadow = BrushLook(kShadow);
    const std::string fill = BrushLook(kFill);
    for (int switches = 0; switches < 16; ++switches) {
        CFrameBase frame = ColouredFrame();
        frame.DrawBorder = (switches & 1) != 0;
        frame.DrawFill = (switches & 2) != 0;
        frame.DrawShadow = (switches & 4) != 0;
        frame.DashedBorder = (switches & 8) != 0;
        frame.BorderWidth = 2.0f;
        frame.BorderGapX = 3;
        frame.BorderGapY = 4;
        frame.FillGapX = 1;
        frame.FillGapY = 2;
        frame.ShadowRatioX = 0.25f;
        frame.ShadowRatioY = 0.5f;

        std::vector<Named> expected;
        if (frame.DrawBorder) {
            expected.push_back({"border pen", "GdipCreatePen1 #FF204060 2 unit 0"});
            if (frame.DashedBorder) {
                expected.push_back({"dashes", "GdipSetPenDashStyle 1"});
            }
            const std::string& used = frame.DashedBorder ? dashedPen : pen;
            // 10 - 3, 20 - 4, 100 + 2 * 3, 50 + 2 * 4
            expected.push_back({"border", DrawRectangle(used, 7, 16, 106, 58)});
            expected.push_back({"border pen", "GdipDeletePen " + used});
        }
        if (frame.DrawShadow) {
            expected.push_back({"shadow brush", "GdipCreateSolidFill #80404040"});
            // 110 + 2 + 3, 20 + 25 + 2 + 4, 25 + 2 + 3, 50 + 2 + 4
            expected.push_back({"right strip", FillRectangle(shadow, 115, 51, 30, 56)});
            // 10 + 25 + 2 + 3, 70 + 2 + 4, 100 + 2 + 3, 25 + 2 + 4
            expected.push_back({"bottom strip", FillRectangle(shadow, 40, 76, 105, 31)});
            expected.push_back({"shadow brush", "GdipDeleteBrush " + shadow});
        }
        if (frame.DrawFill) {
            expected.push_back({"fill brush", "GdipCreateSolidFill #FFFFF0E0"});
            // 10 - 1, 20 - 2, 100 + 2 * 1, 50 + 2 * 2
            expected.push_back({"fill", FillRectangleI(fill, 9, 18, 102, 54)});
            expected.push_back({"fill brush", "GdipDeleteBrush " + fill});
        }
        EXPECT_TRUE(Equal(expected, FrameTrace(frame, CRect(10, 20, 110, 70))))
            << "switches " << switches;
        EXPECT_EQ(frame.BorderWidth, 2.0f) << "switches " << switches;
    }
}

TEST(DrawFrame, CountsOnlyTheValueOneAsDashed) {
    struct Row {
        unsigned char byte;
        bool dashed;
    };
    for (const Row& row : {Row{0, false}, Row{1, true}, Row{2, false}, Row{255, false}}) {
        CFrameBase frame = ColouredFrame();
        frame.DrawBorder = true;
        std::memcpy(&frame.DashedBorder, &row.byte, 1);
        const std::vector<std::string> lines = FrameTrace(frame, CRect(0, 0, 9, 9));
        EXPECT_EQ(lines.at(1) == "GdipSetPenDashStyle 1", row.dashed) << +row.byte;
        EXPECT_EQ(lines.size(), row.dashed ? 4u : 3u) << +row.byte;

        CFrameBase copy(frame);
        EXPECT_EQ(FrameTrace(copy, CRect(0, 0, 9, 9)), lines) << +row.byte;
    }
}

TEST(DrawFrame, DrawsABorderOfNoWidthTransparent) {
    for (const float width : {0.0f, -0.0f}) {
        for (const bool dashed : {false, true}) {
            CFrameBase frame = ColouredFrame();
            frame.DrawBorder = true;
            frame.DashedBorder = dashed;
            frame.BorderWidth = width;
            std::vector<Named> expected = {{"pen", "GdipCreatePen1 #FF204060 0 unit 0"}};
            if (dashed) {
                expected.push_back({"dashes", "GdipSetPenDashStyle 1"});
            }
            const std::string pen = PenLook(kTransparent, 0, dashed ? 1 : 0);
            expected.push_back({"colour", "GdipSetPenColor #00FFFFFF"});
            expected.push_back({"border", DrawRectangle(pen, 10, 20, 100, 50)});
            expected.push_back({"pen", "GdipDeletePen " + pen});
            EXPECT_TRUE(Equal(expected, FrameTrace(frame, CRect(10, 20, 110, 70))));
        }
    }
}

// The rectangle is 101 wide and 51 high from (10, 20), with a pen of 2 and gaps of 3 and
// 4; a strip is moved by whole pixels.
TEST(DrawFrame, DropsTheShadowByItsRatios) {
    const float third = 1.0f / 3.0f;
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const struct {
        const char* name;
        float ratioX;
        float ratioY;
        float fallX;  ///< 101 times the ratio
        float fallY;  ///< 51 times
        float penOfRight;
        float penOfBottom;
        float penAfter;
    } rows[] = {
        {"exact", 0.5f, 0.25f, 50.5f, 12.75f, 2, 2, 2},
        // 33.666668; 51 / 3 is rounded up to a whole
        {"thirds, in floats", third, third, 101.0f * third, 17.0f, 2, 2, 2},
        {"up and left, toward zero", -0.5f, -0.25f, -50.5f, -12.75f, 2, 2, 2},
        {"not right: neither strip has the pen's width", 0, 0.25f, 0, 12.75f, 0, 0, 2},
        {"not down: the bottom strip has none", 0.5f, 0, 50.5f, 0, 2, 0, 2},
        {"neither: the width stays 0", 0, 0, 0, 0, 0, 0, 0},
        {"minus zero is zero", -0.0f, -0.0f, 0, 0, 0, 0, 0},
        {"no number moves nothing", nan, nan, nan, nan, 2, 2, 2},
    };
    const std::string brush = BrushLook(kShadow);
    const auto whole = [](float fall) { return std::isnan(fall) ? 0 : std::trunc(fall); };
    for (const auto& row : rows) {
        CFrameBase frame = ColouredFrame();
        frame.DrawShadow = true;
        frame.BorderWidth = 2.0f;
        frame.BorderGapX = 3;
        frame.BorderGapY = 4;
        frame.ShadowRatioX = row.ratioX;
        frame.ShadowRatioY = row.ratioY;
        const float right = row.penOfRight;
        const float bottom = row.penOfBottom;
        EXPECT_TRUE(Equal(
            {{"brush", "GdipCreateSolidFill #80404040"},
             {"right",
              FillRectangle(brush, 111 + right + 3, 20 + whole(row.fallY) + right + 4,
                            row.fallX + right + 3, 51 + right + 4)},
             {"bottom",
              FillRectangle(brush, 10 + whole(row.fallX) + bottom + 3, 71 + bottom + 4,
                            101 + bottom + 3, row.fallY + bottom + 4)},
             {"brush", "GdipDeleteBrush " + brush}},
            FrameTrace(frame, CRect(10, 20, 111, 71))))
            << row.name;
        EXPECT_EQ(frame.BorderWidth, row.penAfter) << row.name;
    }
}

TEST(DrawFrame, DrawsTheNextBorderTransparentAfterAShadowThatFallsNowhere) {
    CFrameBase frame = ColouredFrame();
    frame.DrawBorder = true;
    frame.DrawShadow = true;
    frame.BorderWidth = 2.0f;
    const std::vector<std::string> first = FrameTrace(frame, CRect(0, 0, 9, 9));
    const std::vector<std::string> second = FrameTrace(frame, CRect(0, 0, 9, 9));
    EXPECT_EQ(first.at(1), DrawRectangle(PenLook(kBorder, 2), 0, 0, 9, 9));
    EXPECT_EQ(second.at(2), DrawRectangle(PenLook(kTransparent, 0), 0, 0, 9, 9));
}

TEST(DrawFrame, KeepsRectanglesWithin32Bits) {
    const int low = kLowest;
    const int top = kHighest;
    const CRect box(0, 0, 10, 10);
    const CRect plane(low, low, top, top);
    const struct {
        const char* name;
        CRect rect;
        int gapX, gapY;
        int x, y, width, height;
    } rows[] = {
        {"empty", CRect(5, 6, 5, 6), 0, 0, 5, 6, 0, 0},
        {"inside out", CRect(110, 70, 10, 20), 0, 0, 110, 70, -100, -50},
        {"gaps inwards", CRect(10, 20, 110, 70), -3, -4, 13, 24, 94, 42},
        {"gaps wider than the rectangle", box, -20, -30, 20, 30, -30, -50},
        {"the whole plane", plane, 0, 0, low, low, top, top},
        {"the plane, inside out", CRect(top, top, low, low), 0, 0, top, top, low, low},
        {"huge gaps", box, top, top, -top, -top, top, top},
        {"huge gaps at the corner", CRect(-10, -10, 0, 0), top, top, low, low, top, top},
        {"huge gaps inwards", box, low, low, top, top, low, low},
        // -2^31 - (2^31 - 1) is below; the width is 2 * (2^31 - 1) more than 2^32 - 1
        {"everything at once", plane, top, top, low, low, top, top},
    };
    for (const auto& row : rows) {
        CFrameBase frame = ColouredFrame();
        frame.DrawBorder = true;
        frame.DrawFill = true;
        frame.DrawShadow = true;
        frame.ShadowRatioX = frame.ShadowRatioY = 0.5f;
        frame.BorderGapX = frame.FillGapX = row.gapX;
        frame.BorderGapY = frame.FillGapY = row.gapY;
        const std::vector<std::string> lines = FrameTrace(frame, row.rect);
        ASSERT_EQ(lines.size(), 10u) << row.name;
        EXPECT_EQ(lines[1],
                  DrawRectangle(PenLook(kBorder, 1), row.x, row.y, row.width, row.height))
            << row.name;
        EXPECT_EQ(lines[8],
                  FillRectangleI(BrushLook(kFill), row.x, row.y, row.width, row.height))
            << row.name;
    }
}

TEST(DrawFrame, DropsTheShadowInFloats) {
    const int low = kLowest;
    const int top = kHighest;
    const float side = 4294967296.0f;  // 2^32 - 1, as a float
    const float edge = 2147483648.0f;  // 2^31 - 1, as a float
    const struct {
        CRect rect;
        float ratioX, ratioY;
        std::array<float, 4> right, bottom;
    } rows[] = {
        // 0.7 as a float is a little less; times 10 and times 50 it is rounded to 7 and
        // 35, where a double would stay below and lose a pixel.
        {CRect(0, 0, 50, 10), 0.7f, 0.7f, {50, 7, 35, 10}, {35, 10, 50, 7}},
        // 2^30 to the right, and 2^32 down, which moves the edge by 2^31 - 1 at most.
        {CRect(low, low, top, top),
         0.25f,
         1.0f,
         {edge, -1, side / 4, side},
         {-edge / 2, edge, side, side}},
        // The strips begin at 2^31 - 101 and four times 100 further: 2^31 + 299, of which
        // a float keeps 2^31 + 256.
        {CRect(top - 100, top - 100, top, top),
         4.0f,
         4.0f,
         {edge, edge + 256, 400, 100},
         {edge + 256, edge, 100, 400}},
    };
    const std::string brush = BrushLook(kShadow);
    for (const auto& row : rows) {
        CFrameBase frame = ColouredFrame();
        frame.DrawShadow = true;
        frame.BorderWidth = 0.0f;
        frame.ShadowRatioX = row.ratioX;
        frame.ShadowRatioY = row.ratioY;
        const std::vector<std::string> lines = FrameTrace(frame, row.rect);
        const auto strip = [&brush](const std::array<float, 4>& box) {
            return FillRectangle(brush, box[0], box[1], box[2], box[3]);
        };
        EXPECT_EQ(lines.at(1), strip(row.right));
        EXPECT_EQ(lines.at(2), strip(row.bottom));
    }
}

TEST(DrawFrame, CoversTheShadowWithTheFill) {
    Surface surface(60, 60);
    CFrameBase frame = ColouredFrame();
    frame.DrawBorder = frame.DrawFill = frame.DrawShadow = true;
    frame.BorderColor = Gdiplus::Color(0xFF0000FF);
    frame.ShadowColor = Gdiplus::Color(0xFF808080);
    frame.FillColor = Gdiplus::Color(0xFF00FF00);
    frame.BorderGapX = frame.BorderGapY = 3;
    frame.BorderWidth = 2.0f;
    frame.ShadowRatioX = frame.ShadowRatioY = 0.2f;
    frame.DrawFrame(surface.Graphics(), CRect(10, 10, 40, 40));
    struct Row {
        const char* name;
        int x;
        int y;
        Gdiplus::ARGB color;
    };
    const Row rows[] = {
        {"fill", 25, 25, 0xFF00FF00},
        {"between fill and border", 8, 25, 0xFFFFFFFF},
        {"border", 7, 25, 0xFF0000FF},
        {"right strip", 50, 40, 0xFF808080},
        {"bottom strip", 40, 50, 0xFF808080},
        {"page", 3, 3, 0xFFFFFFFF},
    };
    for (const Row& row : rows) {
        Gdiplus::Color color;
        surface.Bitmap().GetPixel(row.x, row.y, &color);
        EXPECT_EQ(Hex(color.GetValue()), Hex(row.color)) << row.name;
    }
}

}  // namespace
