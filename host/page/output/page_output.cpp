#include "page/output/page_output.h"

#include <gdiplus.h>

#include <stdexcept>
#include <string>

#include "page/output/image_file.h"
#include "page/output/page_image.h"
#include "page/output/pdf/pdf_file.h"
#include "page/output/postscript_file.h"
#include "page/output/svg_file.h"
#include "page/texts.h"

namespace host {
namespace {

// Cairo draws on surfaces of at most 32767 pixels along a side.
constexpr int kLongestImageSide = 32767;
constexpr std::int64_t kMostImagePixels = 250'000'000;

std::vector<std::uint8_t> EncodeForPrint(const Page& page, OutputFormat format,
                                         double dpi, const Progress& progress,
                                         const PrintSettings& print) {
    switch (format) {
        case OutputFormat::Pdf:
            return EncodePdf(page, {dpi, print}, progress);
        case OutputFormat::Svg:
            return EncodeSvg(page, dpi, progress, print);
        default:
            return EncodePostScript(page, dpi, progress, print);
    }
}

}  // namespace

void CheckPageSize(const Page& page, double dpi) {
    const Gdiplus::Size size = PixelSize(page, dpi);
    if (size.Width > kLongestImageSide || size.Height > kLongestImageSide ||
        std::int64_t{size.Width} * size.Height > kMostImagePixels) {
        throw std::runtime_error("the page would have " + std::to_string(size.Width) +
                                 " x " + std::to_string(size.Height) +
                                 " pixels; at most 32767 a side and 250 million are "
                                 "drawn");
    }
}

std::vector<std::uint8_t> EncodePage(const Page& page, OutputFormat format, double dpi,
                                     const Progress& progress,
                                     const std::function<void()>& encoding,
                                     const PrintSettings& print) {
    if (IsForPrint(format)) {
        PrintSettings settings = print;
        settings.drawn = encoding;
        std::vector<std::uint8_t> file =
            EncodeForPrint(page, format, dpi, progress, settings);
        CheckWritten(page);
        return file;
    }
    PageImage image(PixelSize(page, dpi));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, dpi, progress);
    }
    CheckWritten(page);
    if (encoding) {
        encoding();
    }
    std::string why;  // without coordinates it is just an image
    return Encode(
        image, format, dpi,
        format == OutputFormat::Tiff ? GeoreferenceOf(page, dpi, why) : std::nullopt);
}

}  // namespace host
