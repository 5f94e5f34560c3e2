#include "framed_page.h"

#include <utility>

namespace bench {
namespace {

int Scaled(int length, double scale) { return static_cast<int>(length * scale); }

}  // namespace

FramedPage::FramedPage(int width, int height, double scale)
    : m_scale(scale),
      m_surface(std::make_shared<Surface>(Scaled(width, scale), Scaled(height, scale))) {}

void FramedPage::Place(std::unique_ptr<CMapSurround> element, CPoint centre) {
    constexpr int kMargin = 8;
    const int halfHeight = element->GetSize() / 2 + kMargin;
    const float width =
        static_cast<float>(element->GetSize()) * element->GetAspectRatio();
    const int halfWidth = static_cast<int>(width) / 2 + kMargin;
    const auto at = [&](int length) { return Scaled(length, m_scale); };

    auto frame = std::make_unique<CSurroundFrame>();
    static_cast<CFrameBase&>(*frame) = DecoratedFrame();
    frame->SetMapSurround(element.release());
    m_frames.push_back({std::move(frame),
                        CRect(at(centre.x - halfWidth), at(centre.y - halfHeight),
                              at(centre.x + halfWidth), at(centre.y + halfHeight)),
                        CPoint(at(centre.x), at(centre.y))});
}

void FramedPage::Draw() {
    Gdiplus::Graphics& graphics = m_surface->Graphics();
    for (const Placed& placed : m_frames) {
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeDefault);
        placed.frame->DrawFrame(&graphics, placed.rect);
        graphics.SetSmoothingMode(SmoothingOf(*placed.frame->GetMapSurround()));
        placed.frame->Draw(&graphics, placed.centre, m_scale);
    }
}

std::unique_ptr<FramedPage> FramedPage::OfEverything(double scale) {
    auto page = std::make_unique<FramedPage>(794, 1123, scale);
    page->Place(NewTitle(), {397, 60});
    page->Place(NewPicture(), {690, 180});
    int y = 180;
    for (Named& arrow : NewNorthArrows()) {
        page->Place(std::move(arrow.element), {100, y});
        y += 140;
    }
    y = 760;
    for (Named& bar : NewScaleBars(scale)) {
        page->Place(std::move(bar.element), {200, y});
        y += 60;
    }
    page->Place(std::make_unique<LegendOfRasters>(std::vector<fakes::Raster>{
                    RgbRaster(), GreyRaster(), ClassifiedRaster(12)}),
                {560, 640});
    return page;
}

}  // namespace bench
