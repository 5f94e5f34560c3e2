#include <gdiplus.h>
#include <gtest/gtest.h>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

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
        graphics.MeasureString(L"Nord", -1, &font, box, static_cast<RectF*>(nullptr)),
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
    EXPECT_EQ(graphics.DrawString(L"", -1, &noFont, PointF(), &brush), Ok);
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

TEST(NativeObject, IsThereForTheFlatFunctionsUnlessItCouldNotBeMade) {
    Bitmap bitmap(4, 4);
    const Graphics graphics(&bitmap);
    REAL dpi = 0.0f;
    ASSERT_NE(graphics.NativeObject(), nullptr);
    EXPECT_EQ(DllExports::GdipGetDpiX(graphics.NativeObject(), &dpi), Ok);
    EXPECT_EQ(dpi, graphics.GetDpiX());
    const Graphics none(nullptr);
    EXPECT_EQ(none.NativeObject(), nullptr);
}

TEST(MissingArgument, OfAPenLeavesItAsItIs) {
    Pen pen(Color(0xFF000000));
    EXPECT_EQ(pen.SetCustomEndCap(nullptr), InvalidParameter);
    EXPECT_EQ(pen.SetCustomStartCap(nullptr), InvalidParameter);
    EXPECT_EQ(pen.GetEndCap(), LineCapFlat);
    EXPECT_EQ(pen.GetStartCap(), LineCapFlat);
}

TEST(MissingArgument, TellsNothing) {
    Bitmap bitmap(4, 4);
    EXPECT_EQ(bitmap.GetPixel(0, 0, nullptr), InvalidParameter);
    EXPECT_EQ(bitmap.GetLastStatus(), InvalidParameter);
    const Pen pen(Color(0xFF000000));
    EXPECT_EQ(pen.GetColor(nullptr), InvalidParameter);
    EXPECT_EQ(pen.GetLastStatus(), InvalidParameter);
    const SolidBrush brush(Color(0xFF000000));
    EXPECT_EQ(brush.GetColor(nullptr), InvalidParameter);
    EXPECT_EQ(brush.GetLastStatus(), InvalidParameter);
    const Font font(L"Arial", 12.0f);
    EXPECT_EQ(font.GetFamily(nullptr), InvalidParameter);
    EXPECT_EQ(font.GetLastStatus(), InvalidParameter);
}

TEST(WrongArgument, ChangesNothing) {
    Bitmap bitmap(4, 4);
    Graphics graphics(&bitmap);
    graphics.SetSmoothingMode(SmoothingModeAntiAlias);
    EXPECT_EQ(graphics.SetSmoothingMode(SmoothingModeInvalid), InvalidParameter);
    EXPECT_EQ(graphics.GetSmoothingMode(), SmoothingModeAntiAlias);
    Bitmap formless(4, 3, PixelFormatUndefined);
    EXPECT_EQ(formless.GetLastStatus(), InvalidParameter);
}

}  // namespace
