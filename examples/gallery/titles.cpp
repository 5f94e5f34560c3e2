#include "drawing.h"
#include "gallery.h"

namespace {

CMapTitle Title(const wchar_t* text, FontProcess process, float angle,
                Gdiplus::Color color) {
    CMapTitle title;
    title.SetFontValue(text);
    title.SetFontStyle(L"Arial");
    title.SetFontProcess(process);
    title.SetFontSize(26.0);
    title.SetAngle(angle);
    title.SetFrontColor(color);
    title.ResetAspectRatio();
    return title;
}

/// The same title in a frame of its own size, decorated.
void DrawFramed(Gdiplus::Graphics* graphics, CPoint centre) {
    CSurroundFrame frame;
    auto* title = new CMapTitle(
        Title(L"Olinda, Brazil", FontProcessBold, 0.0f, Gdiplus::Color(0xFF1B2733)));
    frame.SetMapSurround(title);
    gallery::Decorate(frame, 0.02f, 0.1f);
    const int halfHeight = title->GetSize();
    const int halfWidth = static_cast<int>(static_cast<float>(title->GetSize()) *
                                           title->GetAspectRatio() * 0.5f) +
                          20;
    frame.DrawFrame(graphics, CRect(centre.x - halfWidth, centre.y - halfHeight,
                                    centre.x + halfWidth, centre.y + halfHeight));
    frame.Draw(graphics, centre, 1.0);
}

}  // namespace

gallery::Sheet gallery::DrawTitles() {
    Sheet sheet(L"Title and frame", 3, 300, 210);
    const Gdiplus::Color ink(0xFF1B2733);
    sheet.Add(L"regular", Title(L"Vegetation 2024", FontProcessRegular, 0.0f, ink));
    sheet.Add(L"bold italic",
              Title(L"Vegetation 2024", FontProcessBoldItalic, 0.0f, ink));
    sheet.Add(
        L"underlined, light on dark",
        Title(L"Vegetation 2024", FontProcessUnderline, 0.0f, Gdiplus::Color(0xFFF2F5F7)),
        1.0, Paper::Dark);
    sheet.Add(L"turned by 30 degrees",
              Title(L"Vegetation", FontProcessRegular, 30.0f, ink));
    sheet.Add(L"turned by -90 degrees",
              Title(L"植被分布图", FontProcessBold, -90.0f, ink));
    sheet.AddCell(L"framed: border, shadow, background", Paper::White, DrawFramed);
    return sheet;
}
