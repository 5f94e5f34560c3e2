#include "page/output/cairo_map.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "page/output/cairo_page.h"
#include "page/output/image_file.h"
#include "page/output/png_image.h"
#include "page/units.h"

namespace host {
namespace {

using FileOfImage = std::vector<std::uint8_t>;

constexpr int kJpegQuality = 90;

/// The encoded file that represents a surface in the output.
void StandAs(cairo_surface_t* image, const char* kind, FileOfImage file) {
    auto kept = std::make_unique<FileOfImage>(std::move(file));
    const auto drop = [](void* bytes) { delete static_cast<FileOfImage*>(bytes); };
    if (cairo_surface_set_mime_data(image, kind, kept->data(), kept->size(), drop,
                                    kept.get()) == CAIRO_STATUS_SUCCESS) {
        static_cast<void>(kept.release());
    }
}

bool IsOpaqueImage(const PixelImage& image) {
    std::uint8_t alphas = 255;
    for (std::size_t i = 3; i < image.bgra.size(); i += 4) {
        alphas &= image.bgra[i];
    }
    return alphas == 255;
}

/// The alphas alone, in Cairo's row layout.
std::vector<std::uint8_t> AlphasOf(const PixelImage& image) {
    const int stride = cairo_format_stride_for_width(CAIRO_FORMAT_A8, image.width);
    std::vector<std::uint8_t> alphas(static_cast<std::size_t>(stride) *
                                     static_cast<std::size_t>(image.height));
    const std::uint8_t* alpha = image.bgra.data() + 3;
    for (int row = 0; row < image.height; ++row) {
        std::uint8_t* const to =
            alphas.data() + static_cast<std::ptrdiff_t>(row) * stride;
        for (int column = 0; column < image.width; ++column, alpha += 4) {
            to[column] = *alpha;
        }
    }
    return alphas;
}

/// Partly transparent colours as Cairo keeps them.
void Premultiply(PixelImage& image) {
    for (std::size_t i = 0; i < image.bgra.size(); i += 4) {
        const unsigned alpha = image.bgra[i + 3];
        for (std::size_t j = i; alpha < 255 && j < i + 3; ++j) {
            image.bgra[j] =
                static_cast<std::uint8_t>((image.bgra[j] * alpha + 127) / 255);
        }
    }
}

CairoSurface SurfaceOver(std::uint8_t* pixels, cairo_format_t format,
                         const PixelImage& image) {
    return Owned(cairo_image_surface_create_for_data(
        pixels, format, image.width, image.height,
        cairo_format_stride_for_width(format, image.width)));
}

}  // namespace

void DrawMapImage(cairo_surface_t* surface, const MapFrame& map, const CRect& frame,
                  double dpi, MapImages images, const Progress& progress) {
    PixelImage image =
        map.picture->Render(std::max(1, frame.right - frame.left),
                            std::max(1, frame.bottom - frame.top), progress);
    const cairo_surface_type_t kind = cairo_surface_get_type(surface);
    const bool isOpaque = IsOpaqueImage(image);
    // PostScript has only one-bit masks, and would get JPEG pixels outside them.
    const bool isJpeg =
        images == MapImages::Jpeg && (isOpaque || kind != CAIRO_SURFACE_TYPE_PS);
    if (!isOpaque && !isJpeg) {
        Premultiply(image);
    }
    const PixelRows rows = {image.bgra.data(), image.width, image.height,
                            std::ptrdiff_t{4} * image.width};
    const CairoSurface colours =
        SurfaceOver(image.bgra.data(),
                    isOpaque || isJpeg ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32, image);
    if (isJpeg) {
        StandAs(colours.get(), CAIRO_MIME_TYPE_JPEG, EncodeJpeg(rows, kJpegQuality));
    } else if (isOpaque && kind == CAIRO_SURFACE_TYPE_SVG) {
        StandAs(colours.get(), CAIRO_MIME_TYPE_PNG, EncodePng(rows, dpi));
    }
    const std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo(cairo_create(surface),
                                                             cairo_destroy);
    cairo_scale(cairo.get(), kPointsPerInch / dpi, kPointsPerInch / dpi);
    cairo_translate(cairo.get(), frame.left, frame.top);
    cairo_set_source_surface(cairo.get(), colours.get(), 0.0, 0.0);
    cairo_pattern_set_filter(cairo_get_source(cairo.get()), CAIRO_FILTER_NEAREST);
    if (isOpaque || !isJpeg) {
        cairo_paint(cairo.get());
    } else {
        std::vector<std::uint8_t> alphas = AlphasOf(image);
        const CairoSurface mask = SurfaceOver(alphas.data(), CAIRO_FORMAT_A8, image);
        cairo_mask_surface(cairo.get(), mask.get(), 0.0, 0.0);
    }
    CheckCairo(cairo_status(cairo.get()));
}

}  // namespace host
