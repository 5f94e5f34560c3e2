#include "cairo/bitmap.h"

namespace engine {
namespace {

BYTE* FirstPixel(const Pixels& pixels, const Rect& area) {
    return pixels.Row(area.Y) + std::ptrdiff_t{area.X} *
                                    static_cast<INT>(GetPixelFormatSize(pixels.format)) /
                                    8;
}

/// Converts the bitmap's pixels to rows in the requested format, or back.
void Carry(Bitmap& bitmap, const BitmapData& data, bool back) {
    const Pixels& pixels = *bitmap.pixels;
    const Rect& area = bitmap.lockArea;
    std::vector<ARGB> colors(static_cast<std::size_t>(area.Width));
    for (INT i = 0; i < area.Height; ++i) {
        BYTE* const inside = pixels.Row(area.Y + i);
        BYTE* const outside =
            static_cast<BYTE*>(data.Scan0) + std::ptrdiff_t{i} * data.Stride;
        if (back) {
            ReadColors(data.PixelFormat, pixels.palette, outside, 0, area.Width,
                       colors.data());
            WriteColors(pixels.format, inside, area.X, area.Width, colors.data());
        } else {
            ReadColors(pixels.format, pixels.palette, inside, area.X, area.Width,
                       colors.data());
            WriteColors(data.PixelFormat, outside, 0, area.Width, colors.data());
        }
    }
}

bool IsWithin(const Rect& area, const Pixels& pixels) {
    return area.X >= 0 && area.Y >= 0 && area.Width > 0 && area.Height > 0 &&
           area.Width <= pixels.width - area.X && area.Height <= pixels.height - area.Y;
}

GpStatus Lock(Bitmap& bitmap, const Rect& area, UINT mode, PixelFormat format,
              BitmapData& data) {
    const Pixels& pixels = *bitmap.pixels;
    constexpr UINT known =
        ImageLockModeRead | ImageLockModeWrite | ImageLockModeUserInputBuf;
    const bool given = (mode & ImageLockModeUserInputBuf) != 0;
    const bool indexed = IsIndexedPixelFormat(format) != 0;
    if (!IsWithin(area, pixels) || (mode & ~known) != 0 || (mode & 3) == 0 ||
        !IsKnown(format) || (given && data.Scan0 == nullptr) ||
        (indexed && (format != pixels.format || given))) {
        return InvalidParameter;
    }
    if (bitmap.locked) {
        return WrongState;
    }
    data.Width = static_cast<UINT>(area.Width);
    data.Height = static_cast<UINT>(area.Height);
    data.PixelFormat = format;
    bitmap.lockArea = area;
    bitmap.lockMode = mode;
    if (format == pixels.format && !given) {
        data.Stride = pixels.stride;
        data.Scan0 = FirstPixel(pixels, area);
    } else {
        if (!given) {
            const std::int64_t stride = RowBytes(area.Width, format);
            if (stride > kMostPixelBytes / area.Height) {
                return OutOfMemory;
            }
            data.Stride = static_cast<INT>(stride);
            bitmap.lockRows.resize(static_cast<std::size_t>(data.Stride) * data.Height);
            data.Scan0 = bitmap.lockRows.data();
        }
        if ((mode & ImageLockModeRead) != 0) {
            Carry(bitmap, data, false);
        }
    }
    bitmap.locked = true;
    if ((mode & ImageLockModeWrite) != 0) {
        bitmap.pixels->opaque = false;
        bitmap.premultiplied.reset();
    }
    return Ok;
}

}  // namespace
}  // namespace engine

namespace Gdiplus::DllExports {
extern "C" {

using engine::From;

GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* area, UINT mode,
                            PixelFormat format, BitmapData* data) {
    if (bitmap == nullptr || data == nullptr) {
        return InvalidParameter;
    }
    engine::Bitmap& locked = *From(bitmap);
    const Rect all(0, 0, locked.pixels->width, locked.pixels->height);
    return engine::Guarded([&] {
        return engine::Lock(locked, area == nullptr ? all : *area, mode, format, *data);
    });
}

GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data) {
    if (bitmap == nullptr || data == nullptr) {
        return InvalidParameter;
    }
    engine::Bitmap& locked = *From(bitmap);
    if (!locked.locked) {
        return WrongState;
    }
    return engine::Guarded([&] {
        const bool copied = !locked.lockRows.empty() ||
                            (locked.lockMode & ImageLockModeUserInputBuf) != 0;
        if (copied && (locked.lockMode & ImageLockModeWrite) != 0) {
            engine::Carry(locked, *data, true);
        }
        locked.locked = false;
        locked.lockRows = {};
        return Ok;
    });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
