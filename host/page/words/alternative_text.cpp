#include "page/words/alternative_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "map_surround/north_arrow.h"
#include "map_surround/picture.h"
#include "page/element_of.h"
#include "page/layout/fit_to_map.h"
#include "page/layout/map_on_page.h"
#include "page/map/map_geometry.h"
#include "page/numeric_scale.h"
#include "page/words/legend_words.h"
#include "page/words/phrase.h"
#include "system/utf8.h"

namespace host {
namespace {

std::wstring Wide(const std::string& utf8) {
    std::wstring wide;
    Widen(utf8, wide);
    return wide;
}

/// The name that the user gave an item; empty where it has its usual one.
std::wstring OwnName(const std::string& name, const char* usual) {
    return name == usual ? L"" : Wide(name);
}

std::wstring PlaceWords(const MapPlace& place, int decimals, const SpokenWords& words) {
    const auto side = [decimals](double degrees, const wchar_t* positive,
                                 const wchar_t* negative) {
        return Filled(degrees < 0.0 ? negative : positive,
                      {RoundedText(std::fabs(degrees), decimals)});
    };
    return side(place.longitude, words.east, words.west) + L" " +
           side(place.latitude, words.north, words.south);
}

/// "from 34.95° W 8.08° S to 34.8° W 7.95° S", with as many decimals as distinguish its
/// corners; empty where a corner is not on Earth.
std::wstring CornerWords(const MapLayers& map, const SpokenWords& words) {
    const Box& extent = map.Extent();
    const auto from = MapGround::PlaceAt(map.Projection(), extent.left, extent.bottom);
    const auto to = MapGround::PlaceAt(map.Projection(), extent.right, extent.top);
    if (!from || !to) {
        return L"";
    }
    const double span = std::max(std::fabs(to->longitude - from->longitude),
                                 std::fabs(to->latitude - from->latitude));
    if (!(span > 0.0)) {
        return L"";
    }
    const int decimals =
        std::clamp(1 - static_cast<int>(std::floor(std::log10(span))), 0, 7);
    return Filled(words.fromTo,
                  {PlaceWords(*from, decimals, words), PlaceWords(*to, decimals, words)});
}

/// The scale of a map with coordinates; for the page's first, the one that the page gives
/// in figures.
std::optional<double> ScaleIn(const Page& page, const MapFrame& map,
                              const MapLayers& layers) {
    const auto first =
        std::find_if(page.Items().begin(), page.Items().end(), [](const PageItem& item) {
            const std::shared_ptr<MapLayers> shown = LayersOf(item);
            return shown != nullptr && shown->IsPlaced() &&
                   FrameOf(item).GetExtent().GetWidth() > 0.0;
        });
    if (first != page.Items().end() && std::get_if<MapFrame>(&*first) == &map) {
        return DenominatorOn(page);
    }
    const double width = map.frame.GetExtent().GetWidth();
    return width > 0.0 ? DenominatorOf({layers.Projection(), layers.Extent(), width},
                                       map.scale, 0.0)
                       : std::nullopt;
}

std::wstring MapWords(const Page& page, const PageItem& item, const SpokenWords& words) {
    const auto& map = std::get<MapFrame>(item);
    const std::shared_ptr<MapLayers> layers = LayersOf(item);
    std::wstring text = words.map;
    const auto add = [&](const std::wstring& part) {
        text += part.empty() ? L"" : words.separator + part;
    };
    add(OwnName(map.name, "map"));
    if (layers != nullptr && layers->IsPlaced()) {
        const std::optional<double> scale = ScaleIn(page, map, *layers);
        add(scale ? NumericScale::TextOf(*scale) : L"");
        add(CornerWords(*layers, words));
    }
    return text;
}

/// The value at a bar's end: a bar that is not exact cuts its divisions to one digit.
double LengthOf(const ScaleBarFrame& frame, const CScaleBarBase& bar) {
    constexpr double kNearly = 1.0e-9;
    const double value = frame.DivisionValue();
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    return std::floor(value / power + kNearly) * power * bar.GetMainDivCount();
}

std::wstring BarWords(const ScaleBarFrame& frame, const CScaleBarBase& bar,
                      const SpokenWords& words) {
    constexpr int kDigits = 9;
    const double length = LengthOf(frame, bar);
    if (!std::isnormal(length) || length < 0.0) {
        return L"";  // nothing is drawn
    }
    const int count = bar.GetMainDivCount();
    return Filled(
        count < 2 ? words.bar : words.dividedBar,
        {DigitsText(length, kDigits), bar.GetUnitsName(), std::to_wstring(count)});
}

std::wstring ArrowWords(const CNorthArrowBase& arrow, const SpokenWords& words) {
    // Clockwise, from half a turn to the left to half a turn to the right.
    const double angle = std::remainder(double{arrow.GetAngle()}, 360.0);
    const std::wstring degrees = RoundedText(std::fabs(angle), 1);
    if (degrees == L"0") {
        return words.northIsUp;
    }
    return Filled(angle < 0.0 ? words.northIsLeft : words.northIsRight, {degrees});
}

std::wstring PictureWords(const PlacedFrame& frame, const CDrawPicture& picture,
                          const SpokenWords& words) {
    std::wstring name = OwnName(frame.Name(), "picture");
    if (name.empty()) {
        name = picture.GetPath();
        name.erase(0, name.find_last_of(L'/') + 1);
        name.erase(std::min(name.size(), name.find_last_of(L'.')));
    }
    return words.picture + (name.empty() ? L"" : words.separator + name);
}

}  // namespace

std::wstring AlternativeText(const Page& page, const PageItem& item,
                             const Language& language) {
    const SpokenWords& words = language.spoken;
    if (const auto* const map = std::get_if<MapFrame>(&item)) {
        return map->picture == nullptr ? L"" : MapWords(page, item, words);
    }
    const auto* const barFrame = FrameAs<ScaleBarFrame>(item);
    if (const auto* const bar = ElementOf<CScaleBarBase>(item);
        bar != nullptr && barFrame != nullptr) {
        return BarWords(*barFrame, *bar, words);
    }
    if (const auto* const arrow = ElementOf<CNorthArrowBase>(item)) {
        return ArrowWords(*arrow, words);
    }
    const auto* const legendFrame = FrameAs<LegendFrame>(item);
    if (const auto* const legend = ElementOf<CMapLegend>(item);
        legend != nullptr && legendFrame != nullptr) {
        return LegendWords(*legendFrame, *legend, words);
    }
    const auto* const placed = FrameAs<PlacedFrame>(item);
    if (const auto* const picture = ElementOf<CDrawPicture>(item);
        picture != nullptr && placed != nullptr) {
        return PictureWords(*placed, *picture, words);
    }
    return L"";
}

}  // namespace host
