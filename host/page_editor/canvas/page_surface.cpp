#include "page_editor/canvas/page_surface.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <new>

#include "page/units.h"

namespace page_editor {
namespace {

constexpr double kMostPixels = 48.0e6;
constexpr double kLongestSide = 20'000.0;
constexpr double kShortestSide = 16.0;

QRect ToQt(const Gdiplus::Rect& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

}  // namespace

template <typename Drawing>
QRect PageSurface::Try(Drawing drawing) {
    try {
        m_failure.clear();
        return drawing();
    } catch (const std::bad_alloc&) {
        m_failure = "the page needs more memory than there is";
    } catch (const std::exception& error) {
        m_failure = error.what();
    }
    m_image = {};
    m_live.reset();
    return {};
}

void PageSurface::Begin(double dpi) {
    m_image = {};
    m_live.reset();
    m_width = m_page.Width();
    m_height = m_page.Height();
    Try([&] {
        m_live = std::make_unique<host::LivePage>(m_page, dpi);
        const host::PixelRows rows = m_live->Image().Rows();
        m_image = QImage(rows.first, rows.width, rows.height, rows.stride,
                         QImage::Format_RGB32);
        return m_image.rect();
    });
}

void PageSurface::DrawAll() {
    if (m_live != nullptr) {
        Try([&] {
            m_live->DrawAll();
            return m_image.rect();
        });
    }
}

QRect PageSurface::DrawMoved(std::size_t item) {
    return m_live == nullptr ? QRect()
                             : Try([&] { return ToQt(m_live->DrawMoved(item)); });
}

QRect PageSurface::DrawChanged(std::size_t item) {
    return m_live == nullptr ? QRect()
                             : Try([&] { return ToQt(m_live->DrawChanged(item)); });
}

double HighestDpi(const host::Page& page) {
    const double longest = std::max(page.Width(), page.Height());
    const double byArea = std::sqrt(kMostPixels / (page.Width() * page.Height()));
    return host::kUnitsPerInch * std::min(byArea, kLongestSide / longest);
}

double LowestDpi(const host::Page& page) {
    return host::kUnitsPerInch * kShortestSide / std::max(page.Width(), page.Height());
}

}  // namespace page_editor
