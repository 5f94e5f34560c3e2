#include "map_page/write_page.h"

#include <gdiplus.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "map_page/progress_line.h"
#include "page/output/page_output.h"
#include "page/units.h"
#include "system/errors.h"
#include "system/one_line.h"

namespace map_page {
namespace {

/// "1754 x 1240 pixels", or "842 x 595 points".
std::string Measured(const host::Page& page, const Options& options) {
    if (!host::IsForPrint(*options.format)) {
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

std::string WriteInto(const Options& options, const host::Page& page,
                      const host::OutputFile& output, const Quiet& quiet) {
    host::Naming("--dpi", [&] { host::CheckPageSize(page, options.dpi); });
    host::Naming(options.output, [&] {
        // A series shows how many pages are done instead.
        ProgressLine line(options.series.empty() ? quiet.Voice() : -1);
        line.Begin("reading the rasters");
        const host::Progress show = [&line](double part) {
            line.Show(part);
            return true;
        };
        const std::vector<std::uint8_t> bytes = host::EncodePage(
            page, *options.format, options.dpi, show,
            [&line] { line.Begin("encoding the page"); }, options.print);
        line.Begin("writing the file");
        output.Write(bytes);
    });
    return Measured(page, options);
}

}  // namespace map_page
