#include <gtest/gtest.h>

#include "map_surround/north_arrow.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using namespace recording;

// The figures of the star, used by themselves: four points, no transform.

TEST(FourAngleArrow, FillsAFigure) {
    Surface surface;
    CNorthArrowFourAngle arrow;
    arrow.SetFrontColor(Gdiplus::Color(0xFF00AA00));
    arrow.SetAngle(45.0f);
    Gdiplus::Point points[] = {{10, 20}, {30, 25}, {28, 60}, {-4, 55}};
    Recording recording;
    arrow.FillSolidPath(surface.Graphics(), points);
    EXPECT_TRUE(Equal({{"brush", "GdipCreateSolidFill #FF00AA00"},
                       {"fill", FillPolygon(BrushLook(0xFF00AA00),
                                            {{10, 20}, {30, 25}, {28, 60}, {-4, 55}})},
                       {"brush, released", "GdipDeleteBrush " + BrushLook(0xFF00AA00)}},
                      recording.Lines()));
}

TEST(FourAngleArrow, DrawsAFigureOpen) {
    Surface surface;
    CNorthArrowFourAngle arrow;
    arrow.SetFrontColor(Gdiplus::Color(0xFF00AA00));
    arrow.SetAngle(45.0f);
    Gdiplus::Point points[] = {{10, 20}, {30, 25}, {28, 60}, {-4, 55}};
    const std::string path = LinesPath({{10, 20}, {30, 25}, {28, 60}, {-4, 55}});
    const std::string pen = PenLook(0xFF00AA00, 1.0f);
    Recording recording;
    arrow.DrawPath(surface.Graphics(), points);
    EXPECT_TRUE(Equal({{"path", "GdipCreatePath 0"},
                       {"lines", "GdipAddPathLine2I " + path},
                       {"pen", "GdipCreatePen1 #FF00AA00 1 unit 0"},
                       {"outline", DrawPath(pen, path)},
                       {"pen, released", "GdipDeletePen " + pen},
                       {"path, released", "GdipDeletePath " + path}},
                      recording.Lines()));
}

TEST(FourAngleArrow, KeepsTheWorldTransformOfItsFigures) {
    Surface surface;
    surface.Graphics()->TranslateTransform(7.0f, -3.0f);
    CNorthArrowFourAngle arrow;
    arrow.SetAngle(45.0f);
    Gdiplus::Point points[] = {{10, 20}, {30, 25}, {28, 60}, {10, 20}};
    arrow.FillSolidPath(surface.Graphics(), points);
    arrow.DrawPath(surface.Graphics(), points);
    EXPECT_EQ(surface.WorldTransform(), (std::vector<float>{1, 0, 0, 1, 7, -3}));
}

}  // namespace
