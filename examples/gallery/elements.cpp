#include "drawing.h"
#include "gallery.h"
#include "rasters.h"
#include "sample_image.h"

namespace {

using namespace gallery;

void DrawTitle(Gdiplus::Graphics* graphics, CPoint centre) {
    CMapTitle title;
    title.SetFontValue(L"Vegetation 2024");
    title.SetFontStyle(L"Arial");
    title.SetFontProcess(FontProcessBold);
    title.SetFontSize(32.0);
    title.SetFrontColor(kInk);
    title.ResetAspectRatio();
    title.Draw(graphics, centre, 1.0);
}

void DrawPicture(Gdiplus::Graphics* graphics, CPoint centre) {
    const SampleImage image;
    CDrawPicture picture;
    picture.Open(image.File());
    picture.SetSize(130);
    picture.ResetAspectRatio();
    picture.Draw(graphics, centre, 1.0);
}

void DrawLegend(Gdiplus::Graphics* graphics, CPoint centre) {
    CMapLegend legend;
    legend.SetTitleValue(L"Land cover");
    ExplainedRasters(legend, Of(LandCover(L"land_cover.tif")))
        .Draw(graphics, centre, 1.0);
}

template <typename Arrow>
void DrawNorthArrow(Gdiplus::Graphics* graphics, CPoint centre) {
    Arrow arrow;
    arrow.SetSize(140);
    arrow.SetFrontColor(kInk);
    arrow.Draw(graphics, centre, 1.0);
}

template <typename Bar>
void DrawScaleBar(Gdiplus::Graphics* graphics, CPoint centre) {
    Bar bar;
    bar.SetSize(48);
    bar.SetFrontColor(kInk);
    bar.SetUnitsName(L"Kilometre");
    bar.SetPaper2DataScale(5.0);
    bar.SetPaper2ScreenScale(44.0);
    bar.SetScreen2PaperByOneScale(44.0);
    bar.ResetAspectRatio();
    bar.Draw(graphics, centre, 1.0);
}

void DrawFrame(Gdiplus::Graphics* graphics, CPoint centre) {
    CSurroundFrame frame;
    auto* arrow = new CNorthArrowFourAngle;
    arrow->SetSize(100);
    arrow->SetFrontColor(kInk);
    frame.SetMapSurround(arrow);
    Decorate(frame, 0.05f, 0.05f);
    frame.DrawFrame(graphics,
                    CRect(centre.x - 62, centre.y - 62, centre.x + 62, centre.y + 62));
    frame.Draw(graphics, centre, 1.0);
}

}  // namespace

const std::vector<gallery::Element>& gallery::Elements() {
    static const std::vector<Element> elements = {
        {L"title", L"CMapTitle", DrawTitle},
        {L"picture", L"CDrawPicture", DrawPicture},
        {L"legend", L"CMapLegend", DrawLegend},
        {L"frame", L"CSurroundFrame", DrawFrame},
        {L"north_arrow_one", L"CNorthArrowOneAngle", DrawNorthArrow<CNorthArrowOneAngle>},
        {L"north_arrow_two", L"CNorthArrowTwoAngle", DrawNorthArrow<CNorthArrowTwoAngle>},
        {L"north_arrow_four", L"CNorthArrowFourAngle",
         DrawNorthArrow<CNorthArrowFourAngle>},
        {L"north_arrow_eight", L"CNorthArrowEightAngle",
         DrawNorthArrow<CNorthArrowEightAngle>},
        {L"scale_line", L"CScaleLine", DrawScaleBar<CScaleLine>},
        {L"scale_stepped_line", L"CSteppedScaleLine", DrawScaleBar<CSteppedScaleLine>},
        {L"scale_line2", L"CScaleLine2", DrawScaleBar<CScaleLine2>},
        {L"scale_line3", L"CScaleLine3", DrawScaleBar<CScaleLine3>},
        {L"scale_alternate", L"CScaleAlternate", DrawScaleBar<CScaleAlternate>},
        {L"scale_equ_altenate", L"CScaleEquAltenate", DrawScaleBar<CScaleEquAltenate>},
    };
    return elements;
}

gallery::Sheet gallery::DrawContactSheet() {
    Sheet sheet(L"Every element in every style", 4, kElementWidth, kElementHeight + 30);
    for (const Element& element : Elements()) {
        sheet.AddCell(element.caption, Paper::White, element.draw);
    }
    return sheet;
}
