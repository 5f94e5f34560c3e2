#include <memory>
#include <utility>

#include "gallery.h"
#include "rasters.h"

namespace {

using namespace gallery;

std::unique_ptr<Raster> ChineseLandCover() {
    return Raster::Classified(L"土地利用.tif", {{L"水域", Gdiplus::Color(0xFF4A7FB5)},
                                                {L"林地", Gdiplus::Color(0xFF2E6B4F)},
                                                {L"耕地", Gdiplus::Color(0xFFC9D36A)}});
}

/// A cell with a legend and the rasters that it explains.
void Add(gallery::Sheet& sheet, const wchar_t* caption, const CMapLegend& legend,
         Rasters rasters, double scale = 1.0) {
    sheet.Add(caption, ExplainedRasters(legend, std::move(rasters)), scale);
}

CMapLegend Titled(const wchar_t* title) {
    CMapLegend legend;
    legend.SetTitleValue(title);
    return legend;
}

CMapLegend InColour() {
    CMapLegend legend = Titled(L"Land cover");
    legend.SetTitle(L"Times New Roman");
    legend.SetTitleStyle(Gdiplus::FontStyleBoldItalic);
    legend.SetTitleColor(Gdiplus::Color(0xFF7A3E2B));
    legend.SetFileName(L"Times New Roman");
    legend.SetFileNameStyle(Gdiplus::FontStyleItalic);
    legend.SetFileColor(Gdiplus::Color(0xFF55606B));
    return legend;
}

CMapLegend InColumns() {
    CMapLegend legend = Titled(L"Legend");
    legend.SetSourceCaption(L"");
    legend.SetBandCaption(L"Band ");
    legend.SetHighCaption(L"");
    legend.SetLowCaption(L"");
    legend.SetAlignedLabels(true);
    legend.SetGap(0.8f);
    legend.SetColumns(2);
    legend.SetMostWidth(140.0f);
    legend.SetMostLines(2);
    legend.SetShownSources({{L"Elevation in metres",
                             true,
                             {Gdiplus::Color(0xFF7A3E2B), Gdiplus::Color(0xFFC9D36A),
                              Gdiplus::Color(0xFF2E6B4F)}}});
    return legend;
}

}  // namespace

gallery::Sheet gallery::DrawLegends() {
    Sheet sheet(L"Legend", 3, 320, 350);
    Add(sheet, L"three bands", Titled(L"Legend"), Of(Scene()));
    Add(sheet, L"grey; the values overlap, as laid out", Titled(L"Legend"),
        Of(Elevation()));
    Add(sheet, L"classes", Titled(L"Legend"), Of(LandCover(L"land_cover.tif")));
    Add(sheet, L"all of them, at 0.75 times the scale", Titled(L"Legend"),
        Of(Scene(), Elevation(), LandCover(L"land_cover.tif")), 0.75);
    Add(sheet, L"图例", Titled(L"图例"),
        Of(Raster::Rgb(L"卫星影像.tif", 0, 1, 2), ChineseLandCover()));
    Add(sheet, L"fonts and colours; entries stay in Arial", InColour(),
        Of(LandCover(L"land_cover.tif")));
    Add(sheet, L"at 1.6 times the scale", Titled(L"Legend"), Of(Scene()), 1.6);
    Add(sheet, L"in columns and lines, a ramp in colours", InColumns(),
        Of(Elevation(), LandCover(L"cover_in_the_year_2024.tif"), Scene()));
    Add(sheet, L"without sources", Titled(L"Legend"), {});
    return sheet;
}
