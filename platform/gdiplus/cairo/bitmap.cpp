#include "cairo/bitmap.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace engine {

std::unique_ptr<Bitmap> MakeBitmap(INT width, INT height, PixelFormat format) {
    auto bitmap = std::make_unique<Bitmap>();
    bitmap->format = format;
    bitmap->pixels = MakePixels(
        width, height, format == PixelFormat24bppRGB ? PixelFormat32bppRGB : format);
    return bitmap->pixels == nullptr ? nullptr : std::move(bitmap);
}

SurfacePointer SourceOf(Bitmap& bitmap) {
    const Pixels& pixels = *bitmap.pixels;
    if (bitmap.premultiplied != nullptr) {
        return SurfacePointer(cairo_surface_reference(bitmap.premultiplied.get()));
    }
    if (pixels.format == PixelFormat32bppPARGB || pixels.format == PixelFormat32bppRGB) {
        return SurfacePointer(SurfaceOver(pixels));
    }
    if (pixels.format == PixelFormat32bppARGB && (pixels.opaque || AreOpaque(pixels))) {
        return SurfacePointer(SurfaceOver(pixels, true));
    }
    SurfacePointer copy(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width, pixels.height));
    if (cairo_surface_status(copy.get()) != CAIRO_STATUS_SUCCESS) {
        return copy;
    }
    BYTE* row = cairo_image_surface_get_data(copy.get());
    for (INT y = 0; y < pixels.height; ++y) {
        auto* colors = reinterpret_cast<ARGB*>(row);
        ReadColors(pixels.format, pixels.palette, pixels.Row(y), 0, pixels.width, colors);
        for (INT x = 0; x < pixels.width; ++x) {
            colors[x] = Premultiplied(colors[x]);
        }
        row += cairo_image_surface_get_stride(copy.get());
    }
    cairo_surface_mark_dirty(copy.get());
    if (pixels.memory != nullptr && !bitmap.hasGraphics && !bitmap.locked) {
        bitmap.premultiplied.reset(cairo_surface_reference(copy.get()));
    }
    return copy;
}

namespace {

bool IsWithin(const Bitmap& bitmap, INT x, INT y) {
    return x >= 0 && y >= 0 && x < bitmap.pixels->width && y < bitmap.pixels->height;
}

/// Whether the caller's memory has a row length that Cairo can draw on in place, or that
/// holds rows of three bytes per pixel.
bool IsUsable(INT width, INT stride, PixelFormat format) {
    const std::int64_t bytes = (std::int64_t{width} * GetPixelFormatSize(format) + 7) / 8;
    return std::abs(std::int64_t{stride}) >= bytes && stride % 4 == 0;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;
using engine::Tell;

GpStatus GdipCreateBitmapFromScan0(INT width, INT height, INT stride, PixelFormat format,
                                   BYTE* scan0, GpBitmap** bitmap) {
    if (!engine::IsRunning()) {
        return GdiplusNotInitialized;
    }
    if (bitmap == nullptr || width <= 0 || height <= 0 || !engine::IsKnown(format) ||
        (scan0 != nullptr && !engine::IsUsable(width, stride, format))) {
        return InvalidParameter;
    }
    return engine::Guarded([&] {
        std::unique_ptr<engine::Bitmap> made;
        if (scan0 == nullptr) {
            made = engine::MakeBitmap(width, height, format);
        } else {
            made = std::make_unique<engine::Bitmap>();
            made->format = format;
            made->pixels = engine::PixelsOver(scan0, width, height, stride, format);
        }
        if (made == nullptr) {
            return OutOfMemory;
        }
        *bitmap = made.release();
        return Ok;
    });
}

GpStatus GdipDisposeImage(GpImage* image) { return engine::Delete(From(image)); }

GpStatus GdipGetImageWidth(GpImage* image, UINT* width) {
    return Tell(From(image), width,
                [](auto& b) { return static_cast<UINT>(b.pixels->width); });
}

GpStatus GdipGetImageHeight(GpImage* image, UINT* height) {
    return Tell(From(image), height,
                [](auto& b) { return static_cast<UINT>(b.pixels->height); });
}

GpStatus GdipGetImageHorizontalResolution(GpImage* image, REAL* dpi) {
    return Tell(From(image), dpi, [](auto& b) { return b.xdpi; });
}

GpStatus GdipGetImageVerticalResolution(GpImage* image, REAL* dpi) {
    return Tell(From(image), dpi, [](auto& b) { return b.ydpi; });
}

GpStatus GdipBitmapSetResolution(GpBitmap* bitmap, REAL xdpi, REAL ydpi) {
    const bool valid =
        xdpi > 0.0f && ydpi > 0.0f && std::isfinite(xdpi) && std::isfinite(ydpi);
    return engine::Set(From(bitmap), valid, [&](auto& b) {
        b.xdpi = xdpi;
        b.ydpi = ydpi;
    });
}

GpStatus GdipGetImagePixelFormat(GpImage* image, PixelFormat* format) {
    return Tell(From(image), format, [](auto& b) { return b.format; });
}

GpStatus GdipGetImageType(GpImage* image, ImageType* type) {
    return Tell(image, type, [](auto&) { return ImageTypeBitmap; });
}

GpStatus GdipGetImagePaletteSize(GpImage* image, INT* bytes) {
    return Tell(From(image), bytes, [](auto& b) {
        return static_cast<INT>(8 + 4 * b.pixels->palette.size());
    });
}

GpStatus GdipGetImagePalette(GpImage* image, FlatPalette* palette, INT bytes) {
    if (image == nullptr || palette == nullptr || bytes < 8) {
        return InvalidParameter;
    }
    const std::vector<ARGB>& colors = From(image)->pixels->palette;
    if (static_cast<std::size_t>(bytes) < 8 + 4 * colors.size()) {
        return InsufficientBuffer;
    }
    palette->Flags = 0;
    palette->Count = static_cast<UINT>(colors.size());
    std::copy(colors.begin(), colors.end(), palette->Entries);
    return Ok;
}

GpStatus GdipSetImagePalette(GpImage* image, const FlatPalette* palette) {
    const bool valid = palette != nullptr && palette->Count <= 256;
    return engine::Set(From(image), valid, [&](auto& b) {
        std::vector<ARGB>& colors = b.pixels->palette;
        std::copy_n(palette->Entries,
                    std::min<std::size_t>(palette->Count, colors.size()), colors.begin());
        b.premultiplied.reset();
    });
}

GpStatus GdipBitmapGetPixel(GpBitmap* bitmap, INT x, INT y, ARGB* color) {
    if (bitmap == nullptr || color == nullptr || !engine::IsWithin(*From(bitmap), x, y)) {
        return InvalidParameter;
    }
    const engine::Pixels& pixels = *From(bitmap)->pixels;
    engine::ReadColors(pixels.format, pixels.palette, pixels.Row(y), x, 1, color);
    return Ok;
}

GpStatus GdipBitmapSetPixel(GpBitmap* bitmap, INT x, INT y, ARGB color) {
    if (bitmap == nullptr || !engine::IsWithin(*From(bitmap), x, y) ||
        IsIndexedPixelFormat(From(bitmap)->format) != 0) {
        return InvalidParameter;
    }
    engine::Pixels& pixels = *From(bitmap)->pixels;
    pixels.opaque = pixels.opaque && color >> 24 == 255;
    From(bitmap)->premultiplied.reset();
    engine::WriteColors(pixels.format, pixels.Row(y), x, 1, &color);
    return Ok;
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
