#include "page_editor/canvas/page_surface.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <exception>
#include <stdexcept>

#include "page/units.h"
#include "page_editor/editing/separate_reading.h"
#include "system/errors.h"

namespace page_editor {
namespace {

constexpr double kMostPixels = 48.0e6;
constexpr double kLongestSide = 20'000.0;
constexpr double kShortestSide = 16.0;

constexpr std::uint8_t kLightStripe = 245;
constexpr std::uint8_t kDarkStripe = 225;
constexpr int kStripe = 8;  // pixels

host::PixelImage Hatched(int width, int height) {
    host::PixelImage image{width, height, {}};
    image.bgra.reserve(4 * static_cast<std::size_t>(width) *
                       static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool isDark = (x + y) % (2 * kStripe) < kStripe;
            const std::uint8_t grey = isDark ? kDarkStripe : kLightStripe;
            image.bgra.insert(image.bgra.end(), {grey, grey, grey, 255});
        }
    }
    return image;
}

QRect ToQt(const Gdiplus::Rect& rect) {
    return {rect.X, rect.Y, rect.Width, rect.Height};
}

}  // namespace

template <typename Drawing>
QRect PageSurface::Try(Drawing drawing) {
    if (m_isDrawing) {
        return {};
    }
    const QScopedValueRollback<bool> drawingNow(m_isDrawing, true);
    try {
        m_failure.clear();
        return drawing();
    } catch (const std::exception& error) {
        m_failure = host::LineFor(error);
    }
    Forget();
    return {};
}

void PageSurface::Forget() {
    m_image = {};
    m_live.reset();
}

void PageSurface::Begin(double dpi) {
    Try([&] {
        auto live = std::make_unique<host::LivePage>(
            m_page, dpi,
            [this](host::MapPicture& picture, int width, int height,
                   const host::Progress&) { return Render(picture, width, height); });
        m_live = std::move(live);
        m_width = m_page.Width();
        m_height = m_page.Height();
        const host::PixelRows rows = m_live->Image().Rows();
        m_image = QImage(rows.first, rows.width, rows.height, rows.stride,
                         QImage::Format_RGB32);
        return m_image.rect();
    });
}

host::PixelImage PageSurface::Render(host::MapPicture& picture, int width, int height) {
    try {
        return RenderSeparately(picture, width, height, m_progress);
    } catch (const std::runtime_error& error) {
        m_mapFailure = error.what();
        return Hatched(width, height);
    }
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
