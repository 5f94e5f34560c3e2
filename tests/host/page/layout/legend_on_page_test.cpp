#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <set>
#include <vector>

#include "legend/fake_sources.h"
#include "map_surround/legend.h"
#include "page/page.h"
#include "recording/expect.h"

namespace {

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

/// The grey values of a page, row by row; -1 for what is no grey.
struct Greys {
    int width;
    int height;
    std::vector<int> values;
    int At(int x, int y) const {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

Greys Read(Gdiplus::Bitmap& bitmap, int width, int height, bool mix) {
    Greys greys = {width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Gdiplus::Color pixel;
            bitmap.GetPixel(x, y, &pixel);
            const bool isGrey =
                pixel.GetR() == pixel.GetG() && pixel.GetG() == pixel.GetB();
            const int mixed = (pixel.GetR() + pixel.GetG() + pixel.GetB()) / 3;
            greys.values.push_back(mix || isGrey ? mixed : -1);
        }
    }
    return greys;
}

std::unique_ptr<Gdiplus::Bitmap> Draw(const host::Page& page, double dpi) {
    const Gdiplus::Size size = host::PixelSize(page, dpi);
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(size.Width, size.Height);
    Gdiplus::Graphics graphics(bitmap.get());
    page.Draw(graphics, dpi);
    return bitmap;
}

TEST(LegendOnPage, RampRunsFromLightToBlack) {
    fakes::Raster source = Source(DisplayGray);
    for (const double dpi : {96.0, 150.0, 300.0}) {
        const host::Page page = LegendPage({&source}, 150);
        const Gdiplus::Size size = host::PixelSize(page, dpi);
        const auto bitmap = Draw(page, dpi);
        const Greys greys = Read(*bitmap, size.Width, size.Height, false);

        // The column with the most different greys goes through the ramp, not the texts.
        int rampColumn = 0;
        std::size_t most = 0;
        for (int x = 0; x < greys.width; ++x) {
            std::set<int> different;
            for (int y = 0; y < greys.height; ++y) {
                different.insert(greys.At(x, y));
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
        for (int y = 0; y < greys.height; ++y) {
            run = greys.At(x, y) == 255 ? 0 : run + 1;
            if (run > length) {
                length = run;
                begin = y - run + 1;
            }
        }
        ASSERT_GT(length, 20);
        EXPECT_GE(greys.At(x, begin), 235) << "starts light, at " << dpi;
        for (int y = begin + 1; y < begin + length; ++y) {
            EXPECT_LE(greys.At(x, y), greys.At(x, y - 1)) << "gets darker, at " << dpi;
        }
        EXPECT_LE(greys.At(x, begin + length - 1), 2) << "ends in black, at " << dpi;
    }
}

/// A page brought to a coarse grid, in which hinting and smoothing no longer show.
Greys Coarse(const host::Page& page, double dpi) {
    constexpr int kGrid = 80;
    const auto bitmap = Draw(page, dpi);
    const Gdiplus::Size size = host::PixelSize(page, dpi);
    const Greys all = Read(*bitmap, size.Width, size.Height, true);
    Greys coarse = {kGrid, kGrid, {}};
    for (int row = 0; row < kGrid; ++row) {
        for (int column = 0; column < kGrid; ++column) {
            long sum = 0;
            long count = 0;
            for (int y = row * all.height / kGrid; y < (row + 1) * all.height / kGrid;
                 ++y) {
                for (int x = column * all.width / kGrid;
                     x < (column + 1) * all.width / kGrid; ++x) {
                    sum += all.At(x, y);
                    ++count;
                }
            }
            coarse.values.push_back(static_cast<int>(sum / std::max(1L, count)));
        }
    }
    return coarse;
}

/// How far two pictures are from each other, as a part of their ink.
double Difference(const Greys& a, const Greys& b) {
    double difference = 0.0;
    double ink = 0.0;
    for (std::size_t i = 0; i < a.values.size(); ++i) {
        difference += std::abs(a.values[i] - b.values[i]);
        ink += 255 - a.values[i];
    }
    return difference / ink;
}

TEST(LegendOnPage, IsTheSamePictureAtAnyResolution) {
    fakes::Raster rgb = Source(DisplayRGB);
    fakes::Raster grey = Source(DisplayGray);
    const std::vector<CGISDataSource*> sources = {&rgb, &grey};
    const Greys screen = Coarse(LegendPage(sources, 240), 96.0);
    const Greys print = Coarse(LegendPage(sources, 240), 300.0);
    const Greys other = Coarse(LegendPage(sources, 228), 300.0);
    EXPECT_LT(Difference(screen, print), 0.5 * Difference(screen, other))
        << "the same legend is nearer than one that is 5 % smaller";
}

}  // namespace
