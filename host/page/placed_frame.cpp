#include "page/placed_frame.h"

#include <cmath>

#include "map_surround/scale_bar.h"

namespace host {

void PlacedFrame::SetElementOffset(double dx, double dy) {
    m_offsetX = dx;
    m_offsetY = dy;
}

void PlacedFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (auto* bar = dynamic_cast<CScaleBarBase*>(GetMapSurround())) {
        bar->SetPaper2ScreenScale(m_divisionLength * scale);
    }
    const CPoint elementCentre(
        centre.x + static_cast<int>(std::lround(m_offsetX * scale)),
        centre.y - static_cast<int>(std::lround(m_offsetY * scale)));
    CSurroundFrame::Draw(graphics, elementCentre, scale);
}

}  // namespace host
