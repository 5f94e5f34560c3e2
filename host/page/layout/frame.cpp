#include <algorithm>

#include "page/layout/steps.h"

namespace host {

Measures::Measures(const PaperSize& paper)
    : module(std::min(paper.width, paper.height) / 40.0),
      neatLine(1.0 * module),
      margin(2.4 * module),
      gap(1.2 * module),
      panel(8.0 * module),
      textPanel(11.5 * module),
      picture(8.0 * module),
      shadow(0.2 * module),
      borderWidth(0.04 * module) {}

std::unique_ptr<CSurroundFrame> PlaceNeatLine(const PaperSize& paper,
                                              const Measures& measures) {
    const Box sheet = {0.0, 0.0, paper.width, paper.height};
    auto frame = std::make_unique<PlacedFrame>();
    frame->SetName("neat line");
    frame->SetExtent(BoundingBoxOf(Inset(sheet, measures.neatLine)));
    frame->DrawBorder = true;
    frame->BorderColor = Gdiplus::Color(kLineColor);
    frame->BorderWidth = static_cast<float>(2.0 * measures.borderWidth);
    return frame;
}

void Decorate(CFrameBase& frame, const Box& extent, const FrameStyle& style,
              const Measures& measures) {
    frame.SetExtent(BoundingBoxOf(extent));
    frame.DrawBorder = style.border.has_value();
    frame.BorderColor = style.border.value_or(Gdiplus::Color(0));
    frame.BorderWidth = static_cast<float>(measures.borderWidth);
    frame.DrawShadow = style.shadow.has_value();
    frame.ShadowColor = style.shadow.value_or(Gdiplus::Color(0));
    // Both ratios come to the same distance whatever the frame's proportions.
    frame.ShadowRatioX = static_cast<float>(measures.shadow / extent.Width());
    frame.ShadowRatioY = static_cast<float>(measures.shadow / extent.Height());
    frame.DrawFill = style.background.has_value();
    frame.FillColor = style.background.value_or(Gdiplus::Color(0));
}

void FrameInk(PlacedFrame& frame, const InkBox& ink, const Box& room, At at,
              const FrameStyle& style, const Measures& measures) {
    // Frames of nearly the room's width take all of it, so that they line up.
    constexpr double kNearly = 0.8;
    const double space = 0.6 * measures.module;
    const double inkWidth = std::min(room.Width(), ink.Width() + 2.0 * space);
    const double width = inkWidth > kNearly * room.Width() ? room.Width() : inkWidth;
    const double height = std::min(room.Height(), ink.Height() + 2.0 * space);
    const double bottom = at == At::Top ? room.top - height : room.bottom;
    const Box extent = {room.left, bottom, room.left + width, bottom + height};
    Decorate(frame, extent, style, measures);
    // The ink stands at the left of its frame, in the middle of its height.
    frame.SetElementOffset(space + ink.left - width / 2.0, (ink.down - ink.up) / 2.0);
}

}  // namespace host
