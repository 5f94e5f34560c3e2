#pragma once

#include <gdiplus.h>

/// The tests compare pixels as numbers: 0xFFFF0000 is opaque red.
inline Gdiplus::ARGB PixelAt(Gdiplus::Bitmap& bitmap, int x, int y) {
    Gdiplus::Color color;
    bitmap.GetPixel(x, y, &color);
    return color.GetValue();
}

/// How many pixels of a bitmap are not the given colour.
inline int PixelsOtherThan(Gdiplus::Bitmap& bitmap, Gdiplus::ARGB background) {
    int count = 0;
    for (int y = 0; y < static_cast<int>(bitmap.GetHeight()); ++y) {
        for (int x = 0; x < static_cast<int>(bitmap.GetWidth()); ++x) {
            count += PixelAt(bitmap, x, y) != background;
        }
    }
    return count;
}
