#include "page/page_pixels.h"

namespace host_tests {
namespace {

PagePixels PixelsDrawn(Gdiplus::Size size,
                       const std::function<void(Gdiplus::Graphics&)>& draw) {
    host::PageImage image(size);
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        draw(graphics);
    }
    return PagePixels(image);
}

}  // namespace

PagePixels::PagePixels(const host::PageImage& image)
    : width(image.Rows().width), height(image.Rows().height) {
    const host::PixelRows rows = image.Rows();
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* pixel = rows.first + y * rows.stride;
        for (int x = 0; x < width; ++x, pixel += 4) {
            pixels.push_back(Gdiplus::Color(pixel[2], pixel[1], pixel[0]).GetValue());
        }
    }
}

PagePixels::PagePixels(const host::Page& page, double dpi)
    : PagePixels(
          PixelsDrawn(host::PixelSize(page, dpi),
                      [&](Gdiplus::Graphics& graphics) { page.Draw(graphics, dpi); })) {}

PagePixels::PagePixels(int across, int down,
                       const std::function<void(Gdiplus::Graphics&)>& draw)
    : PagePixels(PixelsDrawn({across, down}, [&](Gdiplus::Graphics& graphics) {
          graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
          draw(graphics);
      })) {}

Gdiplus::Color PagePixels::At(int x, int y) const {
    return Gdiplus::Color(pixels.at(static_cast<std::size_t>(y * width + x)));
}

}  // namespace host_tests
