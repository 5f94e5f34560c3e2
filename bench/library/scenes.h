#pragma once

#include <gdiplus.h>

#include <functional>
#include <memory>
#include <string>
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
    std::vector<Gdiplus::ARGB> Pixels();

private:
    Gdiplus::Bitmap m_bitmap;
    Gdiplus::Graphics m_graphics;
};

/// One thing that the library does, and what it does it on.
struct Scene {
    std::string name;
    std::shared_ptr<Surface> surface;
    std::function<void()> run;
    bool draws = true;    ///< and does not only measure
    bool isPage = false;  ///< of what usually stands on one
};

/// Everything that the library does through flat calls, at a scale of pixels to page
/// units; 1 is 96 dpi.
std::vector<Scene> Scenes(double scale);

}  // namespace bench
