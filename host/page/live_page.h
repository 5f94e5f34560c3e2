#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "page/ink.h"
#include "page/map/rendered_maps.h"
#include "page/output/page_image.h"
#include "page/page.h"

namespace host {

/// A page on a screen: its image at a resolution, kept up to date while items are moved
/// and changed. Only the surroundings of what changed are drawn again, and rasters are
/// not read again; the image is the one that drawing the whole page would give.
class LivePage {
public:
    /// Draws the page, which must outlive this. Throws what drawing it throws.
    /// @param dpi device pixels an inch
    /// @param render how maps are rendered; by themselves where there is none
    LivePage(const Page& page, double dpi, RenderMap render = {});

    /// The image; it is drawn on only by the operations below.
    PageImage& Image() { return m_image; }

    /// Why items are not drawn whole, one line each; see Page::DrawItems.
    std::vector<std::string> Failures() const;

    /// Draws everything, after items were added, removed or put in another order.
    void DrawAll();

    /// After an item's frame was moved: draws what it left and where it is now.
    /// @return the pixels that were drawn again
    Gdiplus::Rect DrawMoved(std::size_t item);

    /// As DrawMoved, after an item's element or frame was changed in any way.
    Gdiplus::Rect DrawChanged(std::size_t item);

private:
    /// What is known of an item as it was last drawn.
    struct Shown {
        InkBox ink;
        Gdiplus::Rect area;
        std::string failure = {};
    };

    Gdiplus::Rect AreaOf(std::size_t item) const;
    void DrawArea(const Gdiplus::Rect& area);

    const Page& m_page;
    double m_dpi;
    PageImage m_image;
    RenderedMaps m_maps;
    std::vector<Shown> m_shown;
};

}  // namespace host
