#include <algorithm>
#include <exception>
#include <utility>

#include "element/numbers.h"
#include "legend/columns.h"
#include "legend/lettering.h"
#include "legend/proportions.h"
#include "legend/ramp_values.h"
#include "legend/source_queries.h"
#include "legend/text_room.h"
#include "map_surround/legend.h"

using map_surround::Columns;
using map_surround::Length;
using map_surround::Lettering;
using map_surround::RowsTogether;
using map_surround::Ruler;
using map_surround::TextRoom;
using map_surround::ToDevice;
using map_surround::Truncate;

namespace legend = map_surround::legend;

namespace {

/// The legend measured so far, in pixels.
struct Layout {
    Ruler& ruler;
    TextRoom& room;
    Length rowHeight;
    Length swatchHeight;
    Length gap;
    Length width;
    Length height;
    std::vector<RowsTogether> pieces = {};  // names alone unless measured as drawn
    bool isAfterName = false;

    void Widen(Length least) { width = std::max(width, least); }
    Length SwatchesAndGaps(int swatches, int gaps) const {
        // A table may claim billions of classes: clamp here, so that no number of tables
        // overflows the sum.
        return ToDevice(swatches * swatchHeight + gaps * gap);
    }

    void WidenForLines(const std::vector<std::wstring>& lines, Length from,
                       const Lettering& lettering) {
        for (const std::wstring& line : lines) {
            Widen(from + ruler.Measure(line, lettering).Width);
        }
    }
    /// How much higher a number of lines is than one, rounded up.
    Length FurtherLines(std::size_t lines) const {
        return ToDevice(static_cast<Length>(lines - 1) *
                        ((legend::kLineTenths * rowHeight + 9) / 10));
    }
    void AddPiece(Length pieceHeight) {
        if (!room.IsMeasuredAsDrawn()) {
            return;
        }
        if (isAfterName) {
            pieces.back().height += gap + pieceHeight;
            ++pieces.back().rows;
        } else {
            pieces.push_back({pieceHeight, 1});
        }
        isAfterName = false;
    }

    void AddName(const std::wstring& name) {
        height += rowHeight;
        const std::vector<std::wstring> lines = room.LinesOfName(name);
        WidenForLines(lines, 0, room.Name());
        pieces.push_back({rowHeight + FurtherLines(lines.size()), 1});
        isAfterName = true;
    }
    void AddBands(CRasterSource& source, const CMapLegend& legend);
    void AddRamp(CRasterSource& source, const CMapLegend& legend);
    void AddClasses(CClassifyDisplayTable* table);
};

void Layout::AddBands(CRasterSource& source, const CMapLegend& legend) {
    height += SwatchesAndGaps(legend::kBandRows, legend::kBandRows);
    AddPiece(SwatchesAndGaps(legend::kBandRows, legend::kBandRows - 1));
    if (room.IsMeasuredAsDrawn()) {
        for (const int band : {source.GetRedBandNum(), source.GetGreenBandNum(),
                               source.GetBlueBandNum()}) {
            WidenForLines({legend.GetBandCaption() + map_surround::BandNumber(band)},
                          room.ValueLabelAt(legend.GetAlignedLabels()), room.Entry());
        }
    }
}

void Layout::AddRamp(CRasterSource& source, const CMapLegend& legend) {
    height += SwatchesAndGaps(legend::kRampSwatches, 1);
    AddPiece(SwatchesAndGaps(legend::kRampSwatches, 0));
    if (room.IsMeasuredAsDrawn()) {
        const map_surround::RampValues values =
            map_surround::ValuesOf(source, legend.GetAlignedLabels());
        WidenForLines({legend.GetHighCaption() + values.highest,
                       legend.GetLowCaption() + values.lowest},
                      room.ValueLabelAt(legend.GetAlignedLabels()), room.Entry());
    }
}

void Layout::AddClasses(CClassifyDisplayTable* table) {
    const int count = map_surround::ClassesCount(table);
    if (count < 1) {
        return;
    }
    height += SwatchesAndGaps(count, count);
    for (int i = 0; i < map_surround::ClassesCount(table); ++i) {
        CClassifyDisplayItem* const item = table->GetClassifyItem(i);
        Length pieceHeight = swatchHeight;
        if (item != nullptr) {
            const std::vector<std::wstring> lines = room.LinesOfLabel(item->GetLable());
            WidenForLines(lines, room.LabelAt(), room.Entry());
            pieceHeight += FurtherLines(lines.size());
        }
        AddPiece(pieceHeight);
    }
}

/// Multiplies a font size, and restores it if an exception (std::bad_alloc, or a source's
/// own) ends the measurement: a retry must not multiply twice.
class ScaledSize {
public:
    ScaledSize(float& size, float factor) : m_size(size), m_before(size) {
        m_size *= factor;
    }
    ~ScaledSize() {
        if (std::uncaught_exceptions() > m_exceptions) {
            m_size = m_before;
        }
    }
    ScaledSize(const ScaledSize&) = delete;
    ScaledSize& operator=(const ScaledSize&) = delete;

private:
    float& m_size;
    float m_before;
    int m_exceptions = std::uncaught_exceptions();
};

}  // namespace

CMapLegend::CMapLegend() { SetItemType(SurroundLegend); }

CMapLegend& CMapLegend::operator=(const CMapLegend& other) {
    CMapLegend copy(other);
    return *this = std::move(copy);
}

CMapLegend::~CMapLegend() = default;

void CMapLegend::ResetAspectRatio() {
    Ruler ruler;

    const ScaledSize titleSize(m_titleSize, m_sizeFactor);
    const Lettering title(m_titleFamily, m_titleSize, m_titleStyle);
    const Gdiplus::Rect titleBox = ruler.Measure(m_titleText, title);

    // The sample is in the title's family at the size of the file names.
    const ScaledSize fileNameSize(m_fileNameSize, m_sizeFactor);
    TextRoom room(m_mostWidth, m_mostLines, ruler, m_fileNameFamily, m_fileNameSize,
                  m_fileNameStyle);
    const Gdiplus::Rect sample = room.MeasureSample(title.family);
    const Length rowHeight = sample.Height;

    const Length leastWidth = Length{legend::kLeastSwatches} * sample.Width;
    if (IsMeasuredAsDrawn()) {
        room.MeasureAsDrawn(m_fileNameSize, m_fileNameStyle);
    }
    Layout layout{ruler,
                  room,
                  rowHeight,
                  legend::kSwatchTenths * rowHeight / 10,
                  m_gap > 0.0f
                      ? Truncate(double{m_gap} * static_cast<double>(rowHeight) + 0.5)
                      : legend::kGap,
                  leastWidth,
                  titleBox.Height};
    layout.height += legend::kTitleGaps * layout.gap;

    Length rasters = 0;
    // By index, since a source may replace the legend's list while it is queried.
    for (std::size_t i = 0; i < m_dataSources.size(); ++i) {
        CRasterSource* const source =
            map_surround::TakingPart(m_dataSources, m_shownSources, i);
        if (source == nullptr) {
            continue;
        }
        ++rasters;
        // The bare name, without the caption that is drawn before it, unless it is cut or
        // measured as drawn.
        const std::wstring name = map_surround::NameOf(*source, m_shownSources, i);
        layout.AddName(m_mostWidth > 0.0f || room.IsMeasuredAsDrawn()
                           ? m_sourceCaption + name
                           : name);
        const bool isRamp = !map_surround::RampOf(m_shownSources, i).empty();
        if (!isRamp && source->GetDisplayType() == DisplayRGB) {
            layout.AddBands(*source, *this);
        } else if (isRamp || source->GetDisplayType() == DisplayGray) {
            layout.AddRamp(*source, *this);
        } else if (source->GetDisplayType() == DisplayClassified) {
            layout.AddClasses(source->GetClassifyDisplayTable());
        }
    }
    if (layout.height == 0) {
        return;
    }

    // One gap per file name less one, which without rasters is one gap less than nothing.
    Length total = layout.height + layout.gap * (rasters - 1);
    Columns columns;
    if (room.IsMeasuredAsDrawn()) {
        columns = map_surround::SetInColumns(layout.pieces, layout.gap, m_columns);
        total = titleBox.Height + legend::kTitleGaps * layout.gap + columns.height;
    }
    const Length columnGap = sample.Width / legend::kColumnGapShare;
    const Length columnStep = layout.width + columnGap;
    const Length columnsWidth =
        static_cast<Length>(columns.starts.size()) * columnStep + layout.width;

    SetSize(ToDevice(total));
    const auto height = static_cast<float>(GetSize());
    SetAspectRatio(static_cast<float>(std::max<Length>(titleBox.Width, columnsWidth)) /
                   height);
    m_rowHeightRatio = static_cast<float>(rowHeight) / height;
    m_swatchHeightRatio = static_cast<float>(layout.swatchHeight) / height;
    m_swatchWidthRatio = static_cast<float>(leastWidth) / legend::kLeastSwatches / height;
    m_titleHeightRatio = static_cast<float>(titleBox.Height) / height;
    m_gapRatio = static_cast<float>(layout.gap) / height;
    m_columnStepRatio = static_cast<float>(columnStep) / height;
    m_columnStarts = std::move(columns.starts);
    m_hasCutTexts = room.HasCut();
}
