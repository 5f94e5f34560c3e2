#pragma once

#include <cairo.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "cairo/flat_functions.h"
#include "cairo/owned.h"

namespace engine {

/// Rows of pixels, in their own memory or the caller's.
struct Pixels {
    PixelFormat format = PixelFormat32bppARGB;
    INT width = 0;
    INT height = 0;
    INT stride = 0;  ///< bytes; negative where the rows go upwards
    BYTE* rows = nullptr;
    Owned<BYTE, std::free> memory;  ///< null over the caller's
    std::vector<ARGB> palette;      ///< as many entries as the format has indices
    /// Every pixel is known to be opaque: drawing over them keeps them so.
    bool opaque = false;

    BYTE* Row(INT y) const { return rows + static_cast<std::ptrdiff_t>(y) * stride; }
};

/// The supported formats: 24 bits, the three of 32 bits, and 1, 4 and 8 bits with a
/// palette.
bool IsKnown(PixelFormat format);

/// The most memory of a bitmap's rows.
constexpr std::int64_t kMostPixelBytes = 0x7FFFFFFF;

/// The fewest bytes in a row, a multiple of four.
std::int64_t RowBytes(INT width, PixelFormat format);

/// Clear pixels in memory of their own: null if they would take more than 2 GiB, which is
/// checked before allocating.
std::shared_ptr<Pixels> MakePixels(INT width, INT height, PixelFormat format);
std::shared_ptr<Pixels> PixelsOver(BYTE* rows, INT width, INT height, INT stride,
                                   PixelFormat format);

/// The greys of a new palette.
std::vector<ARGB> GreyPalette(PixelFormat format);

/// Reads straight colours from `count` pixels of a row, starting at x; and writes them
/// back. Formats without alpha read as opaque. Nothing is written to a format with a
/// palette.
void ReadColors(PixelFormat format, const std::vector<ARGB>& palette, const BYTE* row,
                INT x, INT count, ARGB* colors);
void WriteColors(PixelFormat format, BYTE* row, INT x, INT count, const ARGB* colors);

ARGB Premultiplied(ARGB color);
ARGB Straight(ARGB premultiplied);

/// A Cairo surface over pixels that it can draw on in place: premultiplied or without
/// alpha; straight ones only when known to be opaque.
cairo_surface_t* SurfaceOver(const Pixels& pixels, bool straightIsOpaque = false);

/// Whether all pixels of a straight format are opaque at present.
bool AreOpaque(const Pixels& pixels);

}  // namespace engine
