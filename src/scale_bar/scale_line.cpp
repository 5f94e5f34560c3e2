#include "map_surround/scale_bar.h"
#include "scale_bar/ticked_line.h"

using namespace map_surround;

CScaleLine::CScaleLine() : CScaleBarBase(ScaleBarLine) {}

CSteppedScaleLine::CSteppedScaleLine() = default;

void CScaleLine::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    constexpr Rounding rounding{0.5, 0.0};
    DrawDivision(graphics, BarRect(*this, centre, scale, rounding), scale);
}

void CScaleLine::DrawDivision(Gdiplus::Graphics* graphics, Gdiplus::Rect rect,
                              double scale) const {
    const auto bar = BarDrawing::Begin(*this, graphics, rect, scale);
    if (!bar) {
        return;
    }
    LineShape shape;
    shape.baseLine = bar->bottom;
    shape.subTickTop = bar->tickTop + bar->height / 6;
    shape.subTickBottom = bar->bottom;
    shape.unitNameRise = bar->height / 3;
    DrawTickedLine(*bar, shape);
}
