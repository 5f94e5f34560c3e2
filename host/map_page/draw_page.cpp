#include "map_page/draw_page.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "page/fonts.h"
#include "page/image_file.h"
#include "page/layout.h"
#include "page/map_layers.h"

namespace map_page {
namespace {

// libgdiplus draws on surfaces of at most 32767 pixels a side; A0 at 400 dpi is 248
// million pixels.
constexpr int kLongestSide = 32767;
constexpr std::int64_t kMostPixels = 250'000'000;

void CheckIsFile(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        throw Error(path, std::generic_category().message(errno));
    }
    if (S_ISDIR(status.st_mode)) {
        throw Error(path, std::generic_category().message(EISDIR));
    }
}

std::vector<std::shared_ptr<host::GdalRaster>> OpenRasters(
    const std::vector<std::string>& paths) {
    std::vector<std::shared_ptr<host::GdalRaster>> rasters;
    for (const std::string& path : paths) {
        std::string why;
        std::shared_ptr<host::GdalRaster> raster = host::GdalRaster::Open(path, why);
        if (raster == nullptr) {
            throw Error(path, why);
        }
        rasters.push_back(std::move(raster));
    }
    return rasters;
}

/// The picture element takes any file; so it is opened once before.
void CheckPicture(const Options& options) {
    if (options.picture.empty()) {
        return;
    }
    CheckIsFile(options.picture);
    Gdiplus::Image image(options.design.picture.path.c_str());
    if (image.GetLastStatus() != Gdiplus::Ok || image.GetWidth() == 0 ||
        image.GetHeight() == 0) {
        throw Error(options.picture, "is no image that can be read");
    }
    if (image.GetWidth() > kLongestSide || image.GetHeight() > kLongestSide) {
        throw Error(options.picture, "has " + std::to_string(image.GetWidth()) + " x " +
                                         std::to_string(image.GetHeight()) +
                                         " pixels; at most 32767 a side are drawn");
    }
}

void CheckFont(const std::string& option, const std::string& family) {
    if (!host::IsFontFamilyKnown(family)) {
        throw Error(option, "no font family \"" + family + "\" is installed");
    }
}

host::ImageFormat CheckFormat(const std::string& output) {
    const std::optional<host::ImageFormat> format = host::FormatOf(output);
    if (!format) {
        throw Error(output, "ends in none of .png .jpg .jpeg .bmp .tif .tiff");
    }
    return *format;
}

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

/// The sources belong to the rasters, which outlive the page.
host::MapOnPage Describe(const std::shared_ptr<host::MapLayers>& map,
                         const std::vector<std::shared_ptr<host::GdalRaster>>& rasters) {
    host::MapOnPage onPage;
    onPage.picture = map;
    onPage.aspectRatio = map->AspectRatio();
    if (map->IsPlaced()) {
        onPage.extent = map->Extent();
        onPage.projection = map->Projection();
    }
    for (const std::shared_ptr<host::GdalRaster>& raster : rasters) {
        onPage.sources.push_back(raster.get());
    }
    return onPage;
}

void Draw(const host::Page& page, Gdiplus::Bitmap& bitmap, double dpi,
          ProgressLine& line) {
    line.Begin("reading the rasters");
    Gdiplus::Graphics graphics(&bitmap);
    page.Draw(graphics, dpi, [&line](double part) {
        line.Show(part);
        return true;
    });
}

std::vector<std::uint8_t> DrawAndEncode(const host::Page& page, Gdiplus::Size size,
                                        double dpi, host::ImageFormat format,
                                        ProgressLine& line) {
    host::PageImage image(size);
    Draw(page, image.Bitmap(), dpi, line);
    line.Begin("encoding the image");
    return host::Encode(image, format, dpi);
}

}  // namespace

std::string DrawPage(const Options& options, host::OutputFile& output,
                     const Quiet& quiet) {
    const host::ImageFormat format = CheckFormat(options.output);
    CheckFont("--title-font", options.titleFamily);
    CheckFont("--legend-font", options.legendFamily);
    CheckPicture(options);
    const std::vector<std::shared_ptr<host::GdalRaster>> rasters =
        OpenRasters(options.rasters);
    const auto map = std::make_shared<host::MapLayers>(rasters);
    for (const host::LeftOutRaster& raster : map->LeftOut()) {
        quiet.Warn(raster.raster->Path() + ": left off the map: " + raster.why);
    }

    const host::LaidOutPage laidOut =
        host::LayOut(options.design, Describe(map, rasters));
    for (const std::string& remark : laidOut.remarks) {
        quiet.Warn(remark);
    }
    const Gdiplus::Size size = CheckPixels(laidOut.page, options.dpi);

    std::vector<std::uint8_t> bytes;
    Naming(options.output, [&] {
        ProgressLine line(quiet.Voice());
        bytes = DrawAndEncode(laidOut.page, size, options.dpi, format, line);
        line.Begin("writing the file");
        output.Write(bytes);
    });
    return options.output + ": " + std::to_string(size.Width) + " x " +
           std::to_string(size.Height) + " pixels, " + std::to_string(bytes.size()) +
           " bytes";
}

}  // namespace map_page
