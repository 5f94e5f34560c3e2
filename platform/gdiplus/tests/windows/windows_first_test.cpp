// As in most programs for Windows: its header first, with all its macros.
#include <windows.h>
//
#include <gdiplus.h>
#include <gtest/gtest.h>

TEST(WindowsHeader, MayComeFirst) {
    Gdiplus::Bitmap bitmap(4, 4);
    Gdiplus::Graphics graphics(&bitmap);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF, 0, 0));
    EXPECT_EQ(graphics.FillRectangle(&brush, Gdiplus::Rect(0, 0, 4, 4)), Gdiplus::Ok);
    Gdiplus::Color color;
    bitmap.GetPixel(2, 2, &color);
    EXPECT_EQ(color.GetValue(), 0xFFFF0000);
}
