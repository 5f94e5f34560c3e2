#include "scale_bar/ticked_line.h"

// Main ticks are whole steps apart. Each sub tick is placed from the unrounded sub-step,
// so that within a division no error accumulates.
void map_surround::DrawTickedLine(const BarDrawing& bar, const LineShape& shape) {
    const Gdiplus::Pen mainPen = bar.MakePen();
    const Gdiplus::Pen subPen = bar.MakePen();

    BarPoint end;  // of the base line; stays (0, 0) with a negative count
    for (Length i = 0; i <= bar.mainCount; ++i) {
        const Length x = bar.firstX + i * bar.step;
        bar.DrawLine(mainPen, {x, bar.tickTop}, {x, bar.bottom});
        end = {x, shape.baseLine};

        const Gdiplus::Font font = bar.MakeLabelFont();
        bar.DrawLabel(font, i, x);
        for (Length j = 0; i < bar.mainCount && j <= bar.subCount; ++j) {
            const Length subX =
                Truncate(static_cast<double>(x) + static_cast<double>(j) * bar.subStep);
            bar.DrawLine(subPen, {subX, shape.subTickTop}, {subX, shape.subTickBottom});
        }
    }
    bar.DrawLine(mainPen, {bar.firstX, shape.baseLine}, end);
    bar.DrawUnitName(end, shape.unitNameRise);
}
