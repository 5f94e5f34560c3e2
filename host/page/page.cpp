#include "page/page.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "page/catalogue.h"
#include "page/device_view.h"
#include "page/drawing_status.h"
#include "page/element_drawing.h"
#include "page/element_of.h"
#include "page/placed_frame.h"
#include "system/errors.h"

namespace host {
namespace {

constexpr Gdiplus::ARGB kPaper = 0xFFFFFFFF;

/// A frame's decoration at the resolution, as one frame behind the content and one around
/// it. Drawn as one, the fill would cover the inner half of the border.
///
/// Both are copies, since drawing a frame may change its border width.
struct Decoration {
    Decoration(const CFrameBase& frame, const DeviceView& view)
        : behind(Scaled(frame, view)), around(behind) {
        behind.DrawBorder = false;
        // The shadow falls from the outer edge of the border: half a pen lies outside its
        // line, and a little more when its width is odd.
        behind.BorderWidth = std::ceil(around.BorderWidth / 2.0f);
        around.DrawShadow = false;
        around.DrawFill = false;
    }

    CFrameBase behind;
    CFrameBase around;

private:
    /// Borders are whole pixels wide, at least one, since they are drawn without
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

/// For an image with transparency, GDI+ processes every pixel again.
bool IsOpaque(const PixelImage& image) {
    std::uint8_t alphas = 255;
    for (std::size_t i = 3; i < image.bgra.size(); i += 4) {
        alphas &= image.bgra[i];
    }
    return alphas == 255;
}

/// Pixel for pixel: the picture is rendered at exactly the frame's size.
void DrawPicture(Gdiplus::Graphics& graphics, MapPicture& picture, const CRect& rect,
                 RenderedMaps& maps, const Progress& progress) {
    const int width = std::max(1, rect.right - rect.left);
    const int height = std::max(1, rect.bottom - rect.top);
    PixelImage& image = maps.Of(picture, width, height, progress);
    const Gdiplus::PixelFormat format =
        IsOpaque(image) ? PixelFormat32bppRGB : PixelFormat32bppARGB;
    Gdiplus::Bitmap pixels(image.width, image.height, image.width * 4, format,
                           image.bgra.data());
    graphics.DrawImage(&pixels, rect.left, rect.top, width, height);
}

/// Draws each kind of item, in one visit per item.
struct ItemDrawing {
    Gdiplus::Graphics& graphics;
    const DeviceView& view;
    RenderedMaps& maps;
    const Progress& progress;
    std::function<void(const std::function<void()>&)> content = [](const auto& draw) {
        draw();
    };

    void operator()(const MapFrame& map) const {
        const CRect rect = view.ToDevice(map.frame.GetExtent());
        Decoration decoration(map.frame, view);
        PrepareDecoration(graphics);
        decoration.behind.DrawFrame(&graphics, rect);
        if (map.picture != nullptr) {
            content([&] { DrawPicture(graphics, *map.picture, rect, maps, progress); });
        }
        decoration.around.DrawFrame(&graphics, rect);
    }

    void operator()(const std::unique_ptr<CSurroundFrame>& frame) const {
        const CRect rect = view.ToDevice(frame->GetExtent());
        Decoration decoration(*frame, view);
        PrepareDecoration(graphics);
        decoration.behind.DrawFrame(&graphics, rect);
        decoration.around.DrawFrame(&graphics, rect);
        content([&] { DrawElement(graphics, *frame, Centre(rect), view.Scale()); });
    }
};

void PaintPaper(Gdiplus::Graphics& graphics) {
    graphics.ResetTransform();
    graphics.Clear(Gdiplus::Color(kPaper));
}

}  // namespace

const CFrameBase& FrameOf(const PageItem& item) {
    if (const auto* const map = std::get_if<MapFrame>(&item)) {
        return map->frame;
    }
    return *std::get<std::unique_ptr<CSurroundFrame>>(item);
}

CFrameBase& FrameOf(PageItem& item) {
    return const_cast<CFrameBase&>(FrameOf(std::as_const(item)));
}

std::string NameOf(const PageItem& item) {
    const auto* const map = std::get_if<MapFrame>(&item);
    if (map != nullptr) {
        return map->name.empty() ? "map" : map->name;
    }
    const auto* const placed = FrameAs<PlacedFrame>(item);
    if (placed != nullptr && !placed->Name().empty()) {
        return placed->Name();
    }
    const auto* const element = ElementOf<CMapSurround>(item);
    return element == nullptr ? "frame" : FamilyName(element->GetItemType());
}

void Page::Draw(Gdiplus::Graphics& graphics, double dpi, const Progress& progress,
                const MarkContent& mark) const {
    const DeviceView view(m_height, dpi);
    PaintPaper(graphics);
    CheckDrawn(graphics, "page", "");
    for (const PageItem& item : m_items) {
        RenderedMaps forThisItem;  // one large image at a time
        ItemDrawing drawing{graphics, view, forThisItem, progress};
        if (mark) {
            const auto index = static_cast<std::size_t>(&item - m_items.data());
            drawing.content = [&mark, index](const auto& draw) { mark(index, draw); };
        }
        std::visit(drawing, item);
        CheckDrawn(graphics, NameOf(item), WhyNotWritten(item, view.Scale()));
    }
}

std::vector<std::string> Page::DrawItems(Gdiplus::Graphics& graphics, double dpi,
                                         const std::vector<std::size_t>& items,
                                         RenderedMaps& maps) const {
    const DeviceView view(m_height, dpi);
    PaintPaper(graphics);
    CheckDrawn(graphics, "page", "");
    std::vector<std::string> failures;
    for (const std::size_t index : items) {
        const PageItem& item = m_items.at(index);
        std::visit(ItemDrawing{graphics, view, maps, {}}, item);
        failures.emplace_back();
        try {
            CheckDrawn(graphics, NameOf(item), WhyNotWritten(item, view.Scale()));
        } catch (const NamedError& error) {
            if (!IsTooSmallToWrite(item, view.Scale())) {
                failures.back() = error.what();
            }
        }
    }
    return failures;
}

Gdiplus::Size PixelSize(const Page& page, double dpi) {
    const DeviceView view(page.Height(), dpi);
    return {std::max(1, view.ToDevice(page.Width())),
            std::max(1, view.ToDevice(page.Height()))};
}

}  // namespace host
