#include "page/numeric_scale.h"

#include <algorithm>
#include <optional>

#include "page/element_of.h"
#include "page/layout/added_scale.h"
#include "page/layout/fit_to_map.h"
#include "page/layout/page_remarks.h"
#include "page/layout/steps.h"

namespace host {
namespace {

constexpr const char* kLeftOut =
    "the numeric scale is left out: the map has no coordinate system that reaches its "
    "middle";

/// @param denominator as it is written
std::unique_ptr<PlacedFrame> FrameOfScale(double denominator, const Measures& measures) {
    auto text = std::make_unique<NumericScale>();
    text->SetFontSize(UnitsFromPoints(measures.body));
    text->SetFrontColor(Gdiplus::Color(kInkColor));
    text->SetDenominator(denominator);
    text->ResetAspectRatio();
    auto frame = std::make_unique<PlacedFrame>(std::move(text));
    frame->SetName("numeric scale");
    return frame;
}

FrameStyle StyleOf(const CFrameBase& frame) {
    FrameStyle style;
    style.border = frame.DrawBorder ? std::optional(frame.BorderColor) : std::nullopt;
    style.shadow = frame.DrawShadow ? std::optional(frame.ShadowColor) : std::nullopt;
    style.background = frame.DrawFill ? std::optional(frame.FillColor) : std::nullopt;
    return style;
}

enum class At { Top, Bottom };

/// A place for the scale: a room at whose top or bottom it stands.
struct ScalePlace {
    Box room;
    At at;
    FrameStyle style;
};

/// The box for a text's frame, at the left of a room.
Box AroundInk(const InkBox& ink, const ScalePlace& place, const Measures& measures) {
    const Box& room = place.room;
    const double width = std::min(room.Width(), ink.Width() + 2.0 * measures.space);
    const double height = std::min(room.Height(), ink.Height() + 2.0 * measures.space);
    const double bottom = place.at == At::Top ? room.top - height : room.bottom;
    return {room.left, bottom, room.left + width, bottom + height};
}

/// Beside the scale bar, the best first, then in the corners of the map.
std::vector<ScalePlace> ScalePlacesOn(const Page& page, const Measures& measures) {
    std::vector<ScalePlace> places;
    for (const PageItem& item : page.Items()) {
        if (ElementOf<CScaleBarBase>(item) != nullptr) {
            const Box bar = BoxOf(FrameOf(item).GetExtent());
            const FrameStyle style = StyleOf(FrameOf(item));
            const double right = std::max(
                bar.right, std::min(bar.left + 2.0 * measures.column, page.Width()));
            places.push_back({{bar.left, bar.top + measures.gap, right, page.Height()},
                              At::Bottom,
                              style});
            places.push_back(
                {{bar.left, 0.0, right, bar.bottom - measures.gap}, At::Top, style});
        }
    }
    for (const PageItem& item : page.Items()) {
        if (std::holds_alternative<MapFrame>(item)) {
            FrameStyle style;
            style.shadow = std::nullopt;
            const Box map = Inset(BoxOf(FrameOf(item).GetExtent()), measures.gap / 2.0);
            for (const At at : {At::Bottom, At::Top}) {
                places.push_back({map, at, style});
            }
        }
    }
    return places;
}

}  // namespace

std::unique_ptr<PlacedFrame> PlaceNumericScale(const PageDesign& design,
                                               const ShownMap& shown, double barLength,
                                               const Measures& measures, const Box& cell,
                                               std::vector<std::string>& remarks) {
    if (!design.scaleBar.numeric) {
        return nullptr;
    }
    const std::optional<double> scale =
        DenominatorOf(shown, design.map.scale.value_or(0.0), barLength);
    if (!scale) {
        remarks.emplace_back(kLeftOut);
        return nullptr;
    }
    auto frame = FrameOfScale(*scale, measures);
    const InkBox ink = MeasureInk(*frame);
    if (ink.IsEmpty()) {
        return nullptr;
    }
    FrameInk(*frame, ink, cell, Stands::InTheMiddle, design.frames, measures);
    return frame;
}

double NumericScaleHeight(const PageDesign& design, const MapOnPage& map,
                          const Measures& measures) {
    const bool isKnown =
        design.scaleBar.numeric &&
        DenominatorOf({map.projection, map.extent.value_or(Box()), measures.column},
                      design.map.scale.value_or(0.0), 0.0);
    constexpr double kAnyScale = 25000.0;
    return isKnown ? MeasureInk(*FrameOfScale(kAnyScale, measures)).Height() +
                         2.0 * measures.space
                   : 0.0;
}

std::vector<std::string> AddNumericScale(Page& page) {
    std::vector<PageItem>& items = page.Items();
    if (std::any_of(items.begin(), items.end(), [](const PageItem& item) {
            return ElementOf<NumericScale>(item) != nullptr;
        })) {
        return {};
    }
    const std::optional<double> scale = DenominatorOn(page);
    if (!scale) {
        return {kLeftOut};
    }
    const Measures measures({page.Width(), page.Height()});
    const std::vector<ScalePlace> places = ScalePlacesOn(page, measures);
    items.emplace_back(FrameOfScale(*scale, measures));
    auto& frame = *FrameAs<PlacedFrame>(items.back());
    const InkBox ink = MeasureInk(frame);
    const auto put = [&](const ScalePlace& place) {
        FrameInk(frame, ink, AroundInk(ink, place, measures), Stands::InTheMiddle,
                 place.style, measures);
        return RemarksOf(page).size();
    };
    // The first of those where it disturbs least.
    std::vector<std::size_t> disturbed;
    std::transform(places.begin(), places.end(), std::back_inserter(disturbed), put);
    const auto least = std::min_element(disturbed.begin(), disturbed.end());
    put(places[static_cast<std::size_t>(least - disturbed.begin())]);
    return {};
}

}  // namespace host
