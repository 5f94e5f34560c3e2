#include "map_surround/scale_bar.h"
#include "scale_bar/box_row.h"

using namespace map_surround;

CScaleEquAltenate::CScaleEquAltenate() : CScaleBarBase(ScaleBarEquAlternate) {}

void CScaleEquAltenate::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    constexpr Rounding rounding{0.0, 0.5};
    m_divisionCounter = 0;
    DrawDivision(graphics, BarRect(*this, centre, scale, rounding), scale);
}

void CScaleEquAltenate::DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                                     double scale) {
    const auto bar = BarDrawing::Begin(*this, graphics, rect, scale);
    if (!bar) {
        return;
    }
    // Not shortened with the step: if the division value was rounded down, a box reaches
    // into the next.
    const Length boxWidth = Truncate(bar->fullLength);

    const Gdiplus::Pen boxPen = bar->MakePen();
    const Gdiplus::Pen unusedPen = bar->MakePen();  // this style creates two, uses one
    const Gdiplus::SolidBrush fill = bar->MakeBrush();
    const Gdiplus::Font labelFont = bar->MakeLabelFont();
    Length x = bar->firstX;
    for (Length i = 0; i < bar->mainCount; ++i) {
        const Gdiplus::Rect box = BoxAt(*bar, x, boxWidth);
        bar->DrawLabel(labelFont, i, x);
        graphics->DrawRectangle(&boxPen, box);
        m_divisionCounter = NextBox(m_divisionCounter);
        if (IsOdd(m_divisionCounter)) {
            bar->DrawLabel(labelFont, i, x);  // twice above a filled box
            graphics->FillRectangle(&fill, box);
        }
        x += bar->step;
    }
    EndBoxRow(*bar, labelFont, x);
}
