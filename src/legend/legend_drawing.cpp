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
           const std::wstring& family, const std::wstring& entryFamily, float emSize,
           Gdiplus::FontStyle style)
        : m_most(most),
          m_ruler(ruler),
          m_lettering(family, emSize, style),
          m_entry(entryFamily, emSize, style),
          m_sample(
              ruler.Measure(legend::kSampleText, titleFamily, m_lettering.font).Width) {}

    std::wstring Name(const std::wstring& text) {
        return map_surround::Cut(text, m_most, m_ruler, m_lettering);
    }
    std::wstring Label(const std::wstring& text) {
        const Length from = legend::kClassLabelMeasuredAt * m_sample;
        return map_surround::Cut(text, m_most - static_cast<float>(from), m_ruler,
                                 m_entry);
    }

private:
    float m_most;
    Ruler& m_ruler;
    Lettering m_lettering;
    Lettering m_entry;
    Length m_sample;
};

/// A cursor moving down the legend, column by column, in pixels.
struct Cursor {
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
    const std::vector<std::size_t>& columnStarts;
    float columnStep;
    float columnTop = y;
    std::size_t row = 0;
    std::size_t column = 0;

    /// Goes on in the next column if the next row begins it.
    void BeginRow() {
        if (column < columnStarts.size() && row == columnStarts[column]) {
            ++column;
            left += columnStep;
            y = columnTop;
        }
        ++row;
    }
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

void Cursor::DrawBand(Gdiplus::Color color, int index) {
    Fill(color, y, swatchHeight);
    brush.SetColor(kBlack);
    Label(bandCaption + map_surround::BandNumber(index), ValueLabelAt(), SwatchLabelY());
    y += swatchHeight + gap;
}

void Cursor::DrawBands(CRasterSource& source) {
    BeginRow();
    DrawBand(kRed, source.GetRedBandNum());
    DrawBand(kGreen, source.GetGreenBandNum());
    DrawBand(kBlue, source.GetBlueBandNum());
}

void Cursor::DrawRamp(CRasterSource& source) {
    BeginRow();
    const float rampHeight = legend::kRampSwatches * swatchHeight;
    const float stripHeight = (3 * swatchHeight + 2 * rowHeight) / kRampStrips;

    brush.SetColor(kBlack);
    const map_surround::RampValues values = map_surround::ValuesOf(source, alignedLabels);
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

void Cursor::DrawClasses(CClassifyDisplayTable* table) {
    for (int i = 0; i < map_surround::ClassesCount(table); ++i) {
        BeginRow();
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

    const Lettering entry(legend::kEntryFamily, rowHeight, m_fileNameStyle);
    const Lettering fileName(m_fileNameFamily, rowHeight, m_fileNameStyle);
    Ruler ruler;
    // The title's ink in this font, which is smaller than the one the layout measured.
    const int titleHeight = ruler.Measure(m_titleText, title).Height;
    std::optional<Cutter> cutter;
    if (m_mostWidth > 0.0f) {
        cutter.emplace(m_mostWidth, ruler, title.family, m_fileNameFamily,
                       m_columns > 1 ? legend::kEntryFamily : m_fileNameFamily,
                       m_fileNameSize, m_fileNameStyle);
    }
    Cursor cursor{graphics,
                  brush,
                  entry.font,
                  m_bandCaption,
                  m_highCaption,
                  m_lowCaption,
                  m_alignedLabels,
                  cutter ? &*cutter : nullptr,
                  left,
                  top + legend::kTitleGaps * gap + static_cast<float>(titleHeight),
                  rowHeight,
                  height * m_swatchHeightRatio,
                  height * m_swatchWidthRatio,
                  gap,
                  m_columnStarts,
                  height * m_columnStepRatio};

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
        cursor.BeginRow();
        map_surround::WriteText(graphics, name, fileName.font,
                                Gdiplus::PointF(cursor.left, cursor.y), brush);
        cursor.y += rowHeight + gap;
        if (source->GetDisplayType() == DisplayRGB) {
            cursor.DrawBands(*source);
        } else if (source->GetDisplayType() == DisplayGray) {
            cursor.DrawRamp(*source);
        } else if (source->GetDisplayType() == DisplayClassified) {
            cursor.DrawClasses(source->GetClassifyDisplayTable());
        }
    }
}
