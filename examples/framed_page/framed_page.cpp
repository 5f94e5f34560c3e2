// A page with a title, a north arrow and a scale bar in frames. It prints the same at any
// resolution, because everything is drawn in page units under one world transform.
//   framed_page [DOTS_PER_INCH]

#include <cstdlib>

#include "map_surround/kit/division.h"
#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/kit/image_file.h"
#include "map_surround/map_surround.h"

namespace {

// The page unit is this host's choice: a tenth of a millimetre. A6 landscape.
constexpr int kPageWidth = 1480;
constexpr int kPageHeight = 1050;
constexpr double kUnitsPerInch = 254.0;
constexpr double kMargin = 70.0;        // around an element in its frame
constexpr double kMetresPerUnit = 2.5;  // a map at 1 : 25 000
constexpr int kBorderWidth = 2;         // a fifth of a millimetre

/// From page units, y upwards, to drawing units, which are as large but have y downwards.
CRect ToDrawing(CBoundingBox extent) {
    const CPoint2D topLeft = extent.TopLeft();
    const int left = static_cast<int>(topLeft.x);
    const int top = static_cast<int>(kPageHeight - topLeft.y);
    return {left, top, left + static_cast<int>(extent.GetWidth()),
            top + static_cast<int>(extent.GetHeight())};
}

/// Draws an element in a frame around it, centred on a point of the page. The frame owns
/// the element and deletes it.
void DrawFramed(Gdiplus::Graphics* graphics, CMapSurround* element, double x, double y) {
    const double height = element->GetSize() + kMargin;
    const double width = element->GetSize() * double{element->GetAspectRatio()} + kMargin;
    CSurroundFrame frame;
    frame.SetMapSurround(element);
    frame.SetExtent(CBoundingBox(x - width / 2.0, y - height / 2.0, x + width / 2.0,
                                 y + height / 2.0));
    frame.DrawBorder = true;
    frame.BorderWidth = kBorderWidth;
    frame.BorderGapX = kBorderWidth / 2;  // otherwise the fill covers half of the border
    frame.BorderGapY = kBorderWidth / 2;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);

    // Titles, pictures and north arrows reset the transform, so keep it.
    const Gdiplus::GraphicsState state = graphics->Save();
    const CRect rect = ToDrawing(frame.GetExtent());
    frame.DrawFrame(graphics, rect);
    frame.Draw(graphics, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2},
               1.0);
    graphics->Restore(state);
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

CScaleAlternate* NewScaleBar() {
    constexpr double kLongest = 700.0;
    auto* bar = new CScaleAlternate;
    bar->SetSize(80);
    bar->SetUnitsName(L"m");
    bar->SetMainDivCount(3);
    // 500 m each, for three of 1000 m would be longer.
    const auto division = map_surround::kit::LargestDivision(kMetresPerUnit, 3, kLongest);
    map_surround::kit::SetDivision(*bar,
                                   division.value_or(map_surround::kit::Division{}));
    bar->ResetAspectRatio();
    return bar;
}

bool DrawPage(const wchar_t* file, double dpi) {
    const double pixelsPerUnit = dpi / kUnitsPerInch;
    Gdiplus::Bitmap page(static_cast<int>(kPageWidth * pixelsPerUnit),
                         static_cast<int>(kPageHeight * pixelsPerUnit));
    Gdiplus::Graphics graphics(&page);
    graphics.Clear(Gdiplus::Color(0xFFFFFFFF));
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    graphics.ScaleTransform(static_cast<float>(pixelsPerUnit),
                            static_cast<float>(pixelsPerUnit));

    const Gdiplus::SolidBrush map(Gdiplus::Color(0xFFB9CFA8));  // where yours would be
    graphics.FillRectangle(&map, 60, 60, kPageWidth - 120, kPageHeight - 120);
    DrawFramed(&graphics, NewTitle(), 740.0, 870.0);
    DrawFramed(&graphics, NewNorthArrow(), 1220.0, 560.0);
    DrawFramed(&graphics, NewScaleBar(), 740.0, 170.0);

    return map_surround::kit::SaveImage(page, file, dpi) == Gdiplus::Ok;
}

}  // namespace

int main(int argc, char** argv) {
    const double dpi = argc > 1 ? std::atof(argv[1]) : 100.0;
    const map_surround::kit::GdiplusSession session;
    return DrawPage(L"page.png", dpi) ? 0 : 1;
}
