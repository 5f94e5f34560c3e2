#include "page/placed_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "page/catalogue.h"
#include "page/element_drawing.h"
#include "page/element_of.h"

namespace {

/// The longest level run of dark pixels.
int LongestRun(Gdiplus::Bitmap& bitmap, int width, int height) {
    int longest = 0;
    for (int y = 0; y < height; ++y) {
        int run = 0;
        for (int x = 0; x < width; ++x) {
            Gdiplus::Color pixel;
            bitmap.GetPixel(x, y, &pixel);
            run = pixel.GetGreen() < 128 ? run + 1 : 0;
            longest = std::max(longest, run);
        }
    }
    return longest;
}

// Two divisions of 9.49 pixels would be cut to 18, fifty of them to 450 of 474.5.
TEST(ScaleBarFrame, AWholeBarIsTrueToAPixel) {
    constexpr int kWidth = 900;
    constexpr int kHeight = 60;
    for (const host::CatalogueEntry* const style : host::StylesOf(SurroundScaleBar)) {
        for (const int divisions : {1, 2, 4, 7, 50}) {
            for (const double length : {9.49, 10.5, 11.99, 15.01}) {
                auto bar = host::NewElement<CScaleBarBase>(*style);
                bar->SetMainDivCount(divisions);
                bar->SetSubDivCount(0);
                bar->SetSize(40);
                bar->SetUnitsName(L".");  // whose strokes are longer than no division
                host::ScaleBarFrame frame(std::move(bar));
                frame.SetDivisionValue(1.0);
                frame.SetDivisionLength(length);
                frame.GetMapSurround()->ResetAspectRatio();
                Gdiplus::Bitmap bitmap(kWidth, kHeight, PixelFormat32bppRGB);
                {
                    Gdiplus::Graphics graphics(&bitmap);
                    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
                    host::DrawElement(graphics, frame, {kWidth / 2, kHeight / 2}, 1.0);
                }
                // Of the pen, which is a pixel wide, half is outside at each end.
                EXPECT_NEAR(LongestRun(bitmap, kWidth, kHeight) - 1.0, length * divisions,
                            1.0)
                    << style->name << ": " << divisions << " of " << length;
            }
        }
    }
}

}  // namespace
