#include "page/placed_frame.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "map_surround/kit/division.h"
#include "page/catalogue.h"
#include "page/element_of.h"
#include "page/tiles.h"
#include "raster_data/gdal_raster.h"

namespace host {
namespace {

void AddRamps(const std::vector<CGISDataSource*>& sources,
              std::vector<LegendSource>& shown) {
    for (std::size_t i = 0; i < sources.size(); ++i) {
        auto* const raster = dynamic_cast<GdalRaster*>(sources[i]);
        if (raster != nullptr && shown[i].isShown) {
            const std::vector<ClassColour> colours = raster->RampColours();
            std::transform(
                colours.rbegin(), colours.rend(), std::back_inserter(shown[i].ramp),
                [](const ClassColour& colour) {
                    return Gdiplus::Color(colour.red, colour.green, colour.blue);
                });
        }
    }
}

}  // namespace

CPoint PlacedFrame::ElementCentre(CPoint middle, double scale) const {
    return {middle.x + static_cast<int>(std::lround(m_offset.x * scale)),
            middle.y - static_cast<int>(std::lround(m_offset.y * scale))};
}

void PlacedFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    CSurroundFrame::Draw(graphics, ElementCentre(centre, scale), scale);
}

void NorthArrowFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    constexpr double kPixels = 200.0;     // of which the head is a fifth
    constexpr double kLargest = 32767.0;  // larger letters break the font for all others
    const auto* const arrow = ElementOf<CNorthArrowOneAngle>(*this);
    if (arrow == nullptr || !m_isExact || arrow->GetSize() <= 0 ||
        !(arrow->GetSize() * scale <= kLargest)) {
        PlacedFrame::Draw(graphics, centre, scale);
        return;
    }
    const double drawn = kPixels / arrow->GetSize();
    const auto larger = static_cast<float>(scale / drawn);
    const CPoint middle = ElementCentre(centre, scale);
    const Gdiplus::GraphicsState state = graphics->Save();
    graphics->TranslateTransform(static_cast<float>(middle.x),
                                 static_cast<float>(middle.y));
    graphics->ScaleTransform(larger, larger);
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the offset is in the transform
    CSurroundFrame::Draw(graphics, CPoint(0, 0), drawn);
    graphics->Restore(state);
}

ScaleBarFrame::ScaleBarFrame(std::unique_ptr<CScaleBarBase> bar)
    : PlacedFrame(std::move(bar)) {
    SetDivisionLength(m_divisionLength);
}

void ScaleBarFrame::SetDivisionLength(double length) {
    m_divisionLength = length;
    if (auto* const bar = ElementOf<CScaleBarBase>(*this)) {
        bar->SetScreen2PaperByOneScale(length);
        bar->SetPaper2ScreenScale(length);  // so that it measures at scale 1
    }
}

void ScaleBarFrame::SetDivisionValue(double value) {
    m_divisionValue = value;
    if (auto* const bar = ElementOf<CScaleBarBase>(*this)) {
        bar->SetPaper2DataScale(value);
    }
}

void ScaleBarFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    auto* const bar = ElementOf<CScaleBarBase>(*this);
    if (bar != nullptr && m_isExact) {
        map_surround::kit::WithTrueDivisions(
            *graphics, *bar, m_divisionLength, centre.x, scale,
            [&] { PlacedFrame::Draw(graphics, centre, scale); });
        return;
    }
    if (bar != nullptr) {
        bar->SetPaper2ScreenScale(m_divisionLength * scale);
    }
    PlacedFrame::Draw(graphics, centre, scale);
}

void LegendFrame::SetSources(std::vector<CGISDataSource*> sources,
                             std::vector<LegendSource> shown) {
    m_sources = std::move(sources);
    if (m_joinsTiles) {
        shown.resize(m_sources.size());
        JoinTiles(m_sources, shown);
    }
    if (m_explainsRamps) {
        shown.resize(m_sources.size());
        AddRamps(m_sources, shown);
    }
    if (auto* const legend = ElementOf<CMapLegend>(*this)) {
        legend->SetDataSouce(m_sources);
        legend->SetShownSources(std::move(shown));
    }
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
