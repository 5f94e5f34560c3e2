#include <gdiplus.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "portable/pixels.h"

using namespace Gdiplus;

namespace {

constexpr ARGB kPaper = 0xFFFFFFFF;

/// What the rows draw with.
struct Tools {
    Tools() { Graphics(&image).Clear(Color(0xFF00FF00)); }

    Pen pen{Color(0xFFFF0000)};
    SolidBrush brush{Color(0xFF0000FF)};
    Bitmap image{8, 6};
};

/// The pixels that a drawing leaves on white, row by row.
std::vector<ARGB> Drawn(const std::function<Status(Graphics&, Tools&)>& draw,
                        const char* name) {
    Bitmap bitmap(40, 30);
    Graphics graphics(&bitmap);
    graphics.Clear(Color(kPaper));
    graphics.SetInterpolationMode(InterpolationModeNearestNeighbor);
    Tools tools;
    EXPECT_EQ(draw(graphics, tools), Ok) << name;
    EXPECT_GT(PixelsOtherThan(bitmap, kPaper), 0) << name;
    std::vector<ARGB> pixels;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            pixels.push_back(PixelAt(bitmap, x, y));
        }
    }
    return pixels;
}

const Point kPoints[] = {{5, 5}, {25, 8}, {12, 25}};
const PointF kSamePoints[] = {{5.0f, 5.0f}, {25.0f, 8.0f}, {12.0f, 25.0f}};

TEST(Overloads, DrawTheSame) {
    struct Row {
        const char* name;
        std::function<Status(Graphics&, Tools&)> draw;
        std::function<Status(Graphics&, Tools&)> same;
    };
    const Row rows[] = {
        {"line", [](Graphics& g, Tools& t) { return g.DrawLine(&t.pen, 3, 4, 20, 17); },
         [](Graphics& g, Tools& t) {
             return g.DrawLine(&t.pen, PointF(3.0f, 4.0f), PointF(20.0f, 17.0f));
         }},
        {"lines", [](Graphics& g, Tools& t) { return g.DrawLines(&t.pen, kPoints, 3); },
         [](Graphics& g, Tools& t) { return g.DrawLines(&t.pen, kSamePoints, 3); }},
        {"rectangle in floats",
         [](Graphics& g, Tools& t) { return g.DrawRectangle(&t.pen, 5, 6, 10, 8); },
         [](Graphics& g, Tools& t) {
             return g.DrawRectangle(&t.pen, 5.0f, 6.0f, 10.0f, 8.0f);
         }},
        {"rectangle",
         [](Graphics& g, Tools& t) { return g.DrawRectangle(&t.pen, Rect(5, 6, 10, 8)); },
         [](Graphics& g, Tools& t) {
             return g.DrawRectangle(&t.pen, RectF(5.0f, 6.0f, 10.0f, 8.0f));
         }},
        {"polygon",
         [](Graphics& g, Tools& t) { return g.DrawPolygon(&t.pen, kPoints, 3); },
         [](Graphics& g, Tools& t) { return g.DrawPolygon(&t.pen, kSamePoints, 3); }},
        {"filled rectangle",
         [](Graphics& g, Tools& t) { return g.FillRectangle(&t.brush, 5, 6, 10, 8); },
         [](Graphics& g, Tools& t) {
             return g.FillRectangle(&t.brush, RectF(5.0f, 6.0f, 10.0f, 8.0f));
         }},
        {"filled polygon",
         [](Graphics& g, Tools& t) { return g.FillPolygon(&t.brush, kPoints, 3); },
         [](Graphics& g, Tools& t) { return g.FillPolygon(&t.brush, kSamePoints, 3); }},
        {"image", [](Graphics& g, Tools& t) { return g.DrawImage(&t.image, 4, 7); },
         [](Graphics& g, Tools& t) { return g.DrawImage(&t.image, 4.0f, 7.0f); }},
        {"image in a rectangle",
         [](Graphics& g, Tools& t) { return g.DrawImage(&t.image, 4, 7, 20, 15); },
         [](Graphics& g, Tools& t) { return g.DrawImage(&t.image, Rect(4, 7, 20, 15)); }},
        {"image in a rectangle of floats",
         [](Graphics& g, Tools& t) {
             return g.DrawImage(&t.image, 4.0f, 7.0f, 20.0f, 15.0f);
         },
         [](Graphics& g, Tools& t) {
             return g.DrawImage(&t.image, RectF(4.0f, 7.0f, 20.0f, 15.0f));
         }},
        {"clip",
         [](Graphics& g, Tools& t) {
             g.SetClip(Rect(10, 12, 6, 5));
             return g.FillRectangle(&t.brush, 0, 0, 40, 30);
         },
         [](Graphics& g, Tools& t) {
             g.SetClip(RectF(10.0f, 12.0f, 6.0f, 5.0f));
             return g.FillRectangle(&t.brush, 0, 0, 40, 30);
         }},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Drawn(row.draw, row.name), Drawn(row.same, row.name)) << row.name;
    }
}

TEST(Overloads, DrawAnImageInItsOwnSizeOrStretched) {
    Bitmap bitmap(40, 30);
    Graphics graphics(&bitmap);
    Tools tools;
    tools.image.SetResolution(graphics.GetDpiX(), graphics.GetDpiY());
    EXPECT_EQ(graphics.DrawImage(&tools.image, 4, 7), Ok);
    EXPECT_EQ(PixelAt(bitmap, 4, 7), 0xFF00FF00);
    EXPECT_EQ(PixelAt(bitmap, 11, 12), 0xFF00FF00);
    EXPECT_EQ(PixelAt(bitmap, 13, 14), 0u);
    EXPECT_EQ(graphics.DrawImage(&tools.image, RectF(4.0f, 7.0f, 20.0f, 15.0f)), Ok);
    EXPECT_EQ(PixelAt(bitmap, 13, 14), 0xFF00FF00);
}

std::vector<REAL> PointsOf(const GraphicsPath& path) {
    std::vector<PointF> points(static_cast<std::size_t>(path.GetPointCount()));
    path.GetPathPoints(points.data(), path.GetPointCount());
    std::vector<REAL> numbers;
    for (const PointF& point : points) {
        numbers.push_back(point.X);
        numbers.push_back(point.Y);
    }
    return numbers;
}

TEST(Overloads, AddTheSamePoints) {
    const std::vector<REAL> line{3, 4, 20, 17};
    const std::vector<REAL> three{5, 5, 25, 8, 12, 25};
    const std::vector<REAL> four{5, 6, 15, 6, 15, 14, 5, 14};
    struct Row {
        const char* name;
        std::function<Status(GraphicsPath&)> add;
        const std::vector<REAL>& points;
    };
    const Row rows[] = {
        {"line", [](GraphicsPath& path) { return path.AddLine(3, 4, 20, 17); }, line},
        {"line in floats",
         [](GraphicsPath& path) { return path.AddLine(3.0f, 4.0f, 20.0f, 17.0f); }, line},
        {"line of points",
         [](GraphicsPath& path) { return path.AddLine(Point(3, 4), Point(20, 17)); },
         line},
        {"line of points in floats",
         [](GraphicsPath& path) {
             return path.AddLine(PointF(3.0f, 4.0f), PointF(20.0f, 17.0f));
         },
         line},
        {"lines", [](GraphicsPath& path) { return path.AddLines(kPoints, 3); }, three},
        {"lines in floats",
         [](GraphicsPath& path) { return path.AddLines(kSamePoints, 3); }, three},
        {"polygon", [](GraphicsPath& path) { return path.AddPolygon(kPoints, 3); },
         three},
        {"polygon in floats",
         [](GraphicsPath& path) { return path.AddPolygon(kSamePoints, 3); }, three},
        {"rectangle",
         [](GraphicsPath& path) { return path.AddRectangle(Rect(5, 6, 10, 8)); }, four},
        {"rectangle in floats",
         [](GraphicsPath& path) {
             return path.AddRectangle(RectF(5.0f, 6.0f, 10.0f, 8.0f));
         },
         four},
    };
    for (const Row& row : rows) {
        GraphicsPath path;
        EXPECT_EQ(row.add(path), Ok) << row.name;
        EXPECT_EQ(PointsOf(path), row.points) << row.name;
    }
}

TEST(Overloads, AddTheSameText) {
    const FontFamily family(L"Arial");
    const StringFormat format;  // Wine's GDI+ wants one
    const auto added = [&](auto place) {
        GraphicsPath path;
        EXPECT_EQ(
            path.AddString(L"No", -1, &family, FontStyleRegular, 20.0f, place, &format),
            Ok);
        return PointsOf(path);
    };
    const std::vector<REAL> atAPoint = added(PointF(30.0f, 50.0f));
    EXPECT_GT(atAPoint.size(), 8u);
    EXPECT_EQ(added(Point(30, 50)), atAPoint);
    EXPECT_NE(added(Point(50, 30)), atAPoint);
    EXPECT_EQ(added(RectF(30.0f, 50.0f, 0.0f, 0.0f)), atAPoint);
    EXPECT_EQ(added(Rect(30, 50, 0, 0)), atAPoint);
    EXPECT_EQ(added(Rect(30, 50, 200, 60)), added(RectF(30.0f, 50.0f, 200.0f, 60.0f)));
}

TEST(Pen, PutsAnArrowOnTheStartOfALine) {
    Bitmap bitmap(40, 30);
    Graphics graphics(&bitmap);
    const AdjustableArrowCap cap(4.0f, 4.0f, TRUE);
    Pen arrow(Color(0xFFFF0000), 2.0f);
    EXPECT_EQ(arrow.SetCustomStartCap(&cap), Ok);
    graphics.DrawLine(&arrow, 2, 15, 35, 15);
    int start = 0;
    int end = 0;
    for (int y = 0; y < 30; ++y) {
        start += PixelAt(bitmap, 8, y) != 0;
        end += PixelAt(bitmap, 28, y) != 0;
    }
    EXPECT_GT(start, end) << "wider where the arrowhead is";
    EXPECT_GT(end, 0);
}

TEST(Graphics, FlushesWhatWasDrawn) {
    Bitmap bitmap(4, 3);
    Graphics graphics(&bitmap);
    graphics.Clear(Color(0xFF00FF00));
    graphics.Flush();
    graphics.Flush(FlushIntentionSync);
    EXPECT_EQ(graphics.GetLastStatus(), Ok);
    EXPECT_EQ(PixelsOtherThan(bitmap, 0xFF00FF00), 0);
}

}  // namespace
