#include <algorithm>
#include <exception>
#include <utility>

#include "element/numbers.h"
#include "legend/lettering.h"
#include "legend/proportions.h"
#include "legend/source_queries.h"
#include "map_surround/legend.h"

using map_surround::Length;
using map_surround::Lettering;
using map_surround::Ruler;
using map_surround::ToDevice;
using map_surround::Truncate;

namespace legend = map_surround::legend;

namespace {

/// The legend measured so far, in pixels.
struct Layout {
    Length sampleWidth;
    Length swatchHeight;
    Length gap;
    float mostWidth;
    Length width;
    Length height;

    void Widen(Length least) { width = std::max(width, least); }
    Length SwatchesAndGaps(int swatches, int gaps) const {
        // A table may claim billions of classes: clamp here, so that no number of tables
        // overflows the sum.
        return ToDevice(swatches * swatchHeight + gaps * gap);
    }

    /// The width of a text, cut where the legend cuts those that begin there.
    Length WidthOf(const std::wstring& text, Length from, Ruler& ruler,
                   const Lettering& lettering) const {
        const float room = mostWidth - static_cast<float>(from);
        return ruler
            .Measure(
                mostWidth > 0.0f ? map_surround::Cut(text, room, ruler, lettering) : text,
                lettering)
            .Width;
    }

    void AddBands() { height += SwatchesAndGaps(legend::kBandRows, legend::kBandRows); }
    void AddRamp() { height += SwatchesAndGaps(legend::kRampSwatches, 1); }
    void AddClasses(CClassifyDisplayTable* table, Ruler& ruler,
                    const Lettering& lettering) {
        const int count = map_surround::ClassesCount(table);
        if (count < 1) {
            return;
        }
        height += SwatchesAndGaps(count, count);
        for (int i = 0; i < map_surround::ClassesCount(table); ++i) {
            CClassifyDisplayItem* const item = table->GetClassifyItem(i);
            if (item != nullptr) {
                const Length labelAt = legend::kClassLabelMeasuredAt * sampleWidth;
                Widen(labelAt + WidthOf(item->GetLable(), labelAt, ruler, lettering));
            }
        }
    }
};

/// Multiplies a font size, and restores it if an exception ends the measurement, be it
/// std::bad_alloc or a source's own: a retry must not multiply twice.
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
    const Lettering fileName(m_fileNameFamily, m_fileNameSize, m_fileNameStyle);
    const Gdiplus::Rect sample =
        ruler.Measure(legend::kSampleText, title.family, fileName.font);
    const Length rowHeight = sample.Height;

    Layout layout{};
    layout.sampleWidth = sample.Width;
    layout.swatchHeight = legend::kSwatchTenths * rowHeight / 10;
    layout.gap = m_gap > 0.0f
                     ? Truncate(double{m_gap} * static_cast<double>(rowHeight) + 0.5)
                     : legend::kGap;
    layout.mostWidth = m_mostWidth;
    const Length leastWidth = legend::kLeastSwatches * layout.sampleWidth;
    layout.width = std::max<Length>(titleBox.Width, leastWidth);
    layout.height = titleBox.Height + legend::kTitleGaps * layout.gap;

    Length rasters = 0;
    // By index, since a source may replace the legend's list while it is queried.
    for (std::size_t i = 0; i < m_dataSources.size(); ++i) {
        CRasterSource* const source =
            map_surround::TakingPart(m_dataSources, m_shownSources, i);
        if (source == nullptr) {
            continue;
        }
        ++rasters;
        layout.height += rowHeight;
        // The bare name, without the caption that is drawn before it, unless it is cut.
        const std::wstring name = map_surround::NameOf(*source, m_shownSources, i);
        layout.Widen(layout.WidthOf(m_mostWidth > 0.0f ? m_sourceCaption + name : name, 0,
                                    ruler, fileName));
        if (source->GetDisplayType() == DisplayRGB) {
            layout.AddBands();
        } else if (source->GetDisplayType() == DisplayGray) {
            layout.AddRamp();
        } else if (source->GetDisplayType() == DisplayClassified) {
            layout.AddClasses(source->GetClassifyDisplayTable(), ruler, fileName);
        }
    }
    if (layout.height == 0) {
        return;
    }

    // One gap per file name less one, which without rasters is one gap less than nothing.
    SetSize(ToDevice(layout.height + layout.gap * (rasters - 1)));
    const auto height = static_cast<float>(GetSize());
    SetAspectRatio(static_cast<float>(layout.width) / height);
    m_rowHeightRatio = static_cast<float>(rowHeight) / height;
    m_swatchHeightRatio = static_cast<float>(layout.swatchHeight) / height;
    m_swatchWidthRatio = static_cast<float>(leastWidth) / legend::kLeastSwatches / height;
    m_titleHeightRatio = static_cast<float>(titleBox.Height) / height;
    m_gapRatio = static_cast<float>(layout.gap) / height;
}
