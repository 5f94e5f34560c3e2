#include "element/text_outline.h"
#include "map_surround/scale_bar.h"
#include "scale_bar/division_value.h"

CScaleBarBase::CScaleBarBase() {
    SetSize(40);
    SetItemType(SurroundScaleBar);
}

CScaleBarBase::CScaleBarBase(ScaleBarType type) : CScaleBarBase() {
    m_scaleBarType = type;
    m_styleFlag = true;
}

CScaleBarBase::CScaleBarBase(const CScaleBarBase& other) = default;
CScaleBarBase::~CScaleBarBase() = default;

CScaleBarBase& CScaleBarBase::operator=(const CScaleBarBase& other) {
    m_unitsName = other.m_unitsName;  // first: the only step that can fail
    CMapSurround::operator=(other);
    m_unitPos = other.m_unitPos;
    m_paper2DataScale = other.m_paper2DataScale;
    m_paper2ScreenScale = other.m_paper2ScreenScale;
    m_scaleBarType = other.m_scaleBarType;
    m_styleFlag = other.m_styleFlag;
    m_styleValue = other.m_styleValue;
    m_subDivCount = other.m_subDivCount;
    m_mainDivCount = other.m_mainDivCount;
    m_screen2PaperByOneScale = other.m_screen2PaperByOneScale;
    m_destUnitType = other.m_destUnitType;
    return *this;
}

void CScaleBarBase::ResetAspectRatio() {
    const auto value = map_surround::DivisionValueOf(m_paper2DataScale);
    if (!value) {
        return;
    }
    const auto size = static_cast<float>(GetSize());
    const auto mainCount = static_cast<float>(m_mainDivCount);

    double width =
        static_cast<double>(mainCount) * m_screen2PaperByOneScale * value->factor;
    width += static_cast<double>(size / 5.0f);
    width += static_cast<double>(size / 40.0f);
    width += static_cast<double>(size * 2.0f / 3.0f);
    width += static_cast<double>(size / 40.0f);
    SetAspectRatio(static_cast<float>(width) / size);
}

CSingleDivisionScaleBar::CSingleDivisionScaleBar() = default;

void CScaleBarBase::DrawUintsName(Gdiplus::Graphics* graphics, Gdiplus::PointF topLeft,
                                  double scale) const {
    const double emSize = GetSize() * scale / 3.0;
    const Gdiplus::Font font(&m_resources.fontFamily, static_cast<float>(emSize),
                             Gdiplus::FontStyleRegular, Gdiplus::UnitPixel);
    const Gdiplus::SolidBrush brush(GetFrontColor());
    map_surround::WriteText(graphics, m_unitsName, font, topLeft, brush);
}
