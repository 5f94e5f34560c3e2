#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <set>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/legend.h"
#include "page/page.h"
#include "page/page_pixels.h"

namespace {

using host_tests::PagePixels;

constexpr double kSide = 320.0;  // page units

fakes::Raster Source(DataDisplayType display) {
    fakes::Raster source(L"elevation.tif", display);
    source.band.lowest = -3.7;
    source.band.highest = 255.9;
    return source;
}

/// A page with nothing but a legend of some sources.
host::Page LegendPage(const std::vector<CGISDataSource*>& sources, int size) {
    auto legend = std::make_unique<CMapLegend>();
    legend->SetDataSouce(sources);
    legend->SetTitleValue(L"Legend");
    legend->ResetAspectRatio();
    legend->SetSize(size);
    auto frame = std::make_unique<CSurroundFrame>();
    frame->SetMapSurround(legend.release());
    frame->SetExtent(CBoundingBox(0.0, 0.0, kSide, kSide));
    host::Page page(kSide, kSide);
    page.Add(std::move(frame));
    return page;
}

/// A pixel's grey; -1 where it is none.
int GreyAt(const PagePixels& drawn, int x, int y) {
    const Gdiplus::Color pixel = drawn.At(x, y);
    const bool isGrey = pixel.GetR() == pixel.GetG() && pixel.GetG() == pixel.GetB();
    return isGrey ? pixel.GetR() : -1;
}

TEST(LegendOnPage, RampRunsFromLightToBlack) {
    fakes::Raster source = Source(DisplayGray);
    for (const double dpi : {96.0, 150.0, 300.0}) {
        const PagePixels drawn(LegendPage({&source}, 150), dpi);

        // The column with the most different greys goes through the ramp, not the texts.
        int rampColumn = 0;
        std::size_t most = 0;
        for (int x = 0; x < drawn.width; ++x) {
            std::set<int> different;
            for (int y = 0; y < drawn.height; ++y) {
                different.insert(GreyAt(drawn, x, y));
            }
            if (different.size() > most) {
                most = different.size();
                rampColumn = x;
            }
        }
        const int x = rampColumn + 2;  // not at its edge

        // Texts stand in the same column; the ramp is its longest stretch of ink.
        int begin = 0;
        int length = 0;
        int run = 0;
        for (int y = 0; y < drawn.height; ++y) {
            run = GreyAt(drawn, x, y) == 255 ? 0 : run + 1;
            if (run > length) {
                length = run;
                begin = y - run + 1;
            }
        }
        ASSERT_GT(length, 20);
        EXPECT_GE(GreyAt(drawn, x, begin), 235) << "starts light, at " << dpi;
        for (int y = begin + 1; y < begin + length; ++y) {
            EXPECT_LE(GreyAt(drawn, x, y), GreyAt(drawn, x, y - 1))
                << "gets darker, at " << dpi;
        }
        EXPECT_LE(GreyAt(drawn, x, begin + length - 1), 2) << "ends in black, at " << dpi;
    }
}

/// The mean shade in each field of a coarse grid, in which hinting and smoothing no
/// longer show.
std::vector<long> Coarse(const host::Page& page, double dpi) {
    constexpr int kGrid = 80;
    const PagePixels all(page, dpi);
    std::vector<long> sums(std::size_t{kGrid} * kGrid);
    std::vector<long> counts(sums.size());
    for (int y = 0; y < all.height; ++y) {
        for (int x = 0; x < all.width; ++x) {
            const auto field = static_cast<std::size_t>(y * kGrid / all.height * kGrid +
                                                        x * kGrid / all.width);
            const Gdiplus::Color pixel = all.At(x, y);
            sums[field] += (pixel.GetR() + pixel.GetG() + pixel.GetB()) / 3;
            ++counts[field];
        }
    }
    for (std::size_t i = 0; i < sums.size(); ++i) {
        sums[i] /= counts[i];
    }
    return sums;
}

/// How far two pictures are from each other, as a part of their ink.
double Difference(const std::vector<long>& a, const std::vector<long>& b) {
    double difference = 0.0;
    double ink = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        difference += static_cast<double>(std::abs(a[i] - b[i]));
        ink += static_cast<double>(255 - a[i]);
    }
    return difference / ink;
}

TEST(LegendOnPage, IsTheSamePictureAtAnyResolution) {
    fakes::Raster rgb = Source(DisplayRGB);
    fakes::Raster grey = Source(DisplayGray);
    const std::vector<CGISDataSource*> sources = {&rgb, &grey};
    const std::vector<long> screen = Coarse(LegendPage(sources, 240), 96.0);
    const std::vector<long> print = Coarse(LegendPage(sources, 240), 300.0);
    const std::vector<long> other = Coarse(LegendPage(sources, 228), 300.0);
    EXPECT_LT(Difference(screen, print), 0.5 * Difference(screen, other))
        << "the same legend is nearer than one that is 5 % smaller";
}

}  // namespace
