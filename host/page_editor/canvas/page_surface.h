#pragma once

#include <QImage>
#include <QRect>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "page/live_page.h"

namespace page_editor {

/// The page as pixels, drawn by the library and shown by Qt without a copy. Maps are
/// rendered in separate processes; one that fails is hatched.
class PageSurface {
public:
    /// @param page outlives this
    /// @param progress called a few times a second while reading a map takes long, and
    /// with 1 at the end; returning false cancels it, and the map is hatched
    explicit PageSurface(const host::Page& page, host::Progress progress = {})
        : m_page(page), m_progress(std::move(progress)) {}

    /// Whether a drawing is under way: `progress` may lead back here, which then does
    /// nothing.
    bool IsDrawing() const { return m_isDrawing; }

    /// Draws everything at a resolution, rasters included. The previous drawing is shown
    /// until then.
    /// @param dpi device pixels per inch
    void Begin(double dpi);

    /// Forgets the drawing, when the page is replaced by another.
    void Forget();

    /// Redraw what was changed; return the pixels that differ. See host::LivePage.
    void DrawAll();
    QRect DrawMoved(std::size_t item);
    QRect DrawChanged(std::size_t item);

    /// Empty when the page cannot be drawn.
    const QImage& Image() const { return m_image; }
    /// Whether the page still has the size that it was drawn at.
    bool IsOfTheSheet() const {
        return !m_image.isNull() && m_width == m_page.Width() &&
               m_height == m_page.Height();
    }
    /// Why it cannot; otherwise empty.
    const std::string& Failure() const { return m_failure; }
    /// Why elements are not drawn completely, one line each.
    std::vector<std::string> Undrawn() const {
        return m_live == nullptr ? std::vector<std::string>() : m_live->Failures();
    }
    /// Why a map was hatched since the last call; otherwise empty.
    std::string TakeMapFailure() { return std::exchange(m_mapFailure, {}); }

private:
    host::PixelImage Render(host::MapPicture& picture, int width, int height);

    template <typename Drawing>
    QRect Try(Drawing drawing);

    const host::Page& m_page;
    host::Progress m_progress;
    std::unique_ptr<host::LivePage> m_live;
    QImage m_image;
    double m_width = 0.0;
    double m_height = 0.0;
    bool m_isDrawing = false;
    std::string m_failure;
    std::string m_mapFailure;
};

/// The highest and lowest resolutions at which a page is drawn on a screen.
double HighestDpi(const host::Page& page);
double LowestDpi(const host::Page& page);

}  // namespace page_editor
