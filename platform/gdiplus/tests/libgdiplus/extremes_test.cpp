#include <gdiplus.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

constexpr int kWhole[] = {0,       1,         -1,      40000,       -40000,
                          8388608, -16777216, INT_MAX, INT_MAX - 1, INT_MIN};
const REAL kReal[] = {0.0f,
                      -1.0f,
                      1e-30f,
                      8388608.0f,
                      2147483648.0f,
                      1e20f,
                      -1e38f,
                      std::numeric_limits<REAL>::infinity(),
                      std::numeric_limits<REAL>::quiet_NaN()};

/// Nothing that is drawn, wherever it is and however large, brings the program down or
/// the surface to a state in which it draws no more.
class Extremes : public ::testing::Test {
protected:
    ~Extremes() override {
        graphics.ResetTransform();
        const SolidBrush mark(Color(0xFF123456));
        graphics.FillRectangle(&mark, 20, 20, 4, 4);
        EXPECT_EQ(PixelAt(bitmap, 22, 22), 0xFF123456);
    }

    Bitmap bitmap{100, 80};
    Graphics graphics{&bitmap};
    SolidBrush brush{Color(0x80FF0000)};
    FontFamily family{L"Arial"};
};

TEST_F(Extremes, OfShapes) {
    Bitmap picture(3, 2);
    AdjustableArrowCap cap(4.0f, 4.0f);
    for (const DashStyle dash : {DashStyleSolid, DashStyleDash}) {
        Pen pen(Color(0xFF000000), 3.0f);
        pen.SetDashStyle(dash);
        Pen arrow(Color(0xFF000000), 1.0f);
        arrow.SetCustomEndCap(&cap);
        for (const int x : kWhole) {
            for (const int y : kWhole) {
                graphics.DrawLine(&pen, 10, 10, x, y);
                graphics.DrawLine(&arrow, x, y, 10, 10);
                graphics.DrawRectangle(&pen, x, x, y, y);
                graphics.FillRectangle(&brush, x, x, y, y);
                graphics.DrawImage(&picture, x, x, y, y);
                const Point points[] = {{10, 10}, {x, y}, {y, 50}};
                graphics.DrawPolygon(&pen, points, 3);
                graphics.FillPolygon(&brush, points, 3);
                GraphicsPath path;
                path.AddRectangle(Rect(x, x, y, y));
                path.AddLines(points, 3);
                Rect bounds;
                path.GetBounds(&bounds, nullptr, &pen);
                graphics.FillPath(&brush, &path);
            }
        }
    }
}

TEST_F(Extremes, OfPensAndCaps) {
    for (const REAL width : kReal) {
        for (int dash = DashStyleSolid; dash <= DashStyleDashDotDot; ++dash) {
            Pen pen(Color(0xFF000000), width);
            pen.SetDashStyle(static_cast<DashStyle>(dash));
            AdjustableArrowCap cap(width, width);
            pen.SetCustomEndCap(&cap);
            graphics.DrawLine(&pen, 5, 5, 90, 70);
            graphics.DrawRectangle(&pen, 5, 5, 90, 70);
        }
    }
}

TEST_F(Extremes, OfFontsAndPlacesOfText) {
    for (const REAL size : kReal) {
        const Font font(&family, size, FontStyleRegular, UnitPixel);
        const Font plain(&family, 12.0f, FontStyleRegular, UnitPixel);
        for (const wchar_t* text : {L"North", L"\x5317"}) {
            graphics.DrawString(text, -1, &font, PointF(5.0f, 5.0f), &brush);
            graphics.DrawString(text, -1, &plain, PointF(size, size), &brush);
            graphics.DrawString(text, -1, &plain, RectF(5.0f, 5.0f, size, size), nullptr,
                                &brush);
            GraphicsPath path;
            path.AddString(text, -1, &family, FontStyleRegular, size, PointF(), nullptr);
            Rect bounds;
            path.GetBounds(&bounds);
            graphics.FillPath(&brush, &path);
            RectF measured;
            graphics.MeasureString(text, -1, &font, RectF(), &measured);
        }
    }
}

TEST_F(Extremes, OfSizesOfBitmaps) {
    for (const Size& size :
         {Size(INT_MAX, INT_MAX), Size(65536, 65536), Size(INT_MIN, 1)}) {
        Bitmap huge(size.Width, size.Height);
        EXPECT_NE(huge.GetLastStatus(), Ok);
        EXPECT_EQ(huge.GetWidth(), 0u);
    }
}

TEST(CallersMemory, IsNotWrittenPastItsEnd) {
    struct Row {
        PixelFormat format;
        int stride;
        Status status;
    };
    const Row rows[] = {{PixelFormat32bppARGB, 40, Ok},
                        {PixelFormat32bppRGB, -40, Ok},
                        {PixelFormat32bppARGB, 39, InvalidParameter},
                        {PixelFormat32bppARGB, 0, InvalidParameter},
                        {PixelFormat32bppARGB, -39, InvalidParameter},
                        {PixelFormat24bppRGB, 32, NotImplemented}};
    for (const Row& row : rows) {
        std::vector<BYTE> memory(3 * 40);
        BYTE* const first = memory.data() + (row.stride < 0 ? 2 * 40 : 0);
        Bitmap bitmap(10, 3, row.stride, row.format, first);
        EXPECT_EQ(bitmap.GetLastStatus(), row.status) << row.stride;
        Graphics graphics(&bitmap);
        EXPECT_EQ(graphics.Clear(Color(0xFF112233)),
                  row.status == Ok ? Ok : InvalidParameter)
            << row.stride;
    }
}

TEST_F(Extremes, OfTexts) {
    const Font font(&family, 12.0f, FontStyleRegular, UnitPixel);
    for (const std::wstring& text :
         {std::wstring(20000, L'x'), std::wstring(3, L'\0'), std::wstring(1, wchar_t(-1)),
          std::wstring(L"a\nb\tc&d\r\n")}) {
        const int length = static_cast<int>(text.size());
        EXPECT_EQ(graphics.DrawString(text.c_str(), length, &font, PointF(), &brush), Ok);
    }
}

}  // namespace
