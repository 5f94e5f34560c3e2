#include "cairo/pixels.h"

#include <cstring>

namespace engine {

bool IsKnown(PixelFormat format) {
    switch (format) {
        case PixelFormat1bppIndexed:
        case PixelFormat4bppIndexed:
        case PixelFormat8bppIndexed:
        case PixelFormat24bppRGB:
        case PixelFormat32bppRGB:
        case PixelFormat32bppARGB:
        case PixelFormat32bppPARGB:
            return true;
        default:
            return false;
    }
}

std::int64_t RowBytes(INT width, PixelFormat format) {
    return (std::int64_t{width} * GetPixelFormatSize(format) + 31) / 32 * 4;
}

std::vector<ARGB> GreyPalette(PixelFormat format) {
    std::vector<ARGB> palette;
    if (IsIndexedPixelFormat(format) != 0) {
        const UINT count = 1U << GetPixelFormatSize(format);
        for (UINT i = 0; i < count; ++i) {
            palette.push_back(0xFF000000 | i * 255 / (count - 1) * 0x010101);
        }
    }
    return palette;
}

std::shared_ptr<Pixels> MakePixels(INT width, INT height, PixelFormat format) {
    const std::int64_t stride = RowBytes(width, format);
    if (stride > kMostPixelBytes / height) {
        return nullptr;
    }
    auto pixels = std::make_shared<Pixels>();
    pixels->memory.reset(static_cast<BYTE*>(
        std::calloc(static_cast<std::size_t>(height), static_cast<std::size_t>(stride))));
    if (pixels->memory == nullptr) {
        return nullptr;
    }
    pixels->rows = pixels->memory.get();
    pixels->format = format;
    pixels->width = width;
    pixels->height = height;
    pixels->stride = static_cast<INT>(stride);
    pixels->palette = GreyPalette(format);
    return pixels;
}

std::shared_ptr<Pixels> PixelsOver(BYTE* rows, INT width, INT height, INT stride,
                                   PixelFormat format) {
    auto pixels = std::make_shared<Pixels>();
    pixels->rows = rows;
    pixels->format = format;
    pixels->width = width;
    pixels->height = height;
    pixels->stride = stride;
    pixels->palette = GreyPalette(format);
    return pixels;
}

namespace {

/// c times a over 255, rounded as in Cairo.
UINT Scaled(UINT c, UINT a) {
    const UINT product = c * a + 128;
    return (product + (product >> 8)) >> 8;
}

}  // namespace

ARGB Premultiplied(ARGB color) {
    const UINT a = color >> 24;
    if (a == 255) {
        return color;
    }
    return a << 24 | Scaled(color >> 16 & 255, a) << 16 |
           Scaled(color >> 8 & 255, a) << 8 | Scaled(color & 255, a);
}

ARGB Straight(ARGB premultiplied) {
    const UINT a = premultiplied >> 24;
    if (a == 255 || a == 0) {
        return a == 0 ? 0 : premultiplied;
    }
    const auto part = [&](UINT shift) {
        const UINT c = ((premultiplied >> shift & 255) * 255 + a / 2) / a;
        return (c > 255 ? 255 : c) << shift;
    };
    return a << 24 | part(16) | part(8) | part(0);
}

void ReadColors(PixelFormat format, const std::vector<ARGB>& palette, const BYTE* row,
                INT x, INT count, ARGB* colors) {
    const auto* words = reinterpret_cast<const ARGB*>(row) + x;
    switch (format) {
        case PixelFormat32bppARGB:
            std::memcpy(colors, words, static_cast<std::size_t>(count) * 4);
            break;
        case PixelFormat32bppPARGB:
            for (INT i = 0; i < count; ++i) {
                colors[i] = Straight(words[i]);
            }
            break;
        case PixelFormat32bppRGB:
            for (INT i = 0; i < count; ++i) {
                colors[i] = words[i] | 0xFF000000;
            }
            break;
        case PixelFormat24bppRGB: {
            const BYTE* byte = row + static_cast<std::ptrdiff_t>(x) * 3;
            for (INT i = 0; i < count; ++i, byte += 3) {
                colors[i] = 0xFF000000 | static_cast<ARGB>(byte[2]) << 16 |
                            static_cast<ARGB>(byte[1]) << 8 | byte[0];
            }
            break;
        }
        default: {
            const auto bits = static_cast<INT>(GetPixelFormatSize(format));
            for (INT i = 0; i < count; ++i) {
                const std::int64_t at = std::int64_t{x + i} * bits;
                const UINT shift = static_cast<UINT>(8 - bits - at % 8);
                const UINT index = row[at / 8] >> shift & ((1U << bits) - 1);
                colors[i] = index < palette.size() ? palette[index] : 0xFF000000;
            }
        }
    }
}

void WriteColors(PixelFormat format, BYTE* row, INT x, INT count, const ARGB* colors) {
    auto* words = reinterpret_cast<ARGB*>(row) + x;
    switch (format) {
        case PixelFormat32bppARGB:
            std::memcpy(words, colors, static_cast<std::size_t>(count) * 4);
            break;
        case PixelFormat32bppPARGB:
            for (INT i = 0; i < count; ++i) {
                words[i] = Premultiplied(colors[i]);
            }
            break;
        case PixelFormat32bppRGB:
            for (INT i = 0; i < count; ++i) {
                words[i] = colors[i] | 0xFF000000;
            }
            break;
        case PixelFormat24bppRGB: {
            BYTE* byte = row + static_cast<std::ptrdiff_t>(x) * 3;
            for (INT i = 0; i < count; ++i, byte += 3) {
                byte[0] = static_cast<BYTE>(colors[i]);
                byte[1] = static_cast<BYTE>(colors[i] >> 8);
                byte[2] = static_cast<BYTE>(colors[i] >> 16);
            }
            break;
        }
        default:
            break;
    }
}

cairo_surface_t* SurfaceOver(const Pixels& pixels, bool straightIsOpaque) {
    const bool plain = pixels.format == PixelFormat32bppRGB || straightIsOpaque;
    return cairo_image_surface_create_for_data(
        pixels.rows, plain ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32, pixels.width,
        pixels.height, pixels.stride);
}

bool AreOpaque(const Pixels& pixels) {
    for (INT y = 0; y < pixels.height; ++y) {
        const auto* row = reinterpret_cast<const ARGB*>(pixels.Row(y));
        ARGB all = 0xFF000000;
        for (INT x = 0; x < pixels.width; ++x) {
            all &= row[x];
        }
        if (all >> 24 != 255) {
            return false;
        }
    }
    return true;
}

}  // namespace engine
