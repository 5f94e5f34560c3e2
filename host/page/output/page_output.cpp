#include "page/output/page_output.h"

#include <gdiplus.h>

#include <optional>
#include <stdexcept>

#include "page/output/image_file.h"
#include "page/output/page_image.h"
#include "page/output/print_file.h"

namespace host {
namespace {

// libgdiplus draws on surfaces of at most 32767 pixels a side.
constexpr int kLongestSide = 32767;
constexpr std::int64_t kMostPixels = 250'000'000;

constexpr const char* kNoFormat =
    "ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .ps";

}  // namespace

void CheckPageOutput(const std::string& path) {
    if (const std::optional<PrintFormat> print = PrintFormatOf(path)) {
        CheckPrinting(*print);
    } else if (!FormatOf(path)) {
        throw std::runtime_error(kNoFormat);
    }
}

std::string WhyTooLarge(const Page& page, double dpi) {
    const Gdiplus::Size size = PixelSize(page, dpi);
    if (size.Width <= kLongestSide && size.Height <= kLongestSide &&
        std::int64_t{size.Width} * size.Height <= kMostPixels) {
        return {};
    }
    return "would have " + std::to_string(size.Width) + " x " +
           std::to_string(size.Height) +
           " pixels; at most 32767 a side and 250 million are drawn";
}

std::vector<std::uint8_t> EncodePage(const Page& page, const std::string& path,
                                     double dpi, const Progress& progress,
                                     const std::function<void()>& encoding) {
    if (const std::optional<PrintFormat> print = PrintFormatOf(path)) {
        return EncodeForPrint(page, *print, dpi, progress);
    }
    const std::optional<ImageFormat> format = FormatOf(path);
    if (!format) {
        throw std::runtime_error(kNoFormat);
    }
    PageImage image(PixelSize(page, dpi));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, dpi, progress);
    }
    if (encoding) {
        encoding();
    }
    return Encode(image, *format, dpi);
}

}  // namespace host
