#include <algorithm>
#include <cmath>

#include "page/layout/steps.h"
#include "page/layout/type_scale.h"

namespace host {
namespace {

// For an A4 sheet; one twice as wide has furniture 1.6 times as large, since it is read
// from a little further away.
constexpr double kSheet = UnitsFromMillimetres(210.0);
constexpr double kModule = UnitsFromMillimetres(5.0);
constexpr double kBodyPoints = 8.0;  // points
constexpr double kTitlePoints = 18.0;
constexpr double kGrowth = 0.7;
constexpr double kTitleGrowth = 0.85;  // a title is read from further away

double GrowthFor(const PaperSize& paper, double growth = kGrowth) {
    return std::pow(std::min(paper.width, paper.height) / kSheet, growth);
}

}  // namespace

Measures::Measures(const PaperSize& paper)
    : module(kModule * GrowthFor(paper)),
      neatLine(1.0 * module),
      margin(2.0 * module),
      gap(1.0 * module),
      column(5.5 * module),
      space(0.6 * module),
      shadow(0.2 * module),
      borderWidth(0.04 * module),
      body(OnTypeScale(kBodyPoints * GrowthFor(paper))),
      title(OnTypeScale(kTitlePoints * GrowthFor(paper, kTitleGrowth))) {}

std::unique_ptr<CSurroundFrame> PlaceNeatLine(const Box& extent,
                                              const Measures& measures) {
    auto frame = std::make_unique<PlacedFrame>();
    frame->SetName("neat line");
    frame->SetExtent(BoundingBoxOf(extent));
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
    // Both ratios give the same distance, whatever the frame's proportions.
    frame.ShadowRatioX = static_cast<float>(measures.shadow / extent.Width());
    frame.ShadowRatioY = static_cast<float>(measures.shadow / extent.Height());
    frame.DrawFill = style.background.has_value();
    frame.FillColor = style.background.value_or(Gdiplus::Color(0));
}

void FrameInk(PlacedFrame& frame, const InkBox& ink, const Box& cell, Stands stands,
              const FrameStyle& style, const Measures& measures) {
    Decorate(frame, cell, style, measures);
    const double x = stands == Stands::AtTopLeft
                         ? measures.space + ink.left - cell.Width() / 2.0
                         : (ink.left - ink.right) / 2.0;
    const double y = stands == Stands::AtTopLeft
                         ? cell.Height() / 2.0 - measures.space - ink.up
                         : (ink.down - ink.up) / 2.0;
    frame.SetElementOffset(x, y);
}

void ShrinkToInk(PlacedFrame& frame, const Measures& measures) {
    frame.SetElementOffset(0.0, 0.0);
    const InkBox ink = MeasureInk(frame);
    const Box before = BoxOf(frame.GetExtent());
    const double width = ink.Width() + 2.0 * measures.space;
    const double height = ink.Height() + 2.0 * measures.space;
    frame.SetExtent(
        {before.left, before.bottom, before.left + width, before.bottom + height});
    frame.ShadowRatioX = static_cast<float>(measures.shadow / width);
    frame.ShadowRatioY = static_cast<float>(measures.shadow / height);
    frame.SetElementOffset((ink.left - ink.right) / 2.0, (ink.down - ink.up) / 2.0);
}

}  // namespace host
