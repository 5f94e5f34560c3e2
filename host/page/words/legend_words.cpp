#include "page/words/legend_words.h"

#include <cstddef>

#include "page/words/colour_words.h"
#include "page/words/phrase.h"

namespace host {
namespace {

constexpr Gdiplus::ARGB kBandColours[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
constexpr const wchar_t* kBetweenRows = L"; ";

/// Rows, each a label and its colour.
class Rows {
public:
    explicit Rows(const SpokenWords& words) : m_words(words) {}

    void Add(const std::wstring& label, Gdiplus::ARGB colour) {
        m_text += (m_text.empty() ? L"" : kBetweenRows) + label +
                  (label.empty() ? L"" : m_words.separator) +
                  ColourWords(colour, m_words);
    }
    const std::wstring& Text() const { return m_text; }

private:
    const SpokenWords& m_words;
    std::wstring m_text;
};

void AddBands(const CMapLegend& legend, CRasterSource& raster, Rows& rows) {
    const int bands[] = {raster.GetRedBandNum(), raster.GetGreenBandNum(),
                         raster.GetBlueBandNum()};
    for (std::size_t i = 0; i < std::size(bands); ++i) {
        rows.Add(legend.GetBandCaption() + std::to_wstring(std::int64_t{bands[i]} + 1),
                 kBandColours[i]);
    }
}

void AddRamp(const CMapLegend& legend, const ExplainedRaster& explained, Rows& rows) {
    const std::vector<Gdiplus::Color>& ramp = explained.ramp;
    constexpr int kDigits = 6;
    CRasterBand* const band = explained.raster->GetRasterBand(0);
    double lowest = 0.0;
    double highest = 0.0;
    if (band != nullptr && band->ComputeMinMax(&lowest, &highest, true)) {
        rows.Add(legend.GetHighCaption() + DigitsText(highest, kDigits),
                 ramp.empty() ? 0xFFFFFFFF : ramp.front().GetValue());
        rows.Add(legend.GetLowCaption() + DigitsText(lowest, kDigits),
                 ramp.empty() ? 0xFF000000 : ramp.back().GetValue());
    }
}

void AddClasses(CRasterSource& raster, Rows& rows) {
    CClassifyDisplayTable* const table = raster.GetClassifyDisplayTable();
    const int count = table == nullptr ? 0 : table->GetClassesCount();
    for (int i = 0; i < count; ++i) {
        if (CClassifyDisplayItem* const item = table->GetClassifyItem(i)) {
            BYTE red = 0;
            BYTE green = 0;
            BYTE blue = 0;
            BYTE fourth = 0;
            item->GetColor(red, green, blue, fourth);
            rows.Add(item->GetLable(), Gdiplus::Color(red, green, blue).GetValue());
        }
    }
}

std::wstring RowsOf(const CMapLegend& legend, const ExplainedRaster& explained,
                    const SpokenWords& words) {
    CRasterSource& raster = *explained.raster;
    Rows rows(words);
    switch (explained.ramp.empty() ? raster.GetDisplayType() : DisplayGray) {
        case DisplayRGB:
            AddBands(legend, raster, rows);
            break;
        case DisplayGray:
            AddRamp(legend, explained, rows);
            break;
        case DisplayClassified:
            AddClasses(raster, rows);
            break;
    }
    return rows.Text();
}

}  // namespace

std::vector<ExplainedRaster> ExplainedBy(const CMapLegend& legend,
                                         const std::vector<CGISDataSource*>& sources) {
    std::vector<ExplainedRaster> explained;
    const std::vector<LegendSource> shown = legend.GetShownSources();
    for (std::size_t i = 0; i < sources.size(); ++i) {
        auto* const raster = dynamic_cast<CRasterSource*>(sources[i]);
        const bool isHidden = i < shown.size() && !shown[i].isShown;
        if (!isHidden && raster != nullptr && raster->IsAvailable()) {
            const LegendSource source = i < shown.size() ? shown[i] : LegendSource();
            explained.push_back(
                {raster, source.name.empty() ? raster->GetFileName() : source.name,
                 source.ramp});
        }
    }
    return explained;
}

std::wstring LegendWords(const LegendFrame& frame, const CMapLegend& legend,
                         const SpokenWords& words) {
    constexpr const wchar_t* kTold = L": ";
    std::wstring told;
    for (const ExplainedRaster& explained : ExplainedBy(legend, frame.Sources())) {
        const std::wstring rows = RowsOf(legend, explained, words);
        told.append(told.empty() ? L"" : L". ")
            .append(legend.GetSourceCaption() + explained.name);
        told.append(rows.empty() ? L"" : kTold).append(rows);
    }
    const std::wstring title = legend.GetTitleValue();
    return title + (title.empty() || told.empty() ? L"" : kTold) + told;
}

}  // namespace host
