#include <utility>

#include "element/numbers.h"
#include "element/rotation.h"
#include "element/text_outline.h"
#include "map_surround/title.h"

using map_surround::Length;

namespace {

/// The share of a text's width to the left of the point where it is written.
double PartLeftOf(Gdiplus::StringAlignment alignment) {
    return alignment == Gdiplus::StringAlignmentCenter ? 0.5 : 1.0;
}

}  // namespace

CMapTitle::CMapTitle() {
    SetItemType(SurroundMapTitle);
    SetAspectRatio(5.0f);
}

CMapTitle& CMapTitle::operator=(const CMapTitle& other) {
    CMapTitle copy(other);
    return *this = std::move(copy);
}

void CMapTitle::ResetAspectRatio() {
    const Gdiplus::FontFamily family(m_fontStyle.c_str());
    const Gdiplus::Font font(&family, static_cast<float>(m_fontSize), m_fontProcess,
                             Gdiplus::UnitPixel);
    Gdiplus::StringFormat format(0, 0);
    format.SetAlignment(m_lineAlignment);
    Gdiplus::GraphicsPath outline(Gdiplus::FillModeAlternate);
    m_textBounds =
        map_surround::MeasureOutline(outline, m_fontValue, family, font, format);

    const double centreX =
        static_cast<double>(m_textBounds.Width + 2 * Length{m_textBounds.X}) * 0.5;
    const double centreY =
        static_cast<double>(m_textBounds.Height + 2 * Length{m_textBounds.Y}) * 0.5;
    Gdiplus::Matrix turn;
    map_surround::TurnAbout(turn, static_cast<float>(centreX),
                            static_cast<float>(centreY), GetAngle());

    Gdiplus::GraphicsPath box(Gdiplus::FillModeAlternate);
    box.AddRectangle(m_textBounds);
    box.Transform(&turn);
    Gdiplus::Rect turnedBounds;
    box.GetBounds(&turnedBounds, nullptr, nullptr);

    SetSize(turnedBounds.Height);
    SetAspectRatio(static_cast<float>(turnedBounds.Width) /
                   static_cast<float>(turnedBounds.Height));
}

void CMapTitle::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (m_fontValue.empty() || graphics == nullptr) {
        return;
    }
    const double left = centre.x - m_textBounds.Width * scale * 0.5;
    const double top = centre.y - m_textBounds.Height * scale * 0.5;

    const Gdiplus::FontFamily family(m_fontStyle.c_str());
    const double emSize = static_cast<float>(m_fontSize) * scale;
    const Gdiplus::Font font(&family, static_cast<float>(emSize), m_fontProcess,
                             Gdiplus::UnitPixel);

    map_surround::TurnAbout(*graphics, static_cast<float>(centre.x),
                            static_cast<float>(centre.y), GetAngle());
    const Gdiplus::SolidBrush brush(GetFrontColor());
    if (m_lineAlignment == Gdiplus::StringAlignmentNear) {
        map_surround::WriteText(
            graphics, m_fontValue, font,
            Gdiplus::PointF(static_cast<float>(left), static_cast<float>(top)), brush);
    } else {
        Gdiplus::StringFormat format(0, 0);
        format.SetAlignment(m_lineAlignment);
        const double anchor =
            left + m_textBounds.Width * scale * PartLeftOf(m_lineAlignment);
        graphics->DrawString(
            m_fontValue.c_str(), map_surround::TextLength(m_fontValue), &font,
            Gdiplus::PointF(static_cast<float>(anchor), static_cast<float>(top)), &format,
            &brush);
    }
    graphics->ResetTransform();
}
