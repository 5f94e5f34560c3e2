#include <gdiplus.h>

void DrawNorth(const CLSID& png) {
    Gdiplus::Bitmap page(320, 90);
    Gdiplus::Font font(L"Arial", 40, Gdiplus::FontStyleBold, Gdiplus::UnitPixel);
    Gdiplus::SolidBrush ink(Gdiplus::Color::SteelBlue);
    Gdiplus::Graphics(&page).DrawString(L"North 北", -1, &font, {20, 20}, &ink);
    page.Save(L"north.png", &png, nullptr);
}

int main() {
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    DrawNorth({0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}});
    Gdiplus::GdiplusShutdown(token);
}
