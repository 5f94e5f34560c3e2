#include <gdiplus.h>
#include <gtest/gtest.h>

using namespace Gdiplus;

namespace {

TEST(Pen, TellsWhatItWasGiven) {
    Pen pen(Color(0x80FF0000), 2.5f);
    Color color;
    EXPECT_EQ(pen.GetColor(&color), Ok);
    EXPECT_EQ(color.GetValue(), 0x80FF0000);
    EXPECT_EQ(pen.GetWidth(), 2.5f);
    EXPECT_EQ(pen.GetDashStyle(), DashStyleSolid);
    EXPECT_EQ(pen.GetLineJoin(), LineJoinMiter);
    EXPECT_EQ(pen.GetEndCap(), LineCapFlat);

    EXPECT_EQ(pen.SetColor(Color(0xFF00FF00)), Ok);
    EXPECT_EQ(pen.SetWidth(7.0f), Ok);
    EXPECT_EQ(pen.SetDashStyle(DashStyleDashDot), Ok);
    EXPECT_EQ(pen.SetLineJoin(LineJoinRound), Ok);
    EXPECT_EQ(pen.SetStartCap(LineCapRound), Ok);
    EXPECT_EQ(pen.SetEndCap(LineCapSquare), Ok);
    pen.GetColor(&color);
    EXPECT_EQ(color.GetValue(), 0xFF00FF00);
    EXPECT_EQ(pen.GetWidth(), 7.0f);
    EXPECT_EQ(pen.GetDashStyle(), DashStyleDashDot);
    EXPECT_EQ(pen.GetLineJoin(), LineJoinRound);
    EXPECT_EQ(pen.GetStartCap(), LineCapRound);
    EXPECT_EQ(pen.GetEndCap(), LineCapSquare);
    EXPECT_EQ(Pen(Color()).GetWidth(), 1.0f) << "the default";
}

TEST(SolidBrush, TellsItsColour) {
    SolidBrush brush(Color(0x40302010));
    Color color;
    EXPECT_EQ(brush.GetColor(&color), Ok);
    EXPECT_EQ(color.GetValue(), 0x40302010);
    EXPECT_EQ(brush.SetColor(Color(0xFFFFFFFF)), Ok);
    brush.GetColor(&color);
    EXPECT_EQ(color.GetValue(), 0xFFFFFFFF);
}

TEST(AdjustableArrowCap, TellsItsMeasures) {
    AdjustableArrowCap cap(3.0f, 2.0f, TRUE);
    EXPECT_EQ(cap.GetHeight(), 3.0f);
    EXPECT_EQ(cap.GetWidth(), 2.0f);
    EXPECT_TRUE(cap.IsFilled());
    EXPECT_EQ(cap.SetHeight(5.0f), Ok);
    EXPECT_EQ(cap.SetWidth(6.0f), Ok);
    EXPECT_EQ(cap.SetFillState(FALSE), Ok);
    EXPECT_EQ(cap.GetHeight(), 5.0f);
    EXPECT_EQ(cap.GetWidth(), 6.0f);
    EXPECT_FALSE(cap.IsFilled());
}

TEST(StringFormat, IsNearAndWithoutFlagsByDefault) {
    StringFormat format;
    EXPECT_EQ(format.GetAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetLineAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetFormatFlags(), 0);
    EXPECT_EQ(format.SetAlignment(StringAlignmentCenter), Ok);
    EXPECT_EQ(format.SetLineAlignment(StringAlignmentFar), Ok);
    EXPECT_EQ(format.SetFormatFlags(StringFormatFlagsNoWrap), Ok);
    EXPECT_EQ(format.SetTrimming(StringTrimmingNone), Ok);
    EXPECT_EQ(format.GetAlignment(), StringAlignmentCenter);
    EXPECT_EQ(format.GetLineAlignment(), StringAlignmentFar);
    EXPECT_EQ(format.GetFormatFlags(), StringFormatFlagsNoWrap);
    EXPECT_EQ(format.GetTrimming(), StringTrimmingNone);
}

TEST(Font, TellsSizeStyleAndUnit) {
    const FontFamily family(L"Arial");
    const Font font(&family, 17.0f, FontStyleBoldItalic, UnitPixel);
    EXPECT_EQ(font.GetSize(), 17.0f);
    EXPECT_EQ(font.GetStyle(), FontStyleBoldItalic);
    EXPECT_EQ(font.GetUnit(), UnitPixel);
    EXPECT_TRUE(font.IsAvailable());
    EXPECT_GT(font.GetHeight(96.0f), 17.0f) << "lines are spaced wider than the em";

    const Font byName(L"Arial", 12.0f);
    EXPECT_TRUE(byName.IsAvailable());
    EXPECT_EQ(byName.GetStyle(), FontStyleRegular);
    EXPECT_EQ(byName.GetUnit(), UnitPoint);

    FontFamily found;
    EXPECT_EQ(byName.GetFamily(&found), Ok);
    EXPECT_TRUE(found.IsAvailable());
}

TEST(FontFamily, TellsItsMetrics) {
    const FontFamily family(L"Arial");
    WCHAR name[LF_FACESIZE] = L"untouched";
    EXPECT_EQ(family.GetFamilyName(name), Ok);
    EXPECT_STRNE(name, L"");
    EXPECT_STRNE(name, L"untouched");
    // Arial, and the fonts made to its measures, have 2048 units to the em.
    EXPECT_EQ(family.GetEmHeight(FontStyleRegular), 2048);
    EXPECT_GT(family.GetCellAscent(FontStyleRegular), 1800);
    EXPECT_GT(family.GetCellDescent(FontStyleRegular), 400);
    EXPECT_GE(
        family.GetLineSpacing(FontStyleRegular),
        family.GetCellAscent(FontStyleRegular) + family.GetCellDescent(FontStyleRegular));
    EXPECT_TRUE(family.IsStyleAvailable(FontStyleRegular));
}

void ExpectElements(const Matrix& matrix, const REAL (&expected)[6]) {
    REAL elements[6] = {};
    EXPECT_EQ(matrix.GetElements(elements), Ok);
    for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(elements[i], expected[i], 1e-5) << "element " << i;
    }
}

TEST(Matrix, PrependsUnlessToldOtherwise) {
    Matrix prepended;
    prepended.Translate(10.0f, 0.0f);
    prepended.Rotate(90.0f);
    ExpectElements(prepended, {0, 1, -1, 0, 10, 0});
    PointF point(1.0f, 0.0f);
    EXPECT_EQ(prepended.TransformPoints(&point), Ok);
    EXPECT_NEAR(point.X, 10.0, 1e-5);
    EXPECT_NEAR(point.Y, 1.0, 1e-5);

    Matrix appended;
    appended.Translate(10.0f, 0.0f, MatrixOrderAppend);
    appended.Rotate(90.0f, MatrixOrderAppend);
    ExpectElements(appended, {0, 1, -1, 0, 0, 10});
}

TEST(Matrix, MultipliesInvertsAndCompares) {
    Matrix scale(2, 0, 0, 4, 0, 0);
    const Matrix shift(1, 0, 0, 1, 5, 6);
    EXPECT_EQ(scale.Multiply(&shift), Ok);
    ExpectElements(scale, {2, 0, 0, 4, 10, 24});
    EXPECT_TRUE(scale.IsInvertible());
    EXPECT_EQ(scale.Invert(), Ok);
    ExpectElements(scale, {0.5f, 0, 0, 0.25f, -5, -6});
    EXPECT_FALSE(scale.IsIdentity());
    EXPECT_EQ(scale.Reset(), Ok);
    EXPECT_TRUE(scale.IsIdentity());
    const Matrix identity;
    EXPECT_TRUE(scale.Equals(&identity));
    EXPECT_FALSE(scale.Equals(&shift));
    EXPECT_EQ(scale.Scale(2.0f, 3.0f), Ok);
    Point points[] = {{1, 1}, {10, 20}};
    EXPECT_EQ(scale.TransformPoints(points, 2), Ok);
    EXPECT_TRUE(points[0].Equals(Point(2, 3)));
    EXPECT_TRUE(points[1].Equals(Point(20, 60)));
}

TEST(Matrix, ThatIsFlatIsNotInverted) {
    Matrix flat(0, 0, 0, 0, 1, 1);
    EXPECT_FALSE(flat.IsInvertible());
    EXPECT_NE(flat.Invert(), Ok);
}

TEST(GraphicsPath, HoldsFiguresAndTheirBounds) {
    GraphicsPath path;
    EXPECT_EQ(path.GetPointCount(), 0);
    EXPECT_EQ(path.GetFillMode(), FillModeAlternate);
    EXPECT_EQ(path.AddRectangle(Rect(10, 20, 30, 40)), Ok);
    EXPECT_EQ(path.GetPointCount(), 4);
    Rect bounds;
    EXPECT_EQ(path.GetBounds(&bounds), Ok);
    EXPECT_TRUE(bounds.Equals(Rect(10, 20, 30, 40)));

    Matrix twice;
    twice.Scale(2.0f, 2.0f);
    EXPECT_EQ(path.GetBounds(&bounds, &twice), Ok);
    EXPECT_TRUE(bounds.Equals(Rect(20, 40, 60, 80)));
    EXPECT_EQ(path.Transform(&twice), Ok);
    RectF exact;
    EXPECT_EQ(path.GetBounds(&exact), Ok);
    EXPECT_TRUE(exact.Equals(RectF(20.0f, 40.0f, 60.0f, 80.0f)));

    EXPECT_EQ(path.Reset(), Ok);
    EXPECT_EQ(path.GetPointCount(), 0);
    const Point points[] = {{0, 0}, {10, 0}, {10, 10}};
    EXPECT_EQ(path.AddLines(points, 3), Ok);
    EXPECT_EQ(path.StartFigure(), Ok);
    EXPECT_EQ(path.AddLine(20, 20, 30, 30), Ok);
    EXPECT_EQ(path.CloseFigure(), Ok);
    EXPECT_EQ(path.GetPointCount(), 5);
    PointF read[5];
    EXPECT_EQ(path.GetPathPoints(read, 5), Ok);
    EXPECT_TRUE(read[2].Equals(PointF(10.0f, 10.0f)));
    EXPECT_TRUE(read[4].Equals(PointF(30.0f, 30.0f)));
    EXPECT_EQ(path.SetFillMode(FillModeWinding), Ok);
    EXPECT_EQ(path.GetFillMode(), FillModeWinding);
}

TEST(Graphics, KeepsItsModes) {
    Bitmap bitmap(4, 4);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.SetSmoothingMode(SmoothingModeAntiAlias), Ok);
    EXPECT_EQ(graphics.GetSmoothingMode(), SmoothingModeAntiAlias);
    EXPECT_EQ(graphics.SetTextRenderingHint(TextRenderingHintAntiAliasGridFit), Ok);
    EXPECT_EQ(graphics.GetTextRenderingHint(), TextRenderingHintAntiAliasGridFit);
    EXPECT_EQ(graphics.SetInterpolationMode(InterpolationModeNearestNeighbor), Ok);
    EXPECT_EQ(graphics.GetInterpolationMode(), InterpolationModeNearestNeighbor);
    EXPECT_EQ(graphics.SetPixelOffsetMode(PixelOffsetModeHalf), Ok);
    EXPECT_EQ(graphics.GetPixelOffsetMode(), PixelOffsetModeHalf);
}

TEST(Graphics, KeepsItsWorldTransform) {
    Bitmap bitmap(4, 4);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.TranslateTransform(10.0f, 20.0f), Ok);
    EXPECT_EQ(graphics.RotateTransform(90.0f), Ok);
    EXPECT_EQ(graphics.ScaleTransform(2.0f, 3.0f), Ok);
    Matrix matrix;
    EXPECT_EQ(graphics.GetTransform(&matrix), Ok);
    ExpectElements(matrix, {0, 2, -3, 0, 10, 20});
    EXPECT_EQ(graphics.ResetTransform(), Ok);
    graphics.GetTransform(&matrix);
    EXPECT_TRUE(matrix.IsIdentity());

    const Matrix shift(1, 0, 0, 1, 5, 6);
    EXPECT_EQ(graphics.SetTransform(&shift), Ok);
    EXPECT_EQ(graphics.MultiplyTransform(&shift), Ok);
    graphics.GetTransform(&matrix);
    ExpectElements(matrix, {1, 0, 0, 1, 10, 12});

    const GraphicsState state = graphics.Save();
    graphics.ResetTransform();
    EXPECT_EQ(graphics.Restore(state), Ok);
    graphics.GetTransform(&matrix);
    ExpectElements(matrix, {1, 0, 0, 1, 10, 12});
}

}  // namespace
