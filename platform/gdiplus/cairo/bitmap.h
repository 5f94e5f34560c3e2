#pragma once

#include "cairo/owned.h"
#include "cairo/pixels.h"

namespace engine {

using SurfacePointer = Owned<cairo_surface_t, cairo_surface_destroy>;

/// The only kind of image. Its pixels outlive it while a surface draws on them.
struct Bitmap : GpBitmap {
    std::shared_ptr<Pixels> pixels;
    /// What it is told to be; 24 bits of its own are kept as 32.
    PixelFormat format = PixelFormat32bppARGB;
    REAL xdpi = 96.0f;
    REAL ydpi = 96.0f;

    /// Held by LockBits, with the pixels in another format where that was asked.
    bool locked = false;
    UINT lockMode = 0;
    Rect lockArea;
    std::vector<BYTE> lockRows;

    /// Its pixels premultiplied, for drawing it; null where that is still to do.
    SurfacePointer premultiplied;
    bool hasGraphics = false;  ///< which may change the pixels at any time
};

inline Bitmap* From(GpImage* image) { return static_cast<Bitmap*>(image); }
inline const Bitmap* From(const GpImage* image) {
    return static_cast<const Bitmap*>(image);
}

/// A bitmap of clear pixels; null where there would be too many.
std::unique_ptr<Bitmap> MakeBitmap(INT width, INT height, PixelFormat format);

/// The pixels for Cairo to draw. In error where there is no memory.
SurfacePointer SourceOf(Bitmap& bitmap);

}  // namespace engine
