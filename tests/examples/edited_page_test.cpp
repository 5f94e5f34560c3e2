#include <algorithm>
#include <sstream>

#include "program.h"

namespace {

using namespace examples;

constexpr double kPixelsPerUnit = 0.4;
constexpr double kPageHeight = 1050.0;

struct Extent {
    double left, bottom, right, top;
};

/// The page after some drags: the frames of the title, the arrow and the scale bar.
class EditedPage {
public:
    explicit EditedPage(const std::string& drags)
        : m_program(EDITED_PAGE, drags), m_image(m_program.Image("edited_page.png")) {
        std::istringstream lines(m_program.Contents("output"));
        for (Extent& frame : m_frames) {
            lines >> frame.left >> frame.bottom >> frame.right >> frame.top;
        }
    }

    Extent Title() const { return m_frames[0]; }
    Extent Arrow() const { return m_frames[1]; }
    Extent Bar() const { return m_frames[2]; }

    /// How high the black within a frame is, without the frame's border, in page units.
    double InkHeight(const Extent& frame) const {
        const int left = static_cast<int>(frame.left * kPixelsPerUnit) + 5;
        const int right = static_cast<int>(frame.right * kPixelsPerUnit) - 5;
        const int top = static_cast<int>((kPageHeight - frame.top) * kPixelsPerUnit) + 5;
        const int bottom =
            static_cast<int>((kPageHeight - frame.bottom) * kPixelsPerUnit) - 5;
        int first = bottom;
        int last = top;
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x) {
                if (PixelAt(*m_image, x, y) == 0xFF000000) {
                    first = std::min(first, y);
                    last = std::max(last, y + 1);
                }
            }
        }
        return (last - first) / kPixelsPerUnit;
    }

    /// Whether there is a handle at a page point.
    bool IsHandleAt(double x, double y) const {
        return PixelAt(*m_image, static_cast<int>(x * kPixelsPerUnit),
                       static_cast<int>((kPageHeight - y) * kPixelsPerUnit)) ==
               0xFF2A6FDB;
    }

private:
    const Session m_session;
    const Program m_program;
    std::unique_ptr<Gdiplus::Bitmap> m_image;
    Extent m_frames[3] = {};
};

void ExpectExtent(const Extent& actual, const Extent& expected) {
    EXPECT_NEAR(actual.left, expected.left, 1.0);
    EXPECT_NEAR(actual.bottom, expected.bottom, 1.0);
    EXPECT_NEAR(actual.right, expected.right, 1.0);
    EXPECT_NEAR(actual.top, expected.top, 1.0);
}

// The arrow is 250 high and 200 wide in a frame of 320 by 270 about (1220, 560).
TEST(EditedPage, StandsAsLaidOut) {
    const EditedPage page("");
    ExpectExtent(page.Arrow(), {1085, 400, 1355, 720});
    for (const double x : {1087.0, 1220.0, 1353.0}) {
        for (const double y : {402.0, 560.0, 718.0}) {
            EXPECT_EQ(page.IsHandleAt(x, y), x != 1220.0 || y != 560.0) << x << ", " << y;
        }
    }
}

TEST(EditedPage, MovesWhatIsDraggedInside) {
    const EditedPage page("1150 500 950 550");
    ExpectExtent(page.Arrow(), {885, 450, 1155, 770});
}

TEST(EditedPage, LeavesWhatIsDraggedBeside) {
    const EditedPage page("1084 560 900 560");
    ExpectExtent(page.Arrow(), {1085, 400, 1355, 720});
}

// The left edge goes out by 100: the arrow is 1.5 times as wide, so 375 high.
TEST(EditedPage, ResizesArrowsByTheLeftHandle) {
    const EditedPage before("");
    const EditedPage after("1086 560 985 560");
    ExpectExtent(after.Arrow(), {985, 337.5, 1355, 782.5});
    EXPECT_NEAR(after.InkHeight(after.Arrow()), 1.5 * before.InkHeight(before.Arrow()),
                8.0);
}

// Right by 20, so 1.1 times, and up by 125, so 1.5 times: the larger way counts.
TEST(EditedPage, ResizesByACorner) {
    const EditedPage after("1354 719 1375 845");
    ExpectExtent(after.Arrow(), {1085, 400, 1455, 845});
}

// The font shrinks with the frame, and the frame is then sized by what the text measures.
TEST(EditedPage, ResizesTitlesByTheLowerHandle) {
    const EditedPage before("");
    const Extent title = before.Title();
    const double height = title.top - title.bottom - 70.0;

    std::ostringstream drag;
    drag << "740 " << title.bottom + 1 << " 740 " << title.bottom + 40;
    const EditedPage after(drag.str());
    EXPECT_NEAR(after.Title().top, title.top, 1.0);
    EXPECT_NEAR(after.Title().bottom, title.bottom + 40.0, 3.0);
    EXPECT_NEAR(after.InkHeight(after.Title()),
                before.InkHeight(title) * (height - 40.0) / height, 8.0);
}

// A bar of twice the size has divisions of twice the length, which stand for twice the
// ground: the frame grows with them.
TEST(EditedPage, ResizesBarsWithTheirDivisions) {
    const Extent bar = EditedPage("").Bar();
    const EditedPage after("740 244 740 325");
    EXPECT_NEAR(after.Bar().bottom, bar.bottom, 1.0);
    EXPECT_NEAR(after.Bar().top, bar.top + 80.0, 1.0);
    EXPECT_NEAR(after.Bar().right - after.Bar().left - 70.0,
                2.0 * (bar.right - bar.left - 70.0), 2.0);
}

}  // namespace
