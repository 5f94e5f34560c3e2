#include "map_surround/scale_bar.h"
#include "scale_bar/box_row.h"

using namespace map_surround;

CScaleAlternate::CScaleAlternate() : CScaleBarBase(ScaleBarAlternate) {}

void CScaleAlternate::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    m_divisionCounter = 0;
    DrawDivision(graphics, BarRect(*this, centre, scale), scale);
}

void CScaleAlternate::DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                                   double scale) {
    const auto bar =
        BarDrawing::Begin(*this, graphics, rect, scale, LabelOfOne::OneDecimal);
    if (!bar) {
        return;
    }
    const Length top = bar->tickTop;
    const Length boxBottom = top + BoxHeight(*bar);
    const Length stripEnd = bar->firstX + bar->step * bar->mainCount;
    const Length subWidth = Truncate(bar->subStep);

    const Gdiplus::Pen outlinePen = bar->MakePen();
    const Gdiplus::Pen boxPen = bar->MakePen();
    const Gdiplus::SolidBrush fill = bar->MakeBrush();
    bar->DrawLine(outlinePen, {bar->firstX, top}, {stripEnd, top});
    bar->DrawLine(outlinePen, {bar->firstX, boxBottom}, {stripEnd, boxBottom});

    // Small boxes are filled when odd, divisions when even, all counted in one sequence.
    const auto drawBox = [&](Length boxX, Length width, bool fillOdd) {
        const Gdiplus::Rect box = BoxAt(*bar, boxX, width);
        graphics->DrawRectangle(&boxPen, box);
        m_divisionCounter = NextBox(m_divisionCounter);
        if (IsOdd(m_divisionCounter) == fillOdd) {
            graphics->FillRectangle(&fill, box);
        }
    };

    const Gdiplus::Font labelFont = bar->MakeLabelFont();
    Length x = bar->firstX;
    for (Length i = 0; i < bar->mainCount; ++i) {
        bar->DrawLabel(labelFont, i, x);
        if (i > 0) {
            drawBox(x, bar->step, false);
        } else {
            // There is one small box per sub-division tick, so the last part of the
            // division stays open up to the closing line.
            for (Length j = 0; j < bar->subCount; ++j) {
                drawBox(x + j * subWidth, subWidth, true);
            }
            const Length closingX =
                Truncate(static_cast<double>(bar->subCount + 1) * bar->subStep +
                         static_cast<double>(x));
            bar->DrawLine(boxPen, {closingX, top}, {closingX, boxBottom});
        }
        x += bar->step;
    }
    EndBoxRow(*bar, labelFont, x);
}
