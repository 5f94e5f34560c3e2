#include "scale_bar/bar_drawing.h"

#include <limits>

#include "element/text_outline.h"
#include "host/common_functions.h"

namespace map_surround {

// A sub-division count of -1 divides by zero, which must give an infinity.
static_assert(std::numeric_limits<double>::is_iec559);

Gdiplus::Rect BarRect(const CScaleBarBase& bar, CPoint centre, double scale,
                      Rounding rounding) {
    const int height = Truncate(bar.GetSize() * scale + rounding.height);
    const float width = static_cast<float>(height) * bar.GetAspectRatio();
    const Length halfHeight = Truncate(height * 0.5 + rounding.halves);
    const Length halfWidth = Truncate(static_cast<double>(width) * 0.5 + rounding.halves);
    return {ToDevice(centre.x - halfWidth), ToDevice(centre.y - halfHeight),
            ToDevice(2 * halfWidth), ToDevice(2 * halfHeight)};
}

std::optional<BarDrawing> BarDrawing::Begin(const CScaleBarBase& bar,
                                            Gdiplus::Graphics* graphics,
                                            const Gdiplus::Rect& rect, double scale,
                                            LabelOfOne labelOfOne) {
    const std::optional<DivisionValue> value =
        DivisionValueOf(bar.m_paper2DataScale, labelOfOne);
    if (!value || graphics == nullptr) {
        return std::nullopt;
    }
    return BarDrawing(bar, graphics, rect, scale, *value);
}

BarDrawing::BarDrawing(const CScaleBarBase& bar, Gdiplus::Graphics* graphics,
                       const Gdiplus::Rect& rect, double scale, DivisionValue value)
    : mainCount(bar.GetMainDivCount()),
      subCount(bar.GetSubDivCount()),
      height(rect.Height),
      tickTop(rect.Y + 2 * height / 3),
      bottom(rect.Y + height),
      firstX(rect.X + height / 8),
      fullLength(bar.m_paper2ScreenScale),
      m_bar(&bar),
      m_graphics(graphics),
      m_rect(rect),
      m_scale(scale),
      m_value(value) {
    if (bar.GetUnitPos() == UnitPosBefore) {
        firstX -= Truncate(static_cast<double>(height) * -0.8);
    }
    const double division = value.factor * fullLength;
    step = Truncate(division);
    subStep = division / static_cast<double>(subCount + 1);
}

Gdiplus::Pen BarDrawing::MakePen() const {
    return Gdiplus::Pen(m_bar->GetFrontColor(), static_cast<float>(m_scale));
}

Gdiplus::SolidBrush BarDrawing::MakeBrush() const {
    return Gdiplus::SolidBrush(m_bar->GetFrontColor());
}

Gdiplus::Font BarDrawing::MakeLabelFont() const {
    const Length emSize = height / 4;
    return Gdiplus::Font(&m_bar->m_resources.fontFamily, static_cast<float>(emSize),
                         Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
}

void BarDrawing::DrawLine(const Gdiplus::Pen& pen, BarPoint from, BarPoint to) const {
    m_graphics->DrawLine(&pen, ToDevice(from.x), ToDevice(from.y), ToDevice(to.x),
                         ToDevice(to.y));
}

void BarDrawing::DrawLabel(const Gdiplus::Font& font, Length index, Length x) const {
    const double value =
        static_cast<double>(index) * m_bar->m_paper2DataScale * m_value.factor;
    const double left = static_cast<double>(x) - static_cast<double>(height) * 0.125;
    const Gdiplus::SolidBrush brush = MakeBrush();
    WriteText(m_graphics, CommonFun::double2wstring(value, m_value.decimals), font,
              Gdiplus::PointF(static_cast<float>(left), static_cast<float>(m_rect.Y)),
              brush);
}

void BarDrawing::DrawUnitName(BarPoint end, Length rise) const {
    m_bar->DrawUintsName(m_graphics, UnitNameOrigin(end, rise), m_scale);
}

Gdiplus::PointF BarDrawing::UnitNameOrigin(BarPoint end, Length rise) const {
    const Length right = end.x + height / 10;
    const auto top = static_cast<float>(end.y - rise);
    switch (m_bar->GetUnitPos()) {
        case UnitPosAfter:
            return {static_cast<float>(right), top};
        case UnitPosBefore:
            return {static_cast<float>(m_rect.X), top};
    }
    return {0.0f, 0.0f};
}

}  // namespace map_surround
