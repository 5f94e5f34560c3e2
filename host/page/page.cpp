#include "page/page.h"

#include <algorithm>
#include <cmath>

#include "page/device_view.h"
#include "page/element_drawing.h"

namespace host {
namespace {

constexpr Gdiplus::ARGB kPaper = 0xFFFFFFFF;

/// A frame's decoration at the resolution, as one frame that lies behind the content and
/// one around it. Drawn as one, the fill would cover the inner half of the border.
///
/// Both are copies, since drawing a frame may change its border width.
struct Decoration {
    Decoration(const CFrameBase& frame, const DeviceView& view)
        : behind(Scaled(frame, view)), around(behind) {
        behind.DrawBorder = false;
        // The shadow falls from where the border ends: a pen is half outside its line,
        // and one of odd width a little more.
        behind.BorderWidth = std::ceil(around.BorderWidth / 2.0f);
        around.DrawShadow = false;
        around.DrawFill = false;
    }

    CFrameBase behind;
    CFrameBase around;

private:
    /// Borders are whole pixels wide, and at least one, for they are drawn without
    /// smoothing.
    static CFrameBase Scaled(const CFrameBase& frame, const DeviceView& view) {
        CFrameBase scaled(frame);
        if (frame.BorderWidth > 0.0f) {
            scaled.BorderWidth =
                static_cast<float>(std::max(1, view.ToDevice(frame.BorderWidth)));
        }
        scaled.BorderGapX = view.ToDevice(frame.BorderGapX);
        scaled.BorderGapY = view.ToDevice(frame.BorderGapY);
        scaled.FillGapX = view.ToDevice(frame.FillGapX);
        scaled.FillGapY = view.ToDevice(frame.FillGapY);
        return scaled;
    }
};

/// Pixel for pixel: the picture is rendered at exactly the frame's size.
void DrawPicture(Gdiplus::Graphics& graphics, MapPicture& picture, const CRect& rect,
                 const Progress& progress) {
    const int width = std::max(1, rect.right - rect.left);
    const int height = std::max(1, rect.bottom - rect.top);
    PixelImage image = picture.Render(width, height, progress);
    Gdiplus::Bitmap pixels(image.width, image.height, image.width * 4,
                           PixelFormat32bppARGB, image.bgra.data());
    graphics.DrawImage(&pixels, rect.left, rect.top, width, height);
}

/// One visit an item: the drawing of each kind.
struct ItemDrawing {
    Gdiplus::Graphics& graphics;
    const DeviceView& view;
    const Progress& progress;

    void operator()(const MapFrame& map) const {
        const CRect rect = view.ToDevice(map.frame.GetExtent());
        Decoration decoration(map.frame, view);
        PrepareDecoration(graphics);
        decoration.behind.DrawFrame(&graphics, rect);
        if (map.picture != nullptr) {
            DrawPicture(graphics, *map.picture, rect, progress);
        }
        decoration.around.DrawFrame(&graphics, rect);
    }

    void operator()(const std::unique_ptr<CSurroundFrame>& frame) const {
        const CRect rect = view.ToDevice(frame->GetExtent());
        Decoration decoration(*frame, view);
        PrepareDecoration(graphics);
        decoration.behind.DrawFrame(&graphics, rect);
        decoration.around.DrawFrame(&graphics, rect);
        DrawElement(graphics, *frame, Centre(rect), view.Scale());
    }
};

}  // namespace

void Page::Draw(Gdiplus::Graphics& graphics, double dpi, const Progress& progress) const {
    const DeviceView view(m_height, dpi);
    graphics.ResetTransform();
    graphics.Clear(Gdiplus::Color(kPaper));
    for (const PageItem& item : m_items) {
        std::visit(ItemDrawing{graphics, view, progress}, item);
    }
}

Gdiplus::Size PixelSize(const Page& page, double dpi) {
    const DeviceView view(page.Height(), dpi);
    return {std::max(1, view.ToDevice(page.Width())),
            std::max(1, view.ToDevice(page.Height()))};
}

}  // namespace host
