#include <algorithm>
#include <cmath>

#include "page/layout/legend_draft.h"
#include "page/layout/steps.h"
#include "page/layout/text_size.h"
#include "page/layout/type_scale.h"

namespace host {
namespace {

constexpr double kTitleOfBody = 1.25;
constexpr int kLinesOfName = 4;
constexpr double kBetweenColumns = 1.0;  // in em

/// The height of a text's ink, in em.
double InkOfEm(const wchar_t* text, const std::wstring& family, int style) {
    constexpr double kEm = 1000.0;
    const double height = InkHeight(text, family, kEm, style) / kEm;
    return height > 0.0 ? height : 1.0;
}

}  // namespace

void DressLegend(CMapLegend& legend, const PageDesign& design) {
    SetCaptions(legend, *design.language);
    legend.SetTitleValue(design.legend.title.value_or(design.language->legend));
    legend.SetTitle(design.legend.family);
    legend.SetFileName(design.legend.family);
    legend.SetAlignedLabels(true);
    legend.SetGap(static_cast<float>(LegendSetting().gap));
}

LegendDraft::LegendDraft(const PageDesign& design, const MapOnPage& map) {
    if (!design.legend.shown || map.sources.empty()) {
        return;
    }
    m_frame = std::make_unique<LegendFrame>(std::make_unique<CMapLegend>());
    m_frame->SetJoinsTiles(true);
    m_frame->SetExplainsRamps(true);
    m_frame->SetSources(map.sources);
    m_frame->SetName("legend");
    DressLegend(Legend(), design);
    m_rowOfEm = InkOfEm(L"Band_1", design.legend.family, Legend().GetFileNameStyle());
    m_titleOfEm = InkOfEm(Legend().GetTitleValue().c_str(), design.legend.family,
                          Legend().GetTitleStyle());
}

InkBox LegendDraft::Set(const LegendSetting& setting, double width) {
    CMapLegend& legend = Legend();
    // The em in which a legend draws its texts is the measured height of their ink, which
    // is a whole number of page units.
    const double em = UnitsFromPoints(setting.points);
    const double titleEm = UnitsFromPoints(OnTypeScale(kTitleOfBody * setting.points));
    const double size = em / m_rowOfEm;
    const double row = std::max(
        1.0, InkHeight(L"Band_1", legend.GetTitle(), size, legend.GetFileNameStyle()));
    const double drawn = em / row;  // of what was measured
    legend.SetColumns(setting.columns);
    legend.SetGap(static_cast<float>(setting.gap));
    legend.SetFileNameSize(static_cast<float>(size));
    legend.SetTitleSize(static_cast<float>(titleEm / m_titleOfEm / drawn));
    const double most = width / setting.columns - kBetweenColumns * em;
    legend.SetMostWidth(width > 0.0 ? static_cast<float>(std::max(1.0, most / drawn))
                                    : 0.0f);
    legend.SetMostLines(width > 0.0 ? kLinesOfName : 1);
    legend.ResetAspectRatio();
    legend.SetSize(static_cast<int>(std::ceil(legend.GetSize() * drawn)));
    return MeasureInk(legend);
}

const InkBox& LegendDraft::Natural(const LegendSetting& setting) {
    const auto key = std::make_tuple(setting.columns, setting.points, setting.gap);
    const auto [found, isNew] = m_natural.try_emplace(key);
    if (isNew) {
        found->second = Set(setting, 0.0);
    }
    return found->second;
}

}  // namespace host
