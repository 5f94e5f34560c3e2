#include <algorithm>

#include "program.h"

namespace {

using namespace examples;

constexpr double kMillimetresPerInch = 25.4;
constexpr int kMapRed = 0xB9;   // the map's colour, behind the frames
constexpr int kFillRed = 0xF7;  // the frames' background

/// A page as printed: what lies where, in millimetres from its top left corner.
class PrintedPage {
public:
    explicit PrintedPage(int dpi)
        : m_dpi(dpi),
          m_image(Program(FRAMED_PAGE, std::to_string(dpi)).Image("page.png")) {}

    double Width() const { return Millimetres(m_image->GetWidth()); }
    double Height() const { return Millimetres(m_image->GetHeight()); }

    /// The length of black between two points of a horizontal line, parts of pixels
    /// included.
    double Black(double y, double fromX, double toX, int background) const {
        double black = 0.0;
        for (int x = Pixels(fromX); x < Pixels(toX); ++x) {
            black += Darkness(x, Pixels(y), background);
        }
        return Millimetres(black);
    }

    /// Where along a horizontal line it is black first.
    double FirstBlack(double y, double fromX, int background) const {
        int x = Pixels(fromX);
        while (x + 1 < static_cast<int>(m_image->GetWidth()) &&
               Darkness(x, Pixels(y), background) < 0.5) {
            ++x;
        }
        return Millimetres(x);
    }

    /// The height of all that is black in a rectangle.
    double InkHeight(double left, double top, double right, double bottom) const {
        int first = Pixels(bottom);
        int last = 0;
        for (int y = Pixels(top); y < Pixels(bottom); ++y) {
            for (int x = Pixels(left); x < Pixels(right); ++x) {
                if (Darkness(x, y, kFillRed) > 0.5) {
                    first = std::min(first, y);
                    last = std::max(last, y + 1);
                }
            }
        }
        return Millimetres(last - first);
    }

private:
    double Millimetres(double pixels) const {
        return pixels / m_dpi * kMillimetresPerInch;
    }
    int Pixels(double millimetres) const {
        return static_cast<int>(millimetres / kMillimetresPerInch * m_dpi);
    }
    double Darkness(int x, int y, int background) const {
        Gdiplus::Color color;
        m_image->GetPixel(x, y, &color);
        return std::max(0.0, 1.0 - static_cast<double>(color.GetR()) / background);
    }

    int m_dpi;
    std::unique_ptr<Gdiplus::Bitmap> m_image;
};

class PrintedPages : public testing::TestWithParam<int> {
protected:
    const Session m_session;
    const PrintedPage m_page{GetParam()};
    const double m_pixel = kMillimetresPerInch / GetParam();
};

TEST_P(PrintedPages, AreAsLargeAsThePaper) {
    EXPECT_NEAR(m_page.Width(), 148.0, m_pixel);
    EXPECT_NEAR(m_page.Height(), 105.0, m_pixel);
}

// The divisions are 20 mm long, and the third of them is black, from 81.3 mm on; its
// outline is half inside the boxes.
TEST_P(PrintedPages, HaveTrueScaleBars) {
    constexpr double kMiddleOfBoxes = 90.6;
    const double outline = std::max(0.1, m_pixel);
    EXPECT_NEAR(m_page.FirstBlack(kMiddleOfBoxes, 65.0, kFillRed), 81.3,
                m_pixel + outline / 2.0);
    EXPECT_NEAR(m_page.Black(kMiddleOfBoxes, 79.0, 102.0, kFillRed), 20.0 + outline,
                0.05);
}

// A fifth of a millimetre, and never less than a pixel. The pixel that the border shares
// with the fill, which is lighter than the map, counts up to a third too little.
TEST_P(PrintedPages, HaveBordersOfOneWidth) {
    constexpr double kAboveTheBar = 82.0;
    EXPECT_NEAR(m_page.FirstBlack(kAboveTheBar, 20.0, kMapRed), 36.6, m_pixel);
    EXPECT_NEAR(m_page.Black(kAboveTheBar, 35.0, 38.0, kMapRed), std::max(0.2, m_pixel),
                0.4 * m_pixel);
}

// Arial's ascenders reach 0.729 of the em up and its round letters 0.012 down; the em is
// 12 mm.
TEST_P(PrintedPages, HaveTitlesOfOneHeight) {
    EXPECT_NEAR(m_page.InkHeight(53.0, 11.0, 94.0, 25.0), 8.9, 1.5 * m_pixel);
}

// At 42 of the south arm's 68 units from its tip it is 10.5 units wide on either side, on
// the left filled, on the right outlined by two lines of which half of one is on the
// left.
TEST_P(PrintedPages, HaveArrowsOfOneWeight) {
    const double outline = std::max(0.1, m_pixel);
    EXPECT_NEAR(m_page.Black(55.0, 118.0, 126.0, kFillRed), 1.05 + 1.5 * outline, 0.1);
}

INSTANTIATE_TEST_SUITE_P(Dpi, PrintedPages, testing::Values(96, 300, 600));

}  // namespace
