#include <optional>
#include <string>

#include "element/numbers.h"
#include "legend/lettering.h"
#include "legend/proportions.h"
#include "legend/ramp_values.h"
#include "legend/source_queries.h"
#include "legend/text_room.h"
#include "map_surround/legend.h"

using map_surround::Length;
using map_surround::Lettering;
using map_surround::Ruler;
using map_surround::TextRoom;
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

/// The colour of the strip at a place from 1; grey without colours.
Gdiplus::Color StripColour(int k, const std::vector<Gdiplus::Color>& colours) {
    const auto grey = static_cast<unsigned char>(255 - k);
    if (colours.empty()) {
        return {255, grey, grey, grey};
    }
    const Gdiplus::Color& colour =
        colours[static_cast<std::size_t>(k - 1) * colours.size() / kRampStrips];
    return {255, colour.GetRed(), colour.GetGreen(), colour.GetBlue()};
}

/// How a text is broken into lines.
using Lines = std::vector<std::wstring> (*)(TextRoom& room, const std::wstring& text);
std::vector<std::wstring> LinesOfName(TextRoom& room, const std::wstring& text) {
    return room.LinesOfName(text);
}
std::vector<std::wstring> LinesOfLabel(TextRoom& room, const std::wstring& text) {
    return room.LinesOfLabel(text);
}

/// A cursor moving down the legend, column by column, in pixels.
struct Cursor {
    Gdiplus::Graphics* graphics;
    Gdiplus::SolidBrush& brush;
    const Gdiplus::Font& entryFont;
    const std::wstring& bandCaption;
    const std::wstring& highCaption;
    const std::wstring& lowCaption;
    bool alignedLabels;
    TextRoom* room;  // null where texts may have any width
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

    /// Continues in the next column if the next row begins it.
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
    /// Writes in the brush's current colour, which also applies to what follows.
    void Write(const std::wstring& text, const Gdiplus::Font& font, float x,
               float top) const {
        map_surround::WriteText(graphics, text, font, Gdiplus::PointF(x, top), brush);
    }
    void Label(const std::wstring& text, float atSwatches, float top) {
        Write(text, entryFont, left + atSwatches * swatchWidth, top);
    }
    /// Writes a text as it is, or in the lines that fit: from y down, up to the last.
    void WriteLines(const std::wstring& text, Lines lines, const Gdiplus::Font& font,
                    float x, float above) {
        if (room == nullptr) {
            Write(text, font, x, y - above);
            return;
        }
        float step = 0.0f;
        for (const std::wstring& line : lines(*room, text)) {
            y += step;
            Write(line, font, x, y - above);
            step = legend::kLineTenths * rowHeight / 10;
        }
    }

    float ValueLabelAt() const {
        return static_cast<float>(legend::ValueLabelTenths(alignedLabels)) / 10;
    }
    float SwatchLabelAbove() const {
        return alignedLabels ? legend::kLabelAbove * rowHeight : 0.0f;
    }

    void DrawBands(CRasterSource& source);
    void DrawRamp(CRasterSource& source, const std::vector<Gdiplus::Color>& colours);
    void DrawClasses(CClassifyDisplayTable* table);
    void DrawBand(Gdiplus::Color color, int index);
};

void Cursor::DrawBand(Gdiplus::Color color, int index) {
    Fill(color, y, swatchHeight);
    brush.SetColor(kBlack);
    Label(bandCaption + map_surround::BandNumber(index), ValueLabelAt(),
          y - SwatchLabelAbove());
    y += swatchHeight + gap;
}

void Cursor::DrawBands(CRasterSource& source) {
    BeginRow();
    DrawBand(kRed, source.GetRedBandNum());
    DrawBand(kGreen, source.GetGreenBandNum());
    DrawBand(kBlue, source.GetBlueBandNum());
}

void Cursor::DrawRamp(CRasterSource& source, const std::vector<Gdiplus::Color>& colours) {
    BeginRow();
    const float rampHeight = legend::kRampSwatches * swatchHeight;
    const float stripHeight = (3 * swatchHeight + 2 * rowHeight) / kRampStrips;

    brush.SetColor(kBlack);
    const map_surround::RampValues values = map_surround::ValuesOf(source, alignedLabels);
    Label(highCaption + values.highest, ValueLabelAt(),
          y + (alignedLabels ? -legend::kHighAbove : legend::kHighBelow) * rowHeight);

    // The strips overlap, and the first starts one step down.
    for (int k = 1; k <= kRampStrips; ++k) {
        Fill(StripColour(k, colours),
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
            WriteLines(
                item->GetLable(), LinesOfLabel, entryFont,
                left + static_cast<float>(legend::kClassLabelTenths) / 10 * swatchWidth,
                SwatchLabelAbove());
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
    std::optional<TextRoom> room;
    if (m_mostWidth > 0.0f) {
        room.emplace(m_mostWidth, m_mostLines, ruler, m_fileNameFamily, m_fileNameSize,
                     m_fileNameStyle);
        room->MeasureSample(title.family);
        if (IsMeasuredAsDrawn()) {
            room->MeasureAsDrawn(m_fileNameSize, m_fileNameStyle);
        }
    }
    Cursor cursor{graphics,
                  brush,
                  entry.font,
                  m_bandCaption,
                  m_highCaption,
                  m_lowCaption,
                  m_alignedLabels,
                  room ? &*room : nullptr,
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
        cursor.BeginRow();
        cursor.WriteLines(
            m_sourceCaption + map_surround::NameOf(*source, m_shownSources, i),
            LinesOfName, fileName.font, cursor.left, 0.0f);
        cursor.y += rowHeight + gap;
        const std::vector<Gdiplus::Color> ramp = map_surround::RampOf(m_shownSources, i);
        if (ramp.empty() && source->GetDisplayType() == DisplayRGB) {
            cursor.DrawBands(*source);
        } else if (!ramp.empty() || source->GetDisplayType() == DisplayGray) {
            cursor.DrawRamp(*source, ramp);
        } else if (source->GetDisplayType() == DisplayClassified) {
            cursor.DrawClasses(source->GetClassifyDisplayTable());
        }
    }
}
