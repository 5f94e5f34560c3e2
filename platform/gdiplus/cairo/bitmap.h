#pragma once

#include "cairo/owned.h"
#include "cairo/pixels.h"

namespace engine {

using SurfacePointer = Owned<cairo_surface_t, cairo_surface_destroy>;

/// The only kind of image. Its pixels outlive it while a surface draws on them.
struct Bitmap : GpBitmap {
    std::shared_ptr<Pixels> pixels;
    /// The format that it reports; its own 24-bit pixels are kept as 32.
    PixelFormat format = PixelFormat32bppARGB;
    REAL xdpi = 96.0f;
    REAL ydpi = 96.0f;

    /// Locked by LockBits, with the pixels in another format if one was asked for.
    bool locked = false;
    UINT lockMode = 0;
    Rect lockArea;
    std::vector<BYTE> lockRows;

    /// Its pixels premultiplied, for drawing the bitmap; null until needed.
    SurfacePointer premultiplied;
    bool hasGraphics = false;  ///< which may change the pixels at any time
};

inline Bitmap* From(GpImage* image) { return static_cast<Bitmap*>(image); }
inline const Bitmap* From(const GpImage* image) {
    return static_cast<const Bitmap*>(image);
}

/// A bitmap of clear pixels; null if there would be too many.
std::unique_ptr<Bitmap> MakeBitmap(INT width, INT height, PixelFormat format);

/// The pixels for Cairo to draw; in an error state if memory runs out.
SurfacePointer SourceOf(Bitmap& bitmap);

}  // namespace engine
