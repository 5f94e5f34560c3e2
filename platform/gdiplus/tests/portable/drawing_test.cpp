#include <gdiplus.h>
#include <gtest/gtest.h>

#include <memory>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

constexpr ARGB kWhite = 0xFFFFFFFF;
constexpr ARGB kRed = 0xFFFF0000;
constexpr ARGB kBlue = 0xFF0000FF;

class Drawing : public ::testing::Test {
protected:
    Drawing() { graphics.Clear(Color(kWhite)); }

    Bitmap bitmap{40, 30};
    Graphics graphics{&bitmap};
    Pen pen{Color(kRed)};
    SolidBrush brush{Color(kBlue)};
};

TEST_F(Drawing, StartsTransparentAndClears) {
    Bitmap fresh(3, 2);
    EXPECT_EQ(PixelAt(fresh, 0, 0), 0u);
    EXPECT_EQ(fresh.GetWidth(), 3u);
    EXPECT_EQ(fresh.GetHeight(), 2u);
    EXPECT_EQ(fresh.GetPixelFormat(), PixelFormat32bppARGB);
    EXPECT_EQ(fresh.GetType(), ImageTypeBitmap);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), 0);
    graphics.Clear(Color(kRed));
    EXPECT_EQ(PixelsOtherThan(bitmap, kRed), 0);
}

TEST_F(Drawing, FillsARectangleUpToButNotIncludingItsRight) {
    EXPECT_EQ(graphics.FillRectangle(&brush, 5, 6, 10, 8), Ok);
    EXPECT_EQ(PixelAt(bitmap, 5, 6), kBlue);
    EXPECT_EQ(PixelAt(bitmap, 14, 13), kBlue);
    EXPECT_EQ(PixelAt(bitmap, 15, 13), kWhite);
    EXPECT_EQ(PixelAt(bitmap, 14, 14), kWhite);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), 10 * 8);
}

TEST_F(Drawing, OutlinesARectangleIncludingItsRight) {
    EXPECT_EQ(graphics.DrawRectangle(&pen, Rect(5, 6, 10, 8)), Ok);
    for (const Point& on : {Point(5, 6), Point(15, 6), Point(15, 14), Point(5, 14)}) {
        EXPECT_EQ(PixelAt(bitmap, on.X, on.Y), kRed) << on.X << ',' << on.Y;
    }
    EXPECT_EQ(PixelAt(bitmap, 10, 10), kWhite);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), 2 * (10 + 8));
}

TEST_F(Drawing, DrawsALineInThePensColour) {
    EXPECT_EQ(graphics.DrawLine(&pen, Point(3, 4), Point(20, 4)), Ok);
    EXPECT_EQ(PixelAt(bitmap, 10, 4), kRed);
    EXPECT_EQ(PixelAt(bitmap, 10, 3), kWhite);
    EXPECT_EQ(PixelAt(bitmap, 10, 5), kWhite);
    pen.SetColor(Color(kBlue));
    EXPECT_EQ(graphics.DrawLine(&pen, 3.0f, 8.0f, 20.0f, 8.0f), Ok);
    EXPECT_EQ(PixelAt(bitmap, 10, 8), kBlue);
}

TEST_F(Drawing, LeavesGapsInADashedLine) {
    pen.SetDashStyle(DashStyleDash);
    graphics.DrawLine(&pen, 0, 10, 39, 10);
    int drawn = 0;
    for (int x = 0; x < 39; ++x) {
        drawn += PixelAt(bitmap, x, 10) != kWhite;
    }
    // Three on, one off.
    EXPECT_GT(drawn, 20);
    EXPECT_LT(drawn, 39);
}

TEST_F(Drawing, PutsTheArrowOnTheEndOfALine) {
    AdjustableArrowCap cap(4.0f, 4.0f, TRUE);
    Pen arrow(Color(kRed), 2.0f);
    EXPECT_EQ(arrow.SetCustomEndCap(&cap), Ok);
    graphics.DrawLine(&arrow, 2, 15, 35, 15);
    int start = 0;
    int end = 0;
    for (int y = 0; y < 30; ++y) {
        start += PixelAt(bitmap, 8, y) != kWhite;
        end += PixelAt(bitmap, 28, y) != kWhite;
    }
    EXPECT_LE(start, 3) << "as wide as the pen";
    EXPECT_GT(end, start) << "wider where the arrowhead is";
}

TEST_F(Drawing, FillsAPolygonByItsFillMode) {
    // A square within a square, both drawn the same way round.
    const Point points[] = {{2, 2}, {22, 2}, {22, 22}, {2, 22}, {2, 2},
                            {8, 8}, {16, 8}, {16, 16}, {8, 16}, {8, 8}};
    EXPECT_EQ(graphics.FillPolygon(&brush, points, 10, FillModeAlternate), Ok);
    EXPECT_EQ(PixelAt(bitmap, 4, 4), kBlue);
    EXPECT_EQ(PixelAt(bitmap, 12, 12), kWhite) << "a hole";
    EXPECT_EQ(graphics.FillPolygon(&brush, points, 10, FillModeWinding), Ok);
    EXPECT_EQ(PixelAt(bitmap, 12, 12), kBlue) << "no hole";
}

TEST_F(Drawing, ClosesAPolygon) {
    const Point points[] = {{5, 5}, {25, 5}, {25, 25}, {5, 25}};
    EXPECT_EQ(graphics.DrawPolygon(&pen, points, 4), Ok);
    EXPECT_EQ(PixelAt(bitmap, 5, 15), kRed) << "the side back to the first point";
    graphics.Clear(Color(kWhite));
    EXPECT_EQ(graphics.DrawLines(&pen, points, 4), Ok);
    EXPECT_EQ(PixelAt(bitmap, 5, 15), kWhite) << "a line is not closed";
    EXPECT_EQ(PixelAt(bitmap, 25, 15), kRed);
}

TEST_F(Drawing, FillsAndOutlinesAPath) {
    GraphicsPath path;
    path.AddRectangle(Rect(4, 4, 10, 10));
    EXPECT_EQ(graphics.FillPath(&brush, &path), Ok);
    EXPECT_EQ(PixelAt(bitmap, 8, 8), kBlue);
    EXPECT_EQ(PixelAt(bitmap, 20, 8), kWhite);
    EXPECT_EQ(graphics.DrawPath(&pen, &path), Ok);
    EXPECT_EQ(PixelAt(bitmap, 8, 4), kRed);
}

TEST_F(Drawing, FollowsTheWorldTransform) {
    graphics.TranslateTransform(20.0f, 10.0f);
    graphics.FillRectangle(&brush, 0, 0, 5, 5);
    EXPECT_EQ(PixelAt(bitmap, 22, 12), kBlue);
    EXPECT_EQ(PixelAt(bitmap, 2, 2), kWhite);
    graphics.ResetTransform();
    graphics.FillRectangle(&brush, 0, 0, 5, 5);
    EXPECT_EQ(PixelAt(bitmap, 2, 2), kBlue);
}

TEST_F(Drawing, StaysWithinTheClip) {
    EXPECT_EQ(graphics.SetClip(Rect(10, 10, 5, 5)), Ok);
    graphics.FillRectangle(&brush, 0, 0, 40, 30);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), 25);
    EXPECT_EQ(graphics.ResetClip(), Ok);
    graphics.FillRectangle(&brush, 0, 0, 40, 30);
    EXPECT_EQ(PixelsOtherThan(bitmap, kBlue), 0);
}

TEST_F(Drawing, BlendsByAlpha) {
    const SolidBrush half(Color(128, 0, 0, 0));
    graphics.FillRectangle(&half, 0, 0, 10, 10);
    const Color grey(PixelAt(bitmap, 5, 5));
    // 255 * (1 - 128 / 255) = 127, one off for rounding.
    EXPECT_NEAR(grey.GetR(), 127, 1);
    EXPECT_EQ(grey.GetA(), 255);
}

TEST_F(Drawing, StretchesAnImage) {
    Bitmap dot(1, 1);
    dot.SetPixel(0, 0, Color(kRed));
    graphics.SetInterpolationMode(InterpolationModeNearestNeighbor);
    EXPECT_EQ(graphics.DrawImage(&dot, 10, 10, 8, 6), Ok);
    EXPECT_EQ(PixelAt(bitmap, 13, 13), kRed);
    EXPECT_EQ(PixelAt(bitmap, 25, 13), kWhite);
}

TEST_F(Drawing, WritesText) {
    const FontFamily family(L"Arial");
    const Font font(&family, 20.0f, FontStyleRegular, UnitPixel);
    EXPECT_EQ(graphics.DrawString(L"H", -1, &font, PointF(2.0f, 2.0f), &brush), Ok);
    const int one = PixelsOtherThan(bitmap, kWhite);
    EXPECT_GT(one, 20);
    graphics.Clear(Color(kWhite));
    graphics.DrawString(L"HHHH", 1, &font, PointF(2.0f, 2.0f), &brush);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), one) << "one of four characters";
    graphics.Clear(Color(kWhite));
    EXPECT_EQ(graphics.DrawString(L"H", 0, &font, PointF(2.0f, 2.0f), &brush), Ok);
    EXPECT_EQ(PixelsOtherThan(bitmap, kWhite), 0);
}

TEST_F(Drawing, MeasuresText) {
    const FontFamily family(L"Arial");
    const Font font(&family, 20.0f, FontStyleRegular, UnitPixel);
    RectF one;
    RectF two;
    EXPECT_EQ(graphics.MeasureString(L"H", -1, &font, RectF(), &one), Ok);
    EXPECT_EQ(graphics.MeasureString(L"HH", -1, &font, PointF(), &two), Ok);
    EXPECT_GT(one.Width, 10.0f);
    EXPECT_GT(two.Width, one.Width + 10.0f);
    EXPECT_EQ(one.Height, two.Height);
}

TEST(Bitmap, KeepsItsPixels) {
    Bitmap bitmap(4, 3);
    EXPECT_EQ(bitmap.SetPixel(3, 2, Color(kRed)), Ok);
    EXPECT_EQ(PixelAt(bitmap, 3, 2), kRed);
    for (const Point& outside : {Point(4, 2), Point(3, 3), Point(-1, 0), Point(0, -1)}) {
        EXPECT_EQ(bitmap.SetPixel(outside.X, outside.Y, Color()), InvalidParameter);
        Color color;
        EXPECT_EQ(bitmap.GetPixel(outside.X, outside.Y, &color), InvalidParameter);
    }
}

TEST(Bitmap, LocksItsPixels) {
    Bitmap bitmap(4, 3, PixelFormat32bppARGB);
    // Nothing is written past the data.
    struct {
        BitmapData data;
        ULONG_PTR guard[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    } locked;
    const Rect all(0, 0, 4, 3);
    ASSERT_EQ(bitmap.LockBits(&all, ImageLockModeRead | ImageLockModeWrite,
                              PixelFormat32bppARGB, &locked.data),
              Ok);
    EXPECT_EQ(locked.data.Width, 4u);
    EXPECT_EQ(locked.data.Height, 3u);
    EXPECT_EQ(locked.data.PixelFormat, PixelFormat32bppARGB);
    ASSERT_GE(locked.data.Stride, 16);
    auto* row = static_cast<BYTE*>(locked.data.Scan0) + 2 * locked.data.Stride;
    reinterpret_cast<ARGB*>(row)[1] = kBlue;
    EXPECT_EQ(bitmap.UnlockBits(&locked.data), Ok);
    for (ULONG_PTR i = 0; i < 8; ++i) {
        EXPECT_EQ(locked.guard[i], i + 1);
    }
    EXPECT_EQ(PixelAt(bitmap, 1, 2), kBlue);
    EXPECT_NE(bitmap.UnlockBits(&locked.data), Ok) << "not locked";
    const Rect outside(2, 2, 4, 3);
    EXPECT_EQ(
        bitmap.LockBits(&outside, ImageLockModeRead, PixelFormat32bppARGB, &locked.data),
        InvalidParameter);
}

TEST(Bitmap, DrawsIntoTheCallersMemory) {
    ARGB memory[3 * 2] = {};
    Bitmap bitmap(3, 2, 3 * 4, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(memory));
    ASSERT_EQ(bitmap.GetLastStatus(), Ok);
    const std::unique_ptr<Graphics> graphics(Graphics::FromImage(&bitmap));
    graphics->Clear(Color(kRed));
    BitmapData data;
    EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
              Ok);
    EXPECT_EQ(data.Scan0, memory);
    EXPECT_EQ(bitmap.UnlockBits(&data), Ok);
    EXPECT_EQ(memory[0], kRed);
    EXPECT_EQ(memory[5], kRed);
}

TEST(Bitmap, TellsItsResolution) {
    Bitmap bitmap(4, 3);
    EXPECT_EQ(bitmap.SetResolution(300.0f, 150.0f), Ok);
    EXPECT_EQ(bitmap.GetHorizontalResolution(), 300.0f);
    EXPECT_EQ(bitmap.GetVerticalResolution(), 150.0f);
    EXPECT_EQ(bitmap.SetResolution(0.0f, 96.0f), InvalidParameter);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.GetDpiX(), 300.0f);
    EXPECT_EQ(graphics.GetDpiY(), 150.0f);
}

TEST(Bitmap, HasTheFormatItWasMadeWith) {
    for (const PixelFormat format : {PixelFormat24bppRGB, PixelFormat32bppRGB,
                                     PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
        Bitmap bitmap(4, 3, format);
        EXPECT_EQ(bitmap.GetPixelFormat(), format);
    }
}

}  // namespace
