#include "page/element_drawing.h"

#include <cmath>
#include <string>

#include "map_surround/title.h"
#include "page/element_of.h"

namespace host {
namespace {

/// How one kind of element is drawn.
struct Finish {
    MapSurroundType kind;
    Gdiplus::SmoothingMode smoothing;
};

// Slanted edges need smoothing. Lines and boxes along the axes are sharper without it,
// and with it the thin strips of a legend's ramp would never reach their full colour.
constexpr Finish kFinishes[] = {
    {SurroundNorthArrow, Gdiplus::SmoothingModeAntiAlias},
    {SurroundScaleBar, Gdiplus::SmoothingModeDefault},
    {SurroundMapTitle, Gdiplus::SmoothingModeAntiAlias},
    {SurroundLegend, Gdiplus::SmoothingModeDefault},
    {SurroundPicture, Gdiplus::SmoothingModeAntiAlias},
};

Gdiplus::SmoothingMode SmoothingOf(MapSurroundType kind) {
    for (const Finish& finish : kFinishes) {
        if (finish.kind == kind) {
            return finish.smoothing;
        }
    }
    return Gdiplus::SmoothingModeAntiAlias;
}

/// The box around the ink of the unrotated title at a scale, from its layout point.
Gdiplus::Rect OutlineOf(const CMapTitle& title, double scale) {
    const std::wstring text = title.GetFontValue();
    const Gdiplus::FontFamily family(title.GetFontStyle().c_str());
    Gdiplus::StringFormat format(0, 0);
    format.SetAlignment(title.GetLineAlignment());
    Gdiplus::GraphicsPath outline(Gdiplus::FillModeAlternate);
    outline.AddString(text.c_str(), -1, &family, title.GetFontProcess(),
                      static_cast<float>(title.GetFontSize() * scale),
                      Gdiplus::PointF(0.0f, 0.0f), &format);
    Gdiplus::Rect bounds;
    outline.GetBounds(&bounds, nullptr, nullptr);
    return bounds;
}

/// A title is drawn below and to the right of its layout point, by the ascent and the
/// side bearing of its font. This is the centre that brings the middle of its ink to the
/// given one.
CPoint CentreForInk(const CMapTitle& title, CPoint centre, double scale) {
    constexpr double kRadians = 3.14159265358979323846 / 180.0;
    const Gdiplus::Rect measured = OutlineOf(title, 1.0);
    const Gdiplus::Rect drawn = OutlineOf(title, scale);
    // Centred and right-aligned lines are written from a point further right.
    constexpr double kFromMiddle[] = {-0.5, 0.0, 0.5};
    const int alignment = std::clamp<int>(title.GetLineAlignment(), 0, 2);
    const double right =
        drawn.X + drawn.Width * 0.5 + measured.Width * scale * kFromMiddle[alignment];
    const double down = drawn.Y + drawn.Height * 0.5 - measured.Height * scale * 0.5;
    const double cosine = std::cos(double{title.GetAngle()} * kRadians);
    const double sine = std::sin(double{title.GetAngle()} * kRadians);
    return {centre.x - static_cast<int>(std::lround(right * cosine - down * sine)),
            centre.y - static_cast<int>(std::lround(right * sine + down * cosine))};
}

}  // namespace

void PrepareDecoration(Gdiplus::Graphics& graphics) {
    graphics.ResetTransform();
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeDefault);
}

void DrawElement(Gdiplus::Graphics& graphics, CSurroundFrame& frame, CPoint centre,
                 double scale) {
    const CMapSurround* const element = frame.GetMapSurround();
    if (element == nullptr) {
        return;
    }
    graphics.ResetTransform();
    graphics.SetSmoothingMode(SmoothingOf(element->GetItemType()));
    graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    const auto* const title = ElementOf<CMapTitle>(frame);
    frame.Draw(&graphics, title == nullptr ? centre : CentreForInk(*title, centre, scale),
               scale);
}

}  // namespace host
