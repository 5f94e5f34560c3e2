#include "page/live_page.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "page/device_view.h"

namespace host {
namespace {

constexpr int kLeeway = 4;  // pixels; smoothed edges reach further than they measure

/// How far an item's element reaches; a map stays within its frame.
InkBox ElementInk(const PageItem& item) {
    const auto* const frame = std::get_if<std::unique_ptr<CSurroundFrame>>(&item);
    return frame == nullptr ? InkBox{} : MeasureInk(**frame);
}

/// How far a frame's border, shadow and background stand out from it, in device pixels.
int Outset(const CFrameBase& frame, const DeviceView& view) {
    const CBoundingBox extent = frame.GetExtent();
    const double shadow = std::max(std::fabs(extent.GetWidth() * frame.ShadowRatioX),
                                   std::fabs(extent.GetHeight() * frame.ShadowRatioY));
    const double gap = std::max({std::abs(frame.BorderGapX), std::abs(frame.BorderGapY),
                                 std::abs(frame.FillGapX), std::abs(frame.FillGapY)});
    return view.ToDevice(shadow + 2.0 * (frame.BorderWidth + gap)) + kLeeway;
}

Gdiplus::Rect Around(CPoint centre, const InkBox& ink, double scale) {
    const auto reach = [scale](double length) {
        return static_cast<int>(std::ceil(length * scale * kHinting)) + kLeeway;
    };
    return {centre.x - reach(ink.left), centre.y - reach(ink.up),
            reach(ink.left) + reach(ink.right), reach(ink.up) + reach(ink.down)};
}

}  // namespace

LivePage::LivePage(const Page& page, double dpi, RenderMap render)
    : m_page(page), m_dpi(dpi), m_image(PixelSize(page, dpi)), m_maps(std::move(render)) {
    DrawAll();
}

std::vector<std::string> LivePage::Failures() const {
    std::vector<std::string> failures;
    for (const Shown& shown : m_shown) {
        if (!shown.failure.empty()) {
            failures.push_back(shown.failure);
        }
    }
    return failures;
}

void LivePage::DrawAll() {
    m_shown.clear();
    for (const PageItem& item : m_page.Items()) {
        m_shown.push_back({ElementInk(item), {}});
        m_shown.back().area = AreaOf(m_shown.size() - 1);
    }
    DrawArea({0, 0, m_image.Rows().width, m_image.Rows().height});
}

Gdiplus::Rect LivePage::DrawMoved(std::size_t item) {
    const Gdiplus::Rect before = m_shown[item].area;
    m_shown[item].area = AreaOf(item);
    Gdiplus::Rect area;
    Gdiplus::Rect::Union(area, before, m_shown[item].area);
    const PixelRows rows = m_image.Rows();
    area.Intersect(Gdiplus::Rect(0, 0, rows.width, rows.height));
    DrawArea(area);
    return area;
}

Gdiplus::Rect LivePage::DrawChanged(std::size_t item) {
    m_shown[item].ink = ElementInk(m_page.Items()[item]);
    return DrawMoved(item);
}

Gdiplus::Rect LivePage::AreaOf(std::size_t item) const {
    const DeviceView view(m_page.Height(), m_dpi);
    const CFrameBase& frame = FrameOf(m_page.Items()[item]);
    const CRect rect = view.ToDevice(frame.GetExtent());
    Gdiplus::Rect area(rect.left, rect.top, rect.right - rect.left,
                       rect.bottom - rect.top);
    const int outset = Outset(frame, view);
    area.Inflate(outset, outset);
    const Gdiplus::Rect ink = Around(Centre(rect), m_shown[item].ink, view.Scale());
    Gdiplus::Rect all;
    Gdiplus::Rect::Union(all, area, ink);
    return all;
}

void LivePage::DrawArea(const Gdiplus::Rect& area) {
    if (area.IsEmptyArea() != 0) {
        return;
    }
    std::vector<std::size_t> items;
    for (std::size_t item = 0; item < m_shown.size(); ++item) {
        if (m_shown[item].area.IntersectsWith(area) != 0) {
            items.push_back(item);
        }
    }
    Gdiplus::Graphics graphics(&m_image.Bitmap());
    graphics.SetClip(area);
    const std::vector<std::string> failures =
        m_page.DrawItems(graphics, m_dpi, items, m_maps);
    for (std::size_t i = 0; i < items.size(); ++i) {
        m_shown[items[i]].failure = failures[i];
    }
}

}  // namespace host
