#include <algorithm>
#include <utility>

#include "drawing.h"
#include "gallery.h"

namespace gallery {
namespace {

constexpr int kMargin = 24;
constexpr int kTitleHeight = 56;
constexpr int kCaptionHeight = 30;
constexpr int kGap = 12;

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
    Write(graphics, cell.caption, 14.0f, Gdiplus::FontStyleRegular, kCaptionInk, left + 2,
          top + paperHeight + 5);
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
        Smooth(&graphics);
        Write(&graphics, m_title, 24.0f, Gdiplus::FontStyleBold, kInk, kMargin, 14);
        for (int i = 0; i < count; ++i) {
            DrawCell(&graphics, m_cells[static_cast<std::size_t>(i)],
                     kMargin + i % columns * (m_cellWidth + kGap),
                     kTitleHeight + i / columns * (m_cellHeight + kGap));
        }
    }
    return SavePng(bitmap, file);
}

}  // namespace gallery
