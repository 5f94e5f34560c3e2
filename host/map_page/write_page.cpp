#include "map_page/write_page.h"

#include <gdiplus.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <vector>

#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "page/image_file.h"
#include "page/print/print_file.h"
#include "page/units.h"

namespace map_page {
namespace {

// libgdiplus draws on surfaces of at most 32767 pixels a side; A0 at 400 dpi is 248
// million pixels.
constexpr int kLongestSide = 32767;
constexpr std::int64_t kMostPixels = 250'000'000;

Gdiplus::Size CheckPixels(const host::Page& page, double dpi) {
    const Gdiplus::Size size = host::PixelSize(page, dpi);
    if (size.Width > kLongestSide || size.Height > kLongestSide ||
        std::int64_t{size.Width} * size.Height > kMostPixels) {
        throw Error("--dpi", "the page would have " + std::to_string(size.Width) + " x " +
                                 std::to_string(size.Height) +
                                 " pixels; at most 32767 a side and 250 million are "
                                 "drawn");
    }
    return size;
}

host::Progress Shown(ProgressLine& line) {
    return [&line](double part) {
        line.Show(part);
        return true;
    };
}

std::vector<std::uint8_t> DrawImage(const host::Page& page, host::ImageFormat format,
                                    double dpi, ProgressLine& line) {
    host::PageImage image(host::PixelSize(page, dpi));
    {
        Gdiplus::Graphics graphics(&image.Bitmap());
        page.Draw(graphics, dpi, Shown(line));
    }
    line.Begin("encoding the image");
    return host::Encode(image, format, dpi);
}

std::vector<std::uint8_t> Drawn(const host::Page& page, const std::string& output,
                                double dpi, ProgressLine& line) {
    line.Begin("reading the rasters");
    if (const std::optional<host::PrintFormat> print = host::PrintFormatOf(output)) {
        return host::EncodeForPrint(page, *print, dpi, Shown(line));
    }
    return DrawImage(page, host::FormatOf(output).value(), dpi, line);
}

/// "1754 x 1240 pixels", or "842 x 595 points".
std::string Measured(const host::Page& page, const std::string& output,
                     Gdiplus::Size pixels) {
    if (!host::PrintFormatOf(output)) {
        return std::to_string(pixels.Width) + " x " + std::to_string(pixels.Height) +
               " pixels";
    }
    const auto points = [](double units) {
        return std::to_string(std::lround(host::PointsFromUnits(units)));
    };
    return points(page.Width()) + " x " + points(page.Height()) + " points";
}

}  // namespace

void CheckOutput(const std::string& output) {
    if (const std::optional<host::PrintFormat> print = host::PrintFormatOf(output)) {
        Naming(output, [&] { host::CheckPrinting(*print); });
    } else if (!host::FormatOf(output)) {
        throw Error(output, "ends in none of .png .jpg .jpeg .bmp .tif .tiff .pdf .ps");
    }
}

std::string WriteInto(const Options& options, const host::Page& page,
                      host::OutputFile& output, const Quiet& quiet) {
    const Gdiplus::Size pixels = CheckPixels(page, options.dpi);
    std::vector<std::uint8_t> bytes;
    Naming(options.output, [&] {
        // Of a series, the pages that are done are shown.
        ProgressLine line(options.series.empty() ? quiet.Voice() : -1);
        bytes = Drawn(page, options.output, options.dpi, line);
        line.Begin("writing the file");
        output.Write(bytes);
    });
    return options.output + ": " + Measured(page, options.output, pixels) + ", " +
           std::to_string(bytes.size()) + " bytes";
}

}  // namespace map_page
