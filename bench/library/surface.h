#pragma once

#include <gdiplus.h>

#include <vector>

namespace bench {

/// A bitmap to draw on.
class Surface {
public:
    Surface(int width, int height)
        : m_bitmap(width, height, PixelFormat32bppARGB), m_graphics(&m_bitmap) {
        m_graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    }

    Gdiplus::Graphics& Graphics() { return m_graphics; }

    void Clear() { m_graphics.Clear(Gdiplus::Color(0xFFFFFFFF)); }

    std::vector<Gdiplus::ARGB> Pixels() {
        const Gdiplus::Rect all(0, 0, static_cast<INT>(m_bitmap.GetWidth()),
                                static_cast<INT>(m_bitmap.GetHeight()));
        Gdiplus::BitmapData data;
        std::vector<Gdiplus::ARGB> pixels;
        if (m_bitmap.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB,
                              &data) != Gdiplus::Ok) {
            return pixels;
        }
        for (INT y = 0; y < all.Height; ++y) {
            const auto* row = reinterpret_cast<const Gdiplus::ARGB*>(
                static_cast<const BYTE*>(data.Scan0) + y * data.Stride);
            pixels.insert(pixels.end(), row, row + all.Width);
        }
        m_bitmap.UnlockBits(&data);
        return pixels;
    }

private:
    Gdiplus::Bitmap m_bitmap;
    Gdiplus::Graphics m_graphics;
};

}  // namespace bench
