#include <optional>
#include <string>

#include "element/numbers.h"
#include "legend/lettering.h"
#include "legend/proportions.h"
#include "legend/ramp_values.h"
#include "legend/source_queries.h"
#include "map_surround/legend.h"

using map_surround::Length;
using map_surround::Lettering;
using map_surround::Ruler;
using map_surround::ToDevice;
using map_surround::Truncate;

namespace legend = map_surround::legend;

namespace {

constexpr wchar_t kEntryFamily[] = L"Arial";

constexpr Gdiplus::ARGB kBlack = 0xFF000000;
constexpr Gdiplus::ARGB kRed = 0xFFFF0000;
constexpr Gdiplus::ARGB kGreen = 0xFF008000;
constexpr Gdiplus::ARGB kBlue = 0xFF0000FF;

/// From grey 254 to 1: the ramp leaves out white and black.
constexpr int kRampStrips = 254;

/// Cuts texts as the layout did, at the size in which that measured them.
class Cutter {
public:
    Cutter(float most, Ruler& ruler, const Gdiplus::FontFamily& titleFamily,
           const std::wstring& family, float emSize, Gdiplus::FontStyle style)
        : m_most(most),
          m_ruler(ruler),
          m_lettering(family, emSize, style),
          m_sample(
              ruler.Measure(legend::kSampleText, titleFamily, m_lettering.font).Width) {}

    std::wstring Name(const std::wstring& text) {
        return map_surround::Cut(text, m_most, m_ruler, m_lettering);
    }
    std::wstring Label(const std::wstring& text) {
        const Length from = legend::kClassLabelMeasuredAt * m_sample;
        return map_surround::Cut(text, m_most - static_cast<float>(from), m_ruler,
                                 m_lettering);
    }

private:
    float m_most;
    Ruler& m_ruler;
    Lettering m_lettering;
    Length m_sample;
};

/// A cursor moving down the legend, in pixels.
struct Column {
    Gdiplus::Graphics* graphics;
    Gdiplus::SolidBrush& brush;
    const Gdiplus::Font& entryFont;
    const std::wstring& bandCaption;
    const std::wstring& highCaption;
    const std::wstring& lowCaption;
    bool alignedLabels;
    Cutter* cutter;  // null where nothing is cut
    float left;
    float y;  // top of what is drawn next
    float rowHeight;
    float swatchHeight;
    float swatchWidth;
    float gap;

    void Fill(Gdiplus::Color color, float top, float height) {
        brush.SetColor(color);
        graphics->FillRectangle(&brush, left, top, swatchWidth, height);
    }
    /// In the brush's current colour.
    void Label(const std::wstring& text, float atSwatches, float top) {
        map_surround::WriteText(graphics, text, entryFont,
                                Gdiplus::PointF(left + atSwatches * swatchWidth, top),
                                brush);
    }

    float ValueLabelAt() const {
        return alignedLabels ? legend::kClassLabelAt : legend::kBandLabelAt;
    }
    float SwatchLabelY() const {
        return alignedLabels ? y - legend::kLabelAbove * rowHeight : y;
    }

    void DrawBands(CRasterSource& source);
    void DrawRamp(CRasterSource& source);
    void DrawClasses(CClassifyDisplayTable* table);
    void DrawBand(Gdiplus::Color color, int index);
};

void Column::DrawBand(Gdiplus::Color color, int index) {
    const int number = ToDevice(Length{index} + 1);
    Fill(color, y, swatchHeight);
    brush.SetColor(kBlack);
    Label(bandCaption + CommonFun::int2wstring(number), ValueLabelAt(), SwatchLabelY());
    y += swatchHeight + gap;
}

void Column::DrawBands(CRasterSource& source) {
    DrawBand(kRed, source.GetRedBandNum());
    DrawBand(kGreen, source.GetGreenBandNum());
    DrawBand(kBlue, source.GetBlueBandNum());
}

void Column::DrawRamp(CRasterSource& source) {
    const float rampHeight = legend::kRampSwatches * swatchHeight;
    const float stripHeight = (3 * swatchHeight + 2 * rowHeight) / kRampStrips;

    brush.SetColor(kBlack);
    double lowest = 0.0;
    double highest = 0.0;
    CRasterBand* const band = source.GetRasterBand(0);
    if (band != nullptr) {
        band->ComputeMinMax(&lowest, &highest, true);
    }
    const map_surround::RampValues values =
        alignedLabels ? map_surround::RoundedValues(lowest, highest)
                      : map_surround::WholeValues(lowest, highest);
    Label(highCaption + values.highest, ValueLabelAt(),
          y + (alignedLabels ? -legend::kHighAbove : 0.5f) * rowHeight);

    // The strips overlap, and the first starts one step down.
    for (int k = 1; k <= kRampStrips; ++k) {
        const auto grey = static_cast<unsigned char>(255 - k);
        Fill(Gdiplus::Color(255, grey, grey, grey),
             y + rampHeight * static_cast<float>(k) / kRampStrips, stripHeight);
    }

    y += rampHeight;
    if (alignedLabels) {
        brush.SetColor(kBlack);
        Label(lowCaption + values.lowest, ValueLabelAt(),
              y - legend::kLowAbove * rowHeight);
    } else {
        // Just above the high value, in the colour of the last strip: both are intended.
        Label(lowCaption + values.lowest, ValueLabelAt(), y - 2 * rowHeight);
    }
    y += gap;
}

void Column::DrawClasses(CClassifyDisplayTable* table) {
    for (int i = 0; i < map_surround::ClassesCount(table); ++i) {
        CClassifyDisplayItem* const item = table->GetClassifyItem(i);
        if (item != nullptr) {
            unsigned char red = 0;
            unsigned char green = 0;
            unsigned char blue = 0;
            unsigned char ignored = 0;
            item->GetColor(red, green, blue, ignored);
            Fill(Gdiplus::Color(255, red, green, blue), y, swatchHeight);
            brush.SetColor(kBlack);
            std::wstring label = item->GetLable();
            if (cutter != nullptr) {
                label = cutter->Label(label);
            }
            Label(label, legend::kClassLabelAt, SwatchLabelY());
        }
        y += swatchHeight;
        const bool last = i + 1 == map_surround::ClassesCount(table);
        if (!last) {
            y += gap;
        }
    }
    y += gap;
}

}  // namespace

void CMapLegend::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (graphics == nullptr) {
        return;
    }
    const int heightInPixels = Truncate(GetSize() * scale);
    const auto height = static_cast<float>(heightInPixels);
    const float width = height * GetAspectRatio();
    const int halfHeight = Truncate(heightInPixels * 0.5 + 0.5);
    const int halfWidth = Truncate(static_cast<double>(width) * 0.5 + 0.5);
    const auto left = static_cast<float>(ToDevice(Length{centre.x} - halfWidth));
    const auto top = static_cast<float>(ToDevice(Length{centre.y} - halfHeight));
    const float rowHeight = height * m_rowHeightRatio;
    const float gap = height * m_gapRatio;

    const Lettering title(m_titleFamily, height * m_titleHeightRatio, m_titleStyle);
    Gdiplus::SolidBrush brush(m_titleColor);
    map_surround::WriteText(graphics, m_titleText, title.font, Gdiplus::PointF(left, top),
                            brush);

    const Lettering entry(kEntryFamily, rowHeight, m_fileNameStyle);
    const Lettering fileName(m_fileNameFamily, rowHeight, m_fileNameStyle);
    Ruler ruler;
    // The title's ink in this font, which is smaller than the one the layout measured.
    const int titleHeight = ruler.Measure(m_titleText, title).Height;
    std::optional<Cutter> cutter;
    if (m_mostWidth > 0.0f) {
        cutter.emplace(m_mostWidth, ruler, title.family, m_fileNameFamily, m_fileNameSize,
                       m_fileNameStyle);
    }
    Column column{graphics,
                  brush,
                  entry.font,
                  m_bandCaption,
                  m_highCaption,
                  m_lowCaption,
                  m_alignedLabels,
                  cutter ? &*cutter : nullptr,
                  left,
                  top + legend::kTitleGaps * gap,
                  rowHeight,
                  height * m_swatchHeightRatio,
                  height * m_swatchWidthRatio,
                  gap};
    column.y += static_cast<float>(titleHeight);

    // By index, since a source may replace the legend's list while it is queried.
    for (std::size_t i = 0; i < m_dataSources.size(); ++i) {
        CRasterSource* const source =
            map_surround::TakingPart(m_dataSources, m_shownSources, i);
        if (source == nullptr) {
            continue;
        }
        brush.SetColor(m_fileColor);
        std::wstring name =
            m_sourceCaption + map_surround::NameOf(*source, m_shownSources, i);
        if (cutter) {
            name = cutter->Name(name);
        }
        map_surround::WriteText(graphics, name, fileName.font,
                                Gdiplus::PointF(left, column.y), brush);
        column.y += rowHeight + gap;
        if (source->GetDisplayType() == DisplayRGB) {
            column.DrawBands(*source);
        } else if (source->GetDisplayType() == DisplayGray) {
            column.DrawRamp(*source);
        } else if (source->GetDisplayType() == DisplayClassified) {
            column.DrawClasses(source->GetClassifyDisplayTable());
        }
    }
}
