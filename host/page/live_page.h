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
/// and changed. Only the surroundings of a change are redrawn, and rasters are not read
/// again; the image is the one that drawing the whole page would give.
class LivePage {
public:
    /// Draws the page, which must outlive this. Throws what drawing it throws.
    /// @param dpi device pixels per inch
    /// @param render how maps are rendered; by default they render themselves
    LivePage(const Page& page, double dpi, RenderMap render = {});

    /// The image; only the operations below draw on it.
    PageImage& Image() { return m_image; }

    /// Why items are not drawn completely, one line each; see Page::DrawItems.
    std::vector<std::string> Failures() const;

    /// Redraws everything, after items were added, removed or reordered.
    void DrawAll();

    /// Redraws where an item was and where it is, after its frame was moved.
    /// @return the redrawn pixels
    Gdiplus::Rect DrawMoved(std::size_t item);

    /// As DrawMoved, after any change of an item's element or frame.
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
