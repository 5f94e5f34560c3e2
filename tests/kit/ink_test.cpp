#include "map_surround/kit/ink.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using map_surround::kit::InkBox;
using map_surround::kit::MeasureInk;

/// Fills boxes that are told from the centre, x to the right and y downwards, at scale 1.
class Boxes : public CMapSurround {
public:
    Boxes(int size, float aspectRatio, std::vector<Gdiplus::RectF> boxes)
        : m_boxes(std::move(boxes)) {
        SetSize(size);
        SetAspectRatio(aspectRatio);
    }

    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override {
        const Gdiplus::SolidBrush brush(Gdiplus::Color(255, 0, 0, 0));
        const auto length = [scale](float value) {
            return static_cast<float>(value * scale);
        };
        for (const Gdiplus::RectF& box : m_boxes) {
            graphics->FillRectangle(&brush, static_cast<float>(centre.x) + length(box.X),
                                    static_cast<float>(centre.y) + length(box.Y),
                                    length(box.Width), length(box.Height));
        }
    }

private:
    std::vector<Gdiplus::RectF> m_boxes;
};

void ExpectInk(const InkBox& ink, const InkBox& expected, double tolerance) {
    EXPECT_NEAR(ink.left, expected.left, tolerance);
    EXPECT_NEAR(ink.right, expected.right, tolerance);
    EXPECT_NEAR(ink.up, expected.up, tolerance);
    EXPECT_NEAR(ink.down, expected.down, tolerance);
}

TEST(Ink, IsNothingWhereNothingIsDrawn) {
    for (const int size : {0, 20, 900}) {
        Boxes none(size, 2.0f, {});
        EXPECT_TRUE(MeasureInk(none).IsEmpty());
    }
}

TEST(Ink, ReachesAsFarAsTheDrawing) {
    Boxes small(20, 5.0f, {{-50.0f, -10.0f, 130.0f, 15.0f}});
    ExpectInk(MeasureInk(small), {50.0, 80.0, 10.0, 5.0}, 0.0);
    Boxes large(600, 2.0f, {{-700.0f, -20.0f, 1600.0f, 50.0f}});
    ExpectInk(MeasureInk(large), {700.0, 900.0, 20.0, 30.0}, 0.0);
}

TEST(Ink, OfWhatIsLargerThanTheLargestBitmapIsExactToAPixelOfThat) {
    Boxes huge(3000, 2.0f, {{-4000.0f, -2000.0f, 7000.0f, 3000.0f}});
    // 12 400 units are looked at in 3 000 pixels: one is 4.1333 units.
    ExpectInk(MeasureInk(huge), {4000.0, 3000.0, 2000.0, 1000.0}, 4.14);
}

TEST(Ink, MayLieToOneSide) {
    Boxes aside(600, 2.0f, {{300.0f, 200.0f, 40.0f, 30.0f}});
    ExpectInk(MeasureInk(aside), {-300.0, 340.0, -200.0, 230.0}, 0.0);
}

TEST(Ink, OfTwoPartsIsAroundBoth) {
    for (const float gap : {1.0f, 10.0f, 20.0f, 40.0f, 100.0f, 400.0f}) {
        Boxes parts(600, 2.0f,
                    {{-50.0f, -10.0f, 100.0f, 20.0f}, {50.0f + gap, -2.0f, 5.0f, 5.0f}});
        ExpectInk(MeasureInk(parts), {50.0, 55.0 + gap, 10.0, 10.0}, 0.0);
    }
}

/// Ninety steps of whole pixels each, so that it is shorter at a small scale.
class Steps : public CMapSurround {
public:
    Steps() {
        SetSize(500);
        SetAspectRatio(2.0f);
    }
    void Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) override {
        const Gdiplus::SolidBrush brush(Gdiplus::Color(255, 0, 0, 0));
        const int step = static_cast<int>(10.0 * scale);
        graphics->FillRectangle(&brush, centre.x, centre.y, 90 * step, 5);
    }
};

TEST(Ink, IsThatOfTheLargeScaleWhereASmallOneDrawsLess) {
    // At a quarter of the scale, ten units are two whole pixels and not 2.5.
    Steps steps;
    ExpectInk(MeasureInk(steps), {0.0, 900.0, 0.0, 5.0}, 0.0);
}

}  // namespace
