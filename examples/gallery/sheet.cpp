#include <algorithm>
#include <cstdio>
#include <utility>

#include "gallery.h"

namespace gallery {
namespace {

constexpr int kMargin = 24;
constexpr int kTitleHeight = 56;
constexpr int kCaptionHeight = 30;
constexpr int kGap = 12;

constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

void Write(Gdiplus::Graphics* graphics, const std::wstring& text, float size, int style,
           Gdiplus::Color color, int left, int top) {
    const Gdiplus::FontFamily family(L"Arial");
    const Gdiplus::Font font(&family, size, style, Gdiplus::UnitPixel);
    const Gdiplus::SolidBrush brush(color);
    graphics->DrawString(
        text.c_str(), static_cast<int>(text.size()), &font,
        Gdiplus::PointF(static_cast<float>(left), static_cast<float>(top)), &brush);
}

}  // namespace

Sheet::Sheet(std::wstring title, int columns, int cellWidth, int cellHeight)
    : m_title(std::move(title)),
      m_columns(columns),
      m_cellWidth(cellWidth),
      m_cellHeight(cellHeight) {}

void Sheet::AddCell(std::wstring caption, Paper paper,
                    std::function<void(Gdiplus::Graphics*, CPoint)> draw) {
    m_cells.push_back({std::move(caption), paper, std::move(draw)});
}

void Sheet::DrawCell(Gdiplus::Graphics* graphics, const Cell& cell, int left,
                     int top) const {
    const int paperHeight = m_cellHeight - kCaptionHeight;
    const Gdiplus::SolidBrush paper(cell.paper == Paper::White
                                        ? Gdiplus::Color(0xFFFFFFFF)
                                        : Gdiplus::Color(0xFF26323F));
    graphics->FillRectangle(&paper, left, top, m_cellWidth, paperHeight);
    cell.draw(graphics, CPoint(left + m_cellWidth / 2, top + paperHeight / 2));
    Write(graphics, cell.caption, 14.0f, Gdiplus::FontStyleRegular,
          Gdiplus::Color(0xFF55606B), left + 2, top + paperHeight + 5);
}

bool Sheet::Save(const std::wstring& file) const {
    const int count = static_cast<int>(m_cells.size());
    const int columns = std::max(1, m_columns);
    const int rows = (count + columns - 1) / columns;
    const int width = 2 * kMargin + columns * (m_cellWidth + kGap) - kGap;
    const int height = kTitleHeight + rows * (m_cellHeight + kGap) - kGap + kMargin;

    Gdiplus::Bitmap bitmap(width, height);
    {
        Gdiplus::Graphics graphics(&bitmap);
        graphics.Clear(Gdiplus::Color(0xFFEEF1F4));
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
        Write(&graphics, m_title, 24.0f, Gdiplus::FontStyleBold,
              Gdiplus::Color(0xFF1B2733), kMargin, 14);
        for (int i = 0; i < count; ++i) {
            DrawCell(&graphics, m_cells[static_cast<std::size_t>(i)],
                     kMargin + i % columns * (m_cellWidth + kGap),
                     kTitleHeight + i / columns * (m_cellHeight + kGap));
        }
    }
    if (bitmap.Save(file.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok) {
        std::fprintf(stderr, "gallery: %ls: cannot be written\n", file.c_str());
        return false;
    }
    std::printf("%ls\n", file.c_str());
    return true;
}

}  // namespace gallery
