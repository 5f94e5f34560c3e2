#include "map_surround/scale_bar.h"
#include "scale_bar/ticked_line.h"

using namespace map_surround;

CScaleLine3::CScaleLine3() : CScaleBarBase(ScaleBarLine3) {}

void CScaleLine3::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    DrawDivision(graphics, BarRect(*this, centre, scale), scale);
}

void CScaleLine3::DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                               double scale) const {
    const auto bar = BarDrawing::Begin(*this, graphics, rect, scale);
    if (!bar) {
        return;
    }
    LineShape shape;
    shape.baseLine = bar->tickTop;
    shape.subTickTop = bar->tickTop;
    shape.subTickBottom = bar->tickTop + bar->height / 6;
    shape.unitNameRise = 0;
    DrawTickedLine(*bar, shape);
}
