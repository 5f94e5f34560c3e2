#include "page/placed_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "page/catalogue.h"
#include "page/element_drawing.h"
#include "page/element_of.h"
#include "raster_data/make_raster.h"

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

// As the element draws it, 300 units at 300 dpi are a head of 900 pixels, and no shaft.
TEST(NorthArrowFrame, LooksTheSameAtEveryResolution) {
    struct Row {
        int size;
        double scale;
    };
    const auto inkOf = [](int size, double scale) {
        auto arrow = std::make_unique<CNorthArrowOneAngle>();
        arrow->SetSize(size);
        host::NorthArrowFrame frame(std::move(arrow));
        const int side = static_cast<int>(3 * size * scale);
        Gdiplus::Bitmap bitmap(side, side, PixelFormat32bppRGB);
        {
            Gdiplus::Graphics graphics(&bitmap);
            graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
            host::DrawElement(graphics, frame, {side / 2, side / 2}, scale);
        }
        double dark = 0.0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                Gdiplus::Color pixel;
                bitmap.GetPixel(x, y, &pixel);
                dark += 255 - pixel.GetGreen();
            }
        }
        return dark / 255.0 / (size * scale * size * scale);
    };
    const double asItIs = inkOf(200, 1.0);
    EXPECT_GT(asItIs, 0.01);
    for (const Row& row : {Row{100, 1.0}, Row{80, 4.0}, Row{200, 3.0}, Row{300, 2.0}}) {
        EXPECT_NEAR(inkOf(row.size, row.scale), asItIs, 0.1 * asItIs)
            << row.size << " at " << row.scale;
    }
}

TEST(LegendFrame, ExplainsAPaletteThatIsARampByIt) {
    raster_test::Palette palette;
    for (short value = 0; value < 100; ++value) {
        palette.push_back({value, {value, 1, 2, 255}});
    }
    const auto raster = raster_test::WriteAndOpen(raster_test::With(
        {100, {raster_test::Ramp(0, 99)}}, raster_test::Coloured(palette)));
    const auto rampOf = [&](bool explains, bool isShown) {
        host::LegendFrame frame(std::make_unique<CMapLegend>());
        frame.SetExplainsRamps(explains);
        frame.SetSources({raster.get(), nullptr}, {{L"", isShown}});
        const auto shown = host::ElementOf<CMapLegend>(frame)->GetShownSources();
        return shown.at(0).ramp;
    };
    EXPECT_TRUE(rampOf(false, true).empty());
    EXPECT_TRUE(rampOf(true, false).empty());
    const std::vector<Gdiplus::Color> ramp = rampOf(true, true);
    ASSERT_EQ(ramp.size(), 100U);
    EXPECT_EQ(ramp.front().GetValue(), 0xFF630102U) << "the highest value";
    EXPECT_EQ(ramp.back().GetValue(), 0xFF000102U);
}

}  // namespace
