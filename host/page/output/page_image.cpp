#include "page/output/page_image.h"

#include <cstddef>
#include <new>

namespace host {
namespace {

constexpr std::size_t kBytesPerPixel = 4;

int Stride(Gdiplus::Size size) { return size.Width * static_cast<int>(kBytesPerPixel); }

std::size_t SizeInBytes(Gdiplus::Size size) {
    return static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height) *
           kBytesPerPixel;
}

}  // namespace

// Not zeroed: the page begins by painting its paper.
PageImage::PageImage(Gdiplus::Size size)
    : m_size(size),
      m_pixels(new std::uint8_t[SizeInBytes(size)]),
      m_bitmap(size.Width, size.Height, Stride(size), PixelFormat32bppRGB,
               m_pixels.get()) {
    if (m_bitmap.GetLastStatus() != Gdiplus::Ok) {
        throw std::bad_alloc();
    }
}

PixelRows PageImage::Rows() const {
    return {m_pixels.get(), m_size.Width, m_size.Height, Stride(m_size)};
}

}  // namespace host
