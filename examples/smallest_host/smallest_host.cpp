// The smallest host: one title, drawn into a picture file.

#include "map_surround/map_surround.h"

static void DrawTitle(const wchar_t* file) {
    Gdiplus::Bitmap page(640, 120);
    Gdiplus::Graphics graphics(&page);
    graphics.Clear(Gdiplus::Color(255, 255, 255, 255));

    CMapTitle title;
    title.SetFontValue(L"Land cover of Olinda");
    title.SetFontStyle(L"Arial");
    title.SetFontSize(40.0);
    title.ResetAspectRatio();
    title.Draw(&graphics, CPoint(320, 60), 1.0);

    const CLSID png = {
        0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    page.Save(file, &png, nullptr);
}

int main() {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    DrawTitle(L"title.png");
    Gdiplus::GdiplusShutdown(token);
}
