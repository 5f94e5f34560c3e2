#include "page/placed_frame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "page/catalogue.h"
#include "page/element_drawing.h"
#include "page/element_of.h"
#include "page/page_pixels.h"
#include "raster_data/make_raster.h"

namespace {

using host_tests::PagePixels;

/// The longest level run of dark pixels.
int LongestRun(const PagePixels& drawn) {
    int longest = 0;
    int run = 0;
    for (int i = 0; i < drawn.width * drawn.height; ++i) {
        const int x = i % drawn.width;
        const bool isDark = drawn.At(x, i / drawn.width).GetGreen() < 128;
        run = !isDark ? 0 : x == 0 ? 1 : run + 1;
        longest = std::max(longest, run);
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
                const PagePixels drawn(kWidth, kHeight, [&](Gdiplus::Graphics& graphics) {
                    host::DrawElement(graphics, frame, {kWidth / 2, kHeight / 2}, 1.0);
                });
                // Of the pen, which is a pixel wide, half is outside at each end.
                EXPECT_NEAR(LongestRun(drawn) - 1.0, length * divisions, 1.0)
                    << style->name << ": " << divisions << " of " << length;
            }
        }
    }
}

// As the element draws it, 300 units at 300 dpi are a head of 900 pixels, and no shaft.
TEST(NorthArrowFrame, LooksTheSameAtEveryResolution) {
    const auto inkOf = [](int size, double scale) {
        auto arrow = std::make_unique<CNorthArrowOneAngle>();
        arrow->SetSize(size);
        host::NorthArrowFrame frame(std::move(arrow));
        const int side = static_cast<int>(3 * size * scale);
        const PagePixels drawn(side, side, [&](Gdiplus::Graphics& graphics) {
            host::DrawElement(graphics, frame, {side / 2, side / 2}, scale);
        });
        double dark = 0.0;
        for (const std::uint32_t pixel : drawn.pixels) {
            dark += 255 - Gdiplus::Color(pixel).GetGreen();
        }
        return dark / 255.0 / (size * scale * size * scale);
    };
    const double asItIs = inkOf(200, 1.0);
    EXPECT_GT(asItIs, 0.01);
    for (const auto& [size, scale] :
         {std::pair(100, 1.0), {80, 4.0}, {200, 3.0}, {300, 2.0}}) {
        EXPECT_NEAR(inkOf(size, scale), asItIs, 0.1 * asItIs) << size << " at " << scale;
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
