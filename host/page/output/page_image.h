#pragma once

#include <gdiplus.h>

#include <cstdint>
#include <memory>

#include "page/output/png_image.h"

namespace host {

/// The pixels of a page: GDI+ draws on them, and they are read in place, since copying a
/// large page takes as long as drawing it.
///
/// Opaque, and undefined until something is drawn. Throws std::bad_alloc when memory runs
/// out.
class PageImage {
public:
    /// @param size pixels, at least 1 x 1
    explicit PageImage(Gdiplus::Size size);

    Gdiplus::Bitmap& Bitmap() { return m_bitmap; }

    /// What was drawn, once its Graphics is gone.
    PixelRows Rows() const;

private:
    Gdiplus::Size m_size;
    std::unique_ptr<std::uint8_t[]> m_pixels;
    Gdiplus::Bitmap m_bitmap;
};

}  // namespace host
