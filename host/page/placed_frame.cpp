#include "page/placed_frame.h"

#include <cmath>

#include "map_surround/legend.h"
#include "map_surround/scale_bar.h"

namespace host {

void PlacedFrame::SetElementOffset(double dx, double dy) {
    m_offsetX = dx;
    m_offsetY = dy;
}

void PlacedFrame::SetDivisionLength(double length) {
    m_divisionLength = length;
    if (auto* bar = dynamic_cast<CScaleBarBase*>(GetMapSurround())) {
        bar->SetScreen2PaperByOneScale(length);
        bar->SetPaper2ScreenScale(length);  // for measuring at scale 1
    }
}

void PlacedFrame::SetDivisionValue(double value) {
    m_divisionValue = value;
    if (auto* bar = dynamic_cast<CScaleBarBase*>(GetMapSurround())) {
        bar->SetPaper2DataScale(value);
    }
}

void PlacedFrame::SetLegendSizeFactor(float factor) {
    m_legendSizeFactor = factor;
    if (auto* legend = dynamic_cast<CMapLegend*>(GetMapSurround())) {
        legend->SetSizeAspect(factor);
    }
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
