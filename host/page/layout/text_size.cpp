#include "page/layout/text_size.h"

#include <cstdio>
#include <string_view>

#include "map_surround/map_surround.h"
#include "page/catalogue.h"
#include "page/element_of.h"
#include "page/placed_frame.h"

namespace host {
namespace {

struct Letters {
    std::string_view style;
    double em;
};

constexpr Letters kLetterSizes[] = {
    {"one", 4.0 / 15.0}, {"two", 2.0 / 15.0}, {"four", 1.0 / 5.0}, {"eight", 1.0 / 10.0}};

/// The em size of a legend's texts is the measured height of their ink, and grows with
/// the legend.
double LegendEm(const CMapLegend& legend, bool hasSources) {
    CMapLegend natural(legend);
    natural.SetSizeAspect(1.0f);
    natural.ResetAspectRatio();
    if (natural.GetSize() <= 0) {
        return 0.0;
    }
    const double row =
        hasSources ? InkHeight(L"Band_1", legend.GetTitle(), legend.GetFileNameSize(),
                               legend.GetFileNameStyle())
                   : InkHeight(legend.GetTitleValue().c_str(), legend.GetTitle(),
                               legend.GetTitleSize(), legend.GetTitleStyle());
    return row * legend.GetSize() / natural.GetSize();
}

/// Page units; 0 for no text.
double ItemEm(const PageItem& item) {
    if (const auto* const title = ElementOf<CMapTitle>(item)) {
        return title->GetFontValue().empty() ? 0.0 : title->GetFontSize();
    }
    if (const auto* const bar = ElementOf<CScaleBarBase>(item)) {
        return bar->GetSize() * kBarNumbers;
    }
    if (const auto* const arrow = ElementOf<CNorthArrowBase>(item)) {
        return arrow->GetSize() * LettersOf(*arrow);
    }
    const auto* const legend = ElementOf<CMapLegend>(item);
    const auto* const frame = FrameAs<LegendFrame>(item);
    return legend == nullptr
               ? 0.0
               : LegendEm(*legend, frame != nullptr && !frame->Sources().empty());
}

}  // namespace

double InkHeight(const wchar_t* text, const std::wstring& family, double em, int style) {
    CMapTitle line;
    line.SetFontValue(text);
    line.SetFontStyle(family);
    line.SetFontSize(em);
    line.SetFontProcess(static_cast<FontProcess>(style));
    line.ResetAspectRatio();
    return line.GetSize();
}

std::string PointsText(double points) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f points", points);
    return text;
}

double LettersOf(const CNorthArrowBase& arrow) {
    const CatalogueEntry* const entry = FindEntry(arrow);
    for (const Letters& letters : kLetterSizes) {
        if (entry != nullptr && letters.style == entry->Style()) {
            return letters.em;
        }
    }
    return 0.0;
}

std::optional<double> SmallestText(const PageItem& item) {
    const double em = ItemEm(item);
    return em > 0.0 ? std::optional<double>(PointsFromUnits(em)) : std::nullopt;
}

}  // namespace host
