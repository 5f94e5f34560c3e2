#include "map_page/write_page.h"

#include <gdiplus.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "page/output/page_output.h"
#include "page/output/print_file.h"
#include "page/units.h"

namespace map_page {
namespace {

/// "1754 x 1240 pixels", or "842 x 595 points".
std::string Measured(const host::Page& page, const Options& options) {
    if (!host::PrintFormatOf(options.output)) {
        const Gdiplus::Size pixels = host::PixelSize(page, options.dpi);
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
    Naming(output, [&] { host::CheckPageOutput(output); });
}

std::string WriteInto(const Options& options, const host::Page& page,
                      host::OutputFile& output, const Quiet& quiet) {
    const std::string tooLarge = host::WhyTooLarge(page, options.dpi);
    if (!tooLarge.empty()) {
        throw Error("--dpi", "the page " + tooLarge);
    }
    std::vector<std::uint8_t> bytes;
    Naming(options.output, [&] {
        // Of a series, the pages that are done are shown.
        ProgressLine line(options.series.empty() ? quiet.Voice() : -1);
        line.Begin("reading the rasters");
        const host::Progress show = [&line](double part) {
            line.Show(part);
            return true;
        };
        bytes = host::EncodePage(page, options.output, options.dpi, show,
                                 [&line] { line.Begin("encoding the image"); });
        line.Begin("writing the file");
        output.Write(bytes);
    });
    return options.output + ": " + Measured(page, options) + ", " +
           std::to_string(bytes.size()) + " bytes";
}

}  // namespace map_page
