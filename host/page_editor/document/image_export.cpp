#include "page_editor/document/image_export.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

#include "page/image_file.h"
#include "page/output_file.h"
#include "page/page_image.h"
#include "page_editor/document/page_files.h"

namespace page_editor {
namespace {

// GDI+ draws on no longer surfaces; A0 at 400 dpi is 248 million pixels.
constexpr int kLongestSide = 32767;
constexpr std::int64_t kMostPixels = 250'000'000;

Gdiplus::Size SizeFor(const host::Page& page, double dpi) {
    const Gdiplus::Size size = host::PixelSize(page, dpi);
    if (size.Width > kLongestSide || size.Height > kLongestSide ||
        std::int64_t{size.Width} * size.Height > kMostPixels) {
        throw std::runtime_error("would have " + std::to_string(size.Width) + " x " +
                                 std::to_string(size.Height) +
                                 " pixels; at most 32767 a side and 250 million are "
                                 "drawn");
    }
    return size;
}

}  // namespace

void ExportImage(const host::Page& page, const std::string& path, double dpi,
                 const host::Progress& progress) {
    Naming(path, [&] {
        const std::optional<host::ImageFormat> format = host::FormatOf(path);
        if (!format) {
            throw std::runtime_error("ends in none of .png .jpg .jpeg .bmp .tif .tiff");
        }
        host::OutputFile file(path);
        host::PageImage image(SizeFor(page, dpi));
        {
            Gdiplus::Graphics graphics(&image.Bitmap());
            page.Draw(graphics, dpi, progress);
        }
        file.Write(host::Encode(image, *format, dpi));
        file.Commit();
    });
}

}  // namespace page_editor
