#include "element/text_outline.h"

#include "element/numbers.h"

int map_surround::TextLength(const std::wstring& text) {
    return ToDevice(static_cast<Length>(text.size()));
}

Gdiplus::Rect map_surround::MeasureOutline(Gdiplus::GraphicsPath& path,
                                           const std::wstring& text,
                                           const Gdiplus::FontFamily& family,
                                           const Gdiplus::Font& font,
                                           const Gdiplus::StringFormat& format) {
    const Gdiplus::REAL emSize = font.GetSize();
    const int style = font.GetStyle();
    // Size and style mean nothing for a font that could not be created.
    if (font.GetLastStatus() == Gdiplus::Ok) {
        path.AddString(text.c_str(), TextLength(text), &family, style, emSize,
                       Gdiplus::RectF(0.0f, 0.0f, 0.0f, 0.0f), &format);
    }
    Gdiplus::Rect bounds;
    path.GetBounds(&bounds, nullptr, nullptr);
    return bounds;
}

void map_surround::WriteText(Gdiplus::Graphics* graphics, const std::wstring& text,
                             const Gdiplus::Font& font, Gdiplus::PointF topLeft,
                             const Gdiplus::Brush& brush) {
    graphics->DrawString(text.c_str(), TextLength(text), &font, topLeft, &brush);
}
