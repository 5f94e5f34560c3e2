#include "drawing.h"

#include <algorithm>
#include <cstdio>

#include "map_surround/kit/image_file.h"

namespace gallery {

void Write(Gdiplus::Graphics* graphics, const std::wstring& text, float size, int style,
           Gdiplus::Color color, int left, int top) {
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::Font font(&family, size, style, Gdiplus::UnitPixel);
    const Gdiplus::SolidBrush brush(color);
    graphics->DrawString(
        text.c_str(), static_cast<int>(text.size()), &font,
        Gdiplus::PointF(static_cast<float>(left), static_cast<float>(top)), &brush);
}

void Decorate(CFrameBase& frame, float shadowX, float shadowY) {
    frame.DrawBorder = true;
    frame.BorderGapX = 1;  // else the fill would cover half of the border
    frame.BorderGapY = 1;
    frame.DrawFill = true;
    frame.FillColor = Gdiplus::Color(0xFFF7F3E8);
    frame.DrawShadow = true;
    frame.ShadowColor = Gdiplus::Color(0xFFB4BBC2);
    frame.ShadowRatioX = shadowX;
    frame.ShadowRatioY = shadowY;
}

void Smooth(Gdiplus::Graphics* graphics) {
    graphics->SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics->SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
}

std::wstring Wide(std::string_view word) { return {word.begin(), word.end()}; }

std::wstring FileName(std::string_view word) {
    std::wstring name = Wide(word);
    std::replace(name.begin(), name.end(), L'-', L'_');
    return name;
}

std::wstring Spoken(std::string_view word) {
    std::wstring name = Wide(word);
    std::replace(name.begin(), name.end(), L'-', L' ');
    return name;
}

bool SavePng(Gdiplus::Bitmap& bitmap, const std::wstring& file) {
    if (map_surround::kit::SaveImage(bitmap, file, 96.0) != Gdiplus::Ok) {
        std::fprintf(stderr, "gallery: %ls: cannot be written\n", file.c_str());
        return false;
    }
    return true;
}

}  // namespace gallery
