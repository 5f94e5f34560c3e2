#include <gdiplus.h>
#include <gtest/gtest.h>

#include <type_traits>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

template <typename Object>
constexpr bool kNotCopied =
    !std::is_copy_constructible_v<Object> && !std::is_copy_assignable_v<Object>;

static_assert(kNotCopied<Graphics> && kNotCopied<Image> && kNotCopied<Bitmap> &&
              kNotCopied<Pen> && kNotCopied<SolidBrush> && kNotCopied<FontFamily> &&
              kNotCopied<Font> && kNotCopied<StringFormat> && kNotCopied<GraphicsPath> &&
              kNotCopied<Matrix> && kNotCopied<AdjustableArrowCap>);

TEST(Status, IsKeptUntilItIsRead) {
    Bitmap bitmap(4, 4);
    EXPECT_EQ(bitmap.GetLastStatus(), Ok);
    EXPECT_EQ(bitmap.SetPixel(-1, 0, Color()), InvalidParameter);
    EXPECT_EQ(bitmap.SetPixel(0, 0, Color()), Ok);
    EXPECT_EQ(bitmap.GetLastStatus(), InvalidParameter) << "a success keeps the failure";
    EXPECT_EQ(bitmap.GetLastStatus(), Ok) << "reading it sets it back";
}

TEST(Status, BelongsToItsObject) {
    Bitmap bitmap(4, 4);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.DrawLine(nullptr, 0, 0, 1, 1), InvalidParameter);
    EXPECT_EQ(bitmap.GetLastStatus(), Ok);
    EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
}

TEST(FailedCreation, OfABitmapLeavesNothingToUse) {
    for (const Size& size : {Size(-1, -1), Size(0, 0), Size(10, 0), Size(0, 10)}) {
        Bitmap bitmap(size.Width, size.Height);
        EXPECT_EQ(bitmap.GetLastStatus(), InvalidParameter) << size.Width;
        EXPECT_EQ(bitmap.GetWidth(), 0u);
        EXPECT_EQ(bitmap.GetLastStatus(), InvalidParameter);
        EXPECT_EQ(bitmap.GetHeight(), 0u);
        EXPECT_EQ(bitmap.SetPixel(0, 0, Color()), InvalidParameter);
        Color color(0x12345678);
        EXPECT_EQ(bitmap.GetPixel(0, 0, &color), InvalidParameter);
        BitmapData data;
        EXPECT_EQ(
            bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data),
            InvalidParameter);
        EXPECT_EQ(bitmap.UnlockBits(&data), InvalidParameter);

        Graphics graphics(&bitmap);
        EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
        const Pen pen(Color(0xFF000000));
        EXPECT_EQ(graphics.DrawLine(&pen, 0, 0, 1, 1), InvalidParameter);
        EXPECT_EQ(graphics.Clear(Color()), InvalidParameter);
        EXPECT_EQ(graphics.RotateTransform(10.0f), InvalidParameter);
        EXPECT_EQ(graphics.ResetTransform(), InvalidParameter);
        EXPECT_EQ(graphics.SetSmoothingMode(SmoothingModeAntiAlias), InvalidParameter);
    }
}

TEST(FailedCreation, OfAnImageIsThatOfItsFile) {
    for (const wchar_t* file : {L"no such file.png", L"", L"no/such/folder/file.png"}) {
        Image image(file);
        EXPECT_NE(image.GetLastStatus(), Ok) << file;
        EXPECT_EQ(image.GetWidth(), 0u);
        EXPECT_EQ(image.GetLastStatus(), InvalidParameter);
        EXPECT_EQ(image.GetHeight(), 0u);
    }
}

}  // namespace
