#include "elements.h"

#include <utility>

namespace bench {
namespace {

constexpr Gdiplus::ARGB kInk = 0xFF1B2733;

template <typename Arrow>
Named NewNorthArrow(const char* name) {
    auto arrow = std::make_unique<Arrow>();
    arrow->SetSize(120);
    arrow->SetAngle(20.0f);
    arrow->SetFrontColor(kInk);
    return {name, std::move(arrow)};
}

template <typename Bar>
Named NewScaleBar(const char* name, double scale) {
    constexpr double kDivision = 36.0;
    auto bar = std::make_unique<Bar>();
    bar->SetFrontColor(kInk);
    bar->SetUnitsName(L"Kilometre");
    bar->SetPaper2DataScale(0.5);
    bar->SetPaper2ScreenScale(kDivision * scale);
    bar->SetScreen2PaperByOneScale(kDivision);
    bar->ResetAspectRatio();
    return {name, std::move(bar)};
}

Named NewLegend(const char* name, std::vector<fakes::Raster> rasters) {
    return {name, std::make_unique<LegendOfRasters>(std::move(rasters))};
}

void Append(std::vector<Named>& to, std::vector<Named> what) {
    for (Named& named : what) {
        to.push_back(std::move(named));
    }
}

}  // namespace

std::unique_ptr<CMapSurround> NewTitle() {
    auto title = std::make_unique<CMapTitle>();
    title->SetFontValue(L"Land cover of Olinda");
    title->SetFontStyle(L"Arial");
    title->SetFontSize(40.0);
    title->SetFrontColor(kInk);
    title->ResetAspectRatio();
    return title;
}

std::unique_ptr<CMapSurround> NewPicture() {
    const std::string path = BENCH_PICTURE;
    auto picture = std::make_unique<CDrawPicture>();
    picture->Open(std::wstring(path.begin(), path.end()).c_str());
    picture->SetSize(120);
    picture->ResetAspectRatio();
    return picture;
}

std::vector<Named> NewNorthArrows() {
    std::vector<Named> arrows;
    arrows.push_back(NewNorthArrow<CNorthArrowOneAngle>("north arrow, one angle"));
    arrows.push_back(NewNorthArrow<CNorthArrowTwoAngle>("north arrow, two angles"));
    arrows.push_back(NewNorthArrow<CNorthArrowFourAngle>("north arrow, four angles"));
    arrows.push_back(NewNorthArrow<CNorthArrowEightAngle>("north arrow, eight angles"));
    return arrows;
}

std::vector<Named> NewScaleBars(double scale) {
    std::vector<Named> bars;
    bars.push_back(NewScaleBar<CScaleLine>("scale bar, line", scale));
    bars.push_back(NewScaleBar<CSteppedScaleLine>("scale bar, stepped", scale));
    bars.push_back(NewScaleBar<CScaleLine2>("scale bar, line 2", scale));
    bars.push_back(NewScaleBar<CScaleLine3>("scale bar, line 3", scale));
    bars.push_back(NewScaleBar<CScaleAlternate>("scale bar, alternating", scale));
    bars.push_back(NewScaleBar<CScaleEquAltenate>("scale bar, equal boxes", scale));
    return bars;
}

std::vector<Named> NewElements(double scale) {
    std::vector<Named> elements;
    elements.push_back({"title", NewTitle()});
    elements.push_back({"picture", NewPicture()});
    Append(elements, NewNorthArrows());
    Append(elements, NewScaleBars(scale));
    elements.push_back(NewLegend("legend, three bands", {RgbRaster()}));
    elements.push_back(NewLegend("legend, grey", {GreyRaster()}));
    elements.push_back(NewLegend("legend, 12 classes", {ClassifiedRaster(12)}));
    elements.push_back(NewLegend("legend, all three",
                                 {RgbRaster(), GreyRaster(), ClassifiedRaster(12)}));
    return elements;
}

LegendOfRasters::LegendOfRasters(std::vector<fakes::Raster> rasters)
    : m_rasters(std::move(rasters)) {
    std::vector<CGISDataSource*> sources;
    for (fakes::Raster& raster : m_rasters) {
        sources.push_back(&raster);
    }
    SetDataSouce(sources);
    SetTitleValue(L"Legend");
    CMapLegend::ResetAspectRatio();
}

fakes::Raster RgbRaster() { return fakes::Raster(L"landsat_2024.tif", DisplayRGB); }

fakes::Raster GreyRaster() {
    fakes::Raster raster(L"elevation.tif", DisplayGray);
    raster.band.lowest = -3.7;
    raster.band.highest = 107.9;
    return raster;
}

fakes::Raster ClassifiedRaster(int classes) {
    fakes::Raster raster(L"land_cover.tif", DisplayClassified);
    for (int i = 0; i < classes; ++i) {
        const auto shade = static_cast<unsigned char>(i);
        // As long a label for each, so that the classes cost the same.
        raster.table.items.emplace_back(L"class " + std::to_wstring(10000 + i), shade,
                                        shade, shade);
    }
    return raster;
}

CFrameBase DecoratedFrame() {
    CFrameBase frame;
    frame.DrawBorder = true;
    frame.BorderGapX = 1;
    frame.BorderGapY = 1;
    frame.DrawShadow = true;
    frame.ShadowColor = Gdiplus::Color(0xFFB4BBC2);
    frame.ShadowRatioX = 0.02f;
    frame.ShadowRatioY = 0.05f;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);
    return frame;
}

CFrameBase DashedFrame() {
    CFrameBase frame;
    frame.DrawBorder = true;
    frame.DashedBorder = true;
    return frame;
}

Gdiplus::SmoothingMode SmoothingOf(const CMapSurround& element) {
    const MapSurroundType type = element.GetItemType();
    return type == SurroundScaleBar || type == SurroundLegend
               ? Gdiplus::SmoothingModeDefault
               : Gdiplus::SmoothingModeAntiAlias;
}

}  // namespace bench
