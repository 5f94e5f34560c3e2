#include <memory>

#include "drawing.h"
#include "gallery.h"
#include "page/catalogue.h"
#include "rasters.h"
#include "sample_image.h"

namespace {

using namespace gallery;

// Each family with the properties that a host would give it.

void SetUp(CMapTitle& title) {
    title.SetFontValue(L"Vegetation 2024");
    title.SetFontStyle(L"Arial");
    title.SetFontProcess(FontProcessBold);
    title.SetFontSize(32.0);
    title.SetFrontColor(kInk);
}

void SetUp(CNorthArrowBase& arrow) {
    arrow.SetSize(140);
    arrow.SetFrontColor(kInk);
}

void SetUp(CScaleBarBase& bar) {
    bar.SetSize(48);
    bar.SetFrontColor(kInk);
    bar.SetUnitsName(L"Kilometre");
    bar.SetPaper2DataScale(5.0);
    bar.SetPaper2ScreenScale(44.0);
    bar.SetScreen2PaperByOneScale(44.0);
}

void DrawPicture(CDrawPicture& picture, Gdiplus::Graphics* graphics, CPoint centre) {
    const SampleImage image;
    picture.Open(image.File());
    picture.SetSize(130);
    picture.ResetAspectRatio();
    picture.Draw(graphics, centre, 1.0);
}

void DrawLegend(CMapLegend& legend, Gdiplus::Graphics* graphics, CPoint centre) {
    legend.SetTitleValue(L"Land cover");
    ExplainedRasters(legend, Of(LandCover(L"land_cover.tif")))
        .Draw(graphics, centre, 1.0);
}

void DrawEntry(const host::CatalogueEntry& entry, Gdiplus::Graphics* graphics,
               CPoint centre) {
    const std::unique_ptr<CMapSurround> element = entry.make();
    if (auto* const picture = dynamic_cast<CDrawPicture*>(element.get())) {
        return DrawPicture(*picture, graphics, centre);
    }
    if (auto* const legend = dynamic_cast<CMapLegend*>(element.get())) {
        return DrawLegend(*legend, graphics, centre);
    }
    if (auto* const title = dynamic_cast<CMapTitle*>(element.get())) {
        SetUp(*title);
    } else if (auto* const arrow = dynamic_cast<CNorthArrowBase*>(element.get())) {
        SetUp(*arrow);
    } else if (auto* const bar = dynamic_cast<CScaleBarBase*>(element.get())) {
        SetUp(*bar);
    }
    element->ResetAspectRatio();
    element->Draw(graphics, centre, 1.0);
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

std::vector<Element> EachElement() {
    std::vector<Element> elements;
    for (const host::CatalogueEntry& entry : host::kCatalogue) {
        elements.push_back({FileName(entry.name), Wide(entry.className),
                            [&entry](Gdiplus::Graphics* graphics, CPoint centre) {
                                DrawEntry(entry, graphics, centre);
                            }});
        // Between the three that stand alone and the families of many styles.
        if (entry.family == SurroundLegend) {
            elements.push_back({L"frame", L"CSurroundFrame", DrawFrame});
        }
    }
    return elements;
}

}  // namespace

const std::vector<gallery::Element>& gallery::Elements() {
    static const std::vector<Element> elements = EachElement();
    return elements;
}

gallery::Sheet gallery::DrawContactSheet() {
    Sheet sheet(L"Every element in every style", 4, kElementWidth, kElementHeight + 30);
    for (const Element& element : Elements()) {
        sheet.AddCell(element.caption, Paper::White, element.draw);
    }
    return sheet;
}
