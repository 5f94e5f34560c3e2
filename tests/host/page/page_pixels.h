#pragma once

#include <gdiplus.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "page/output/page_image.h"
#include "page/page.h"

namespace host_tests {

/// What is drawn, row by row, as 0xFFRRGGBB.
struct PagePixels {
    explicit PagePixels(const host::PageImage& image);
    PagePixels(const host::Page& page, double dpi);
    /// Drawn on white.
    PagePixels(int across, int down, const std::function<void(Gdiplus::Graphics&)>& draw);

    Gdiplus::Color At(int x, int y) const;
    bool operator==(const PagePixels& other) const { return pixels == other.pixels; }

    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};

}  // namespace host_tests
