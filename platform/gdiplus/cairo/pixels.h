#pragma once

#include <cairo.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "cairo/flat_functions.h"
#include "cairo/owned.h"

namespace engine {

/// Rows of pixels, in memory of their own or of the caller's.
struct Pixels {
    PixelFormat format = PixelFormat32bppARGB;
    INT width = 0;
    INT height = 0;
    INT stride = 0;  ///< bytes; negative where the rows go upwards
    BYTE* rows = nullptr;
    Owned<BYTE, std::free> memory;  ///< null over the caller's
    std::vector<ARGB> palette;      ///< as many as the format tells apart
    /// Every pixel is known to be opaque: drawing over them leaves them so.
    bool opaque = false;

    BYTE* Row(INT y) const { return rows + static_cast<std::ptrdiff_t>(y) * stride; }
};

/// Formats that are there: 24 bits, the three of 32 bits, and 1, 4 and 8 bits with a
/// palette.
bool IsKnown(PixelFormat format);

/// The most memory of a bitmap's rows.
constexpr std::int64_t kMostPixelBytes = 0x7FFFFFFF;

/// The fewest bytes that a row takes, a multiple of four.
std::int64_t RowBytes(INT width, PixelFormat format);

/// Clear pixels in memory of their own: null where there would be more than 2 GiB of
/// them, which is asked before any memory is.
std::shared_ptr<Pixels> MakePixels(INT width, INT height, PixelFormat format);
std::shared_ptr<Pixels> PixelsOver(BYTE* rows, INT width, INT height, INT stride,
                                   PixelFormat format);

/// The greys that a new palette holds.
std::vector<ARGB> GreyPalette(PixelFormat format);

/// Straight colours from count pixels of a row, from x on; and back. What has no alpha is
/// opaque. Nothing is written to a format with a palette.
void ReadColors(PixelFormat format, const std::vector<ARGB>& palette, const BYTE* row,
                INT x, INT count, ARGB* colors);
void WriteColors(PixelFormat format, BYTE* row, INT x, INT count, const ARGB* colors);

ARGB Premultiplied(ARGB color);
ARGB Straight(ARGB premultiplied);

/// A surface of Cairo's over pixels that it can draw in place: premultiplied or without
/// alpha; straight ones may be told to hold no other values.
cairo_surface_t* SurfaceOver(const Pixels& pixels, bool straightIsOpaque = false);

/// Whether all of a straight format's pixels are opaque at this moment.
bool AreOpaque(const Pixels& pixels);

}  // namespace engine
