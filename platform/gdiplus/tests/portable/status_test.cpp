#include <gdiplus.h>
#include <gtest/gtest.h>

#include <cmath>
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

TEST(FailedCreation, OfAFontIsNotAvailable) {
    const FontFamily family(L"Arial");
    ASSERT_TRUE(family.IsAvailable());
    for (const REAL size : {0.0f, -1.0f}) {
        const Font font(&family, size, FontStyleRegular, UnitPixel);
        EXPECT_EQ(font.GetLastStatus(), InvalidParameter) << size;
        EXPECT_FALSE(font.IsAvailable());
    }
    const Font orphan(static_cast<const FontFamily*>(nullptr), 10.0f);
    EXPECT_EQ(orphan.GetLastStatus(), InvalidParameter);
    const FontFamily none;
    EXPECT_FALSE(none.IsAvailable());
    const Font homeless(&none, 10.0f);
    EXPECT_FALSE(homeless.IsAvailable());
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

/// Everything that draws, with one thing missing.
TEST(MissingArgument, DrawsNothingAndIsInvalid) {
    Bitmap bitmap(40, 40);
    Graphics graphics(&bitmap);
    const Pen pen(Color(0xFF000000));
    const SolidBrush brush(Color(0xFF000000));
    const FontFamily family(L"Arial");
    const Font font(&family, 20.0f, FontStyleRegular, UnitPixel);
    GraphicsPath path;
    path.AddRectangle(Rect(5, 5, 20, 20));
    const Point points[] = {{1, 1}, {30, 1}, {15, 30}};
    Bitmap picture(4, 4);
    const Pen* const noPen = nullptr;
    const SolidBrush* const noBrush = nullptr;
    const RectF box(0.0f, 0.0f, 40.0f, 40.0f);
    const PointF origin;
    const Status statuses[] = {
        graphics.DrawLine(noPen, 1, 1, 30, 30),
        graphics.DrawRectangle(noPen, 1, 1, 30, 30),
        graphics.DrawPolygon(noPen, points, 3),
        graphics.DrawPolygon(&pen, static_cast<const Point*>(nullptr), 3),
        graphics.DrawPath(noPen, &path),
        graphics.DrawPath(&pen, nullptr),
        graphics.FillRectangle(noBrush, 1, 1, 30, 30),
        graphics.FillPolygon(noBrush, points, 3),
        graphics.FillPolygon(&brush, static_cast<const Point*>(nullptr), 3),
        graphics.FillPath(noBrush, &path),
        graphics.FillPath(&brush, nullptr),
        graphics.DrawString(L"Nord", -1, nullptr, origin, &brush),
        graphics.DrawString(L"Nord", -1, &font, origin, noBrush),
        graphics.DrawString(nullptr, -1, &font, origin, &brush),
        graphics.DrawString(nullptr, 4, &font, box, nullptr, &brush),
        graphics.DrawImage(static_cast<Image*>(nullptr), 0, 0, 10, 10),
        graphics.SetTransform(nullptr),
        graphics.GetTransform(nullptr),
    };
    int row = 0;
    for (const Status status : statuses) {
        EXPECT_EQ(status, InvalidParameter) << "row " << row;
        ++row;
    }
    EXPECT_EQ(PixelsOtherThan(bitmap, 0), 0);
    EXPECT_EQ(graphics.DrawLine(&pen, 1, 1, 30, 30), Ok) << "the surface still works";
    EXPECT_GT(PixelsOtherThan(bitmap, 0), 0);
}

TEST(MissingArgument, OfAnObjectWithoutANativeOneIsTheSame) {
    Bitmap bitmap(40, 40);
    Graphics graphics(&bitmap);
    const FontFamily family(L"Arial");
    const Font noFont(&family, 0.0f);
    const SolidBrush brush(Color(0xFF000000));
    EXPECT_EQ(graphics.DrawString(L"Nord", -1, &noFont, PointF(), &brush),
              InvalidParameter);
    Bitmap nothing(-1, -1);
    EXPECT_EQ(graphics.DrawImage(&nothing, 0, 0, 10, 10), InvalidParameter);
    const FontFamily noFamily;
    GraphicsPath path;
    EXPECT_EQ(path.AddString(L"Nord", -1, &noFamily, 0, 20.0f, PointF(), nullptr),
              InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 0);
    EXPECT_EQ(PixelsOtherThan(bitmap, 0), 0);
}

TEST(MissingArgument, OfAPathMeasuresNothing) {
    GraphicsPath path;
    const FontFamily family(L"Arial");
    EXPECT_EQ(path.AddString(L"a", -1, nullptr, 0, 20.0f, PointF(), nullptr),
              InvalidParameter);
    EXPECT_EQ(path.AddString(nullptr, -1, &family, 0, 20.0f, PointF(), nullptr),
              InvalidParameter);
    EXPECT_EQ(path.GetBounds(static_cast<Rect*>(nullptr)), InvalidParameter);
    EXPECT_EQ(path.AddLines(static_cast<const Point*>(nullptr), 2), InvalidParameter);
    EXPECT_EQ(path.Transform(nullptr), Ok);
    EXPECT_EQ(path.GetPointCount(), 0);
}

}  // namespace
