// A page with a title, a north arrow and a scale bar in frames, at any resolution.
//   framed_page [DOTS_PER_INCH]

#include <cstdlib>

#include "map_surround/map_surround.h"

namespace {

// The page unit is this host's choice: a tenth of a millimetre. A6, lying.
constexpr double kPageWidth = 1480.0;
constexpr double kPageHeight = 1050.0;
constexpr double kUnitsOfInch = 254.0;
constexpr double kMargin = 70.0;       // of an element in its frame
constexpr double kMetresOfUnit = 2.5;  // a map of 1 : 25 000

/// Page units, y upwards, to device pixels, y downwards.
CRect ToDevice(CBoundingBox extent, double scale) {
    const CPoint2D topLeft = extent.TopLeft();
    const int left = static_cast<int>(topLeft.x * scale);
    const int top = static_cast<int>((kPageHeight - topLeft.y) * scale);
    return {left, top, left + static_cast<int>(extent.GetWidth() * scale),
            top + static_cast<int>(extent.GetHeight() * scale)};
}

/// Draws an element in a frame around it, the middle at a place on the page. The frame
/// owns the element and deletes it.
void DrawFramed(Gdiplus::Graphics* graphics, CMapSurround* element, double x, double y,
                double scale) {
    const double height = element->GetSize() + kMargin;
    const double width = element->GetSize() * double{element->GetAspectRatio()} + kMargin;
    CSurroundFrame frame;
    frame.SetMapSurround(element);
    frame.SetExtent(CBoundingBox(x - width / 2.0, y - height / 2.0, x + width / 2.0,
                                 y + height / 2.0));
    frame.DrawBorder = true;
    frame.BorderGapX = 1;  // pixels; the fill would cover half of the border otherwise
    frame.BorderGapY = 1;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);

    const CRect rect = ToDevice(frame.GetExtent(), scale);
    frame.DrawFrame(graphics, rect);
    frame.Draw(graphics, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2},
               scale);
}

CMapTitle* NewTitle() {
    auto* title = new CMapTitle;
    title->SetFontValue(L"Olinda");
    title->SetFontStyle(L"Arial");
    title->SetFontProcess(FontProcessBold);
    title->SetFontSize(120.0);
    title->ResetAspectRatio();
    return title;
}

CNorthArrowFourAngle* NewNorthArrow() {
    auto* arrow = new CNorthArrowFourAngle;
    arrow->SetSize(250);
    return arrow;
}

CScaleAlternate* NewScaleBar(double scale) {
    constexpr double kDivision = 500.0;  // metres
    auto* bar = new CScaleAlternate;
    bar->SetSize(80);
    bar->SetUnitsName(L"m");
    bar->SetMainDivCount(3);
    bar->SetPaper2DataScale(kDivision);
    bar->SetScreen2PaperByOneScale(kDivision / kMetresOfUnit);
    bar->SetPaper2ScreenScale(kDivision / kMetresOfUnit * scale);  // pixels, so by dpi
    bar->ResetAspectRatio();
    return bar;
}

bool DrawPage(const wchar_t* file, double dpi) {
    const double scale = dpi / kUnitsOfInch;
    Gdiplus::Bitmap page(static_cast<int>(kPageWidth * scale),
                         static_cast<int>(kPageHeight * scale));
    Gdiplus::Graphics graphics(&page);
    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);

    const Gdiplus::SolidBrush map(Gdiplus::Color(0xFFB9CFA8));  // where yours would be
    const CRect mapRect = ToDevice(CBoundingBox(60.0, 60.0, 1420.0, 990.0), scale);
    graphics.FillRectangle(&map, mapRect.left, mapRect.top, mapRect.right - mapRect.left,
                           mapRect.bottom - mapRect.top);
    DrawFramed(&graphics, NewTitle(), 740.0, 870.0, scale);
    DrawFramed(&graphics, NewNorthArrow(), 1220.0, 560.0, scale);
    DrawFramed(&graphics, NewScaleBar(scale), 740.0, 170.0, scale);

    const CLSID png = {
        0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    return page.Save(file, &png, nullptr) == Gdiplus::Ok;
}

}  // namespace

int main(int argc, char** argv) {
    const double dpi = argc > 1 ? std::atof(argv[1]) : 100.0;
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    const bool drawn = DrawPage(L"page.png", dpi);
    Gdiplus::GdiplusShutdown(token);
    return drawn ? 0 : 1;
}
