#include "page/placed_frame.h"

#include <cmath>

#include "page/catalogue.h"
#include "page/element_of.h"

namespace host {

void PlacedFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    const CPoint elementCentre(
        centre.x + static_cast<int>(std::lround(m_offset.x * scale)),
        centre.y - static_cast<int>(std::lround(m_offset.y * scale)));
    CSurroundFrame::Draw(graphics, elementCentre, scale);
}

ScaleBarFrame::ScaleBarFrame(std::unique_ptr<CScaleBarBase> bar)
    : PlacedFrame(std::move(bar)) {
    SetDivisionLength(m_divisionLength);
}

void ScaleBarFrame::SetDivisionLength(double length) {
    m_divisionLength = length;
    if (auto* const bar = ElementOf<CScaleBarBase>(*this)) {
        bar->SetScreen2PaperByOneScale(length);
        bar->SetPaper2ScreenScale(length);  // for measuring at scale 1
    }
}

void ScaleBarFrame::SetDivisionValue(double value) {
    m_divisionValue = value;
    if (auto* const bar = ElementOf<CScaleBarBase>(*this)) {
        bar->SetPaper2DataScale(value);
    }
}

void ScaleBarFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (auto* const bar = ElementOf<CScaleBarBase>(*this)) {
        bar->SetPaper2ScreenScale(m_divisionLength * scale);
    }
    PlacedFrame::Draw(graphics, centre, scale);
}

void LegendFrame::SetSizeFactor(float factor) {
    m_sizeFactor = factor;
    if (auto* const legend = ElementOf<CMapLegend>(*this)) {
        legend->SetSizeAspect(factor);
    }
}

std::unique_ptr<PlacedFrame> FrameFor(std::unique_ptr<CMapSurround> element) {
    if (auto bar = TakeAs<CScaleBarBase>(element)) {
        return std::make_unique<ScaleBarFrame>(std::move(bar));
    }
    if (auto arrow = TakeAs<CNorthArrowBase>(element)) {
        return std::make_unique<NorthArrowFrame>(std::move(arrow));
    }
    if (auto legend = TakeAs<CMapLegend>(element)) {
        return std::make_unique<LegendFrame>(std::move(legend));
    }
    return std::make_unique<PlacedFrame>(std::move(element));
}

}  // namespace host
