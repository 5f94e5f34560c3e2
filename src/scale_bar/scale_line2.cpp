#include "map_surround/scale_bar.h"
#include "scale_bar/ticked_line.h"

using namespace map_surround;

CScaleLine2::CScaleLine2() : CScaleBarBase(ScaleBarLine2) {}

void CScaleLine2::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    DrawDivision(graphics, BarRect(*this, centre, scale), scale);
}

void CScaleLine2::DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                               double scale) const {
    const auto bar = BarDrawing::Begin(*this, graphics, rect, scale);
    if (!bar) {
        return;
    }
    const Length sixth = bar->height / 6;
    LineShape shape;
    shape.baseLine = bar->bottom - sixth;
    shape.subTickTop = shape.baseLine - sixth / 2;
    shape.subTickBottom = shape.baseLine + sixth / 2;
    shape.unitNameRise = sixth;
    DrawTickedLine(*bar, shape);
}
