#pragma once

#include <QImage>
#include <QRect>
#include <cstddef>
#include <memory>
#include <string>

#include "page/live_page.h"

namespace page_editor {

/// The page as pixels, drawn by the library and looked at by Qt where they lie: nothing
/// is copied.
class PageSurface {
public:
    /// @param page outlives this
    explicit PageSurface(const host::Page& page) : m_page(page) {}

    /// Draws everything at a resolution, rasters included.
    /// @param dpi device pixels an inch
    void Begin(double dpi);

    /// Draw what was changed; the pixels that are different now. See host::LivePage.
    void DrawAll();
    QRect DrawMoved(std::size_t item);
    QRect DrawChanged(std::size_t item);

    /// Empty where the page cannot be drawn.
    const QImage& Image() const { return m_image; }
    /// Whether the page still has the size that it was drawn at.
    bool IsOfTheSheet() const {
        return !m_image.isNull() && m_width == m_page.Width() &&
               m_height == m_page.Height();
    }
    /// Why it cannot; else empty.
    const std::string& Failure() const { return m_failure; }

private:
    template <typename Drawing>
    QRect Try(Drawing drawing);

    const host::Page& m_page;
    std::unique_ptr<host::LivePage> m_live;
    QImage m_image;
    double m_width = 0.0;
    double m_height = 0.0;
    std::string m_failure;
};

/// The highest resolution at which a page is drawn on a screen, and the lowest.
double HighestDpi(const host::Page& page);
double LowestDpi(const host::Page& page);

}  // namespace page_editor
