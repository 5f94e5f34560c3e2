#include "map_page/draw_page.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

#include "map_page/error.h"
#include "map_page/progress_line.h"
#include "page/document/page_text.h"
#include "page/document/raster_store.h"
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

/// The picture element takes any file; so it is opened once before.
void CheckPicture(const std::string& path) {
    const std::string why = path.empty() ? "" : host::CheckImageFile(path);
    if (!why.empty()) {
        throw Error(why);
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

/// A page and what its items point to.
struct OpenedPage {
    host::RasterStore store;
    host::Page page{1.0, 1.0};
};

host::MapOnPage Describe(const std::shared_ptr<host::MapLayers>& map,
                         const std::vector<std::string>& paths,
                         host::RasterStore& store) {
    host::MapOnPage onPage;
    onPage.picture = map;
    onPage.aspectRatio = map->AspectRatio();
    if (map->IsPlaced()) {
        onPage.extent = map->Extent();
        onPage.projection = map->Projection();
    }
    for (const std::string& path : paths) {
        onPage.sources.push_back(store.Raster(path).get());
    }
    return onPage;
}

void WarnOfLeftOut(const host::MapLayers& map, const Quiet& quiet) {
    for (const host::LeftOutRaster& raster : map.LeftOut()) {
        quiet.Warn(raster.raster->Path() + ": left off the map: " + raster.why);
    }
}

/// The automatic page around the rasters.
void LayOut(const Options& options, const Quiet& quiet, OpenedPage& opened) {
    CheckFont("--title-font", options.titleFamily);
    CheckFont("--legend-font", options.legendFamily);
    CheckPicture(options.picture);
    const std::shared_ptr<host::MapLayers> map =
        opened.store.Map(options.rasters, std::nullopt);
    WarnOfLeftOut(*map, quiet);
    host::LaidOutPage laidOut =
        host::LayOut(options.design, Describe(map, options.rasters, opened.store));
    for (const std::string& remark : laidOut.remarks) {
        quiet.Warn(remark);
    }
    host::NameRasters(laidOut.page, options.rasters);
    opened.page = std::move(laidOut.page);
}

/// The page of the page file.
void Load(const Options& options, const Quiet& quiet, OpenedPage& opened) {
    Naming(options.pageFile, [&] {
        opened.page = host::LoadPage(options.pageFile);
        host::CheckFilesAndFonts(opened.page);
        ChangeAndOpen(opened.page, options.changes, opened.store);
    });
    for (const host::PageItem& item : opened.page.Items()) {
        const auto* const map = std::get_if<host::MapFrame>(&item);
        const auto* const layers =
            map == nullptr ? nullptr
                           : dynamic_cast<const host::MapLayers*>(map->picture.get());
        if (layers != nullptr) {
            WarnOfLeftOut(*layers, quiet);
        }
    }
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

std::string DrawInto(const Options& options, const host::Page& page,
                     host::OutputFile& output, const Quiet& quiet) {
    const Gdiplus::Size size = CheckPixels(page, options.dpi);
    const host::ImageFormat format = CheckFormat(options.output);
    std::vector<std::uint8_t> bytes;
    Naming(options.output, [&] {
        // Of a series, the pages that are done are shown.
        ProgressLine line(options.series.empty() ? quiet.Voice() : -1);
        bytes = DrawAndEncode(page, size, options.dpi, format, line);
        line.Begin("writing the file");
        output.Write(bytes);
    });
    return options.output + ": " + std::to_string(size.Width) + " x " +
           std::to_string(size.Height) + " pixels, " + std::to_string(bytes.size()) +
           " bytes";
}

std::string Save(const Options& options, const host::Page& page) {
    return Naming(options.save, [&] {
        const std::string text = host::WritePage(page, host::FilePaths(options.save));
        host::OutputFile file(options.save);
        file.Write({text.begin(), text.end()});
        file.Commit();
        return options.save + ": " + std::to_string(page.Items().size()) + " elements, " +
               std::to_string(text.size()) + " bytes";
    });
}

}  // namespace

std::string DrawPage(const Options& options, host::OutputFile* output,
                     const Quiet& quiet) {
    if (output != nullptr) {
        CheckFormat(options.output);
    }
    OpenedPage opened;
    (options.pageFile.empty() ? LayOut : Load)(options, quiet, opened);
    std::string summary;
    if (output != nullptr) {
        summary = DrawInto(options, opened.page, *output, quiet);
    }
    if (!options.save.empty()) {
        summary += (summary.empty() ? "" : "\n") + Save(options, opened.page);
    }
    return summary;
}

void CheckSeries(const Options& options, const std::vector<std::string>& columns) {
    CheckFormat(options.output);
    const host::Page page =
        Naming(options.pageFile, [&] { return host::LoadPage(options.pageFile); });
    for (const std::string& column : columns) {
        if (!HasText(page, column)) {
            throw Error(options.series,
                        "the column \"" + column + "\" is no element with a text in " +
                            options.pageFile + ", and not in the output's name");
        }
    }
}

}  // namespace map_page
