#pragma once

#include <gdiplus.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "legend/lettering.h"
#include "legend/proportions.h"

namespace map_surround {

/// How much room the names and labels of a legend have, at the size in which it is
/// measured: layout and drawing cut and break them alike.
class TextRoom {
public:
    /// @param mostWidth any width when not above 0
    /// @param nameFamily the font of names, and of labels unless they are measured as
    /// drawn
    TextRoom(float mostWidth, int mostLines, Ruler& ruler, const std::wstring& nameFamily,
             float emSize, Gdiplus::FontStyle style)
        : m_mostWidth(mostWidth),
          m_mostLines(mostLines),
          m_ruler(ruler),
          m_name(nameFamily, emSize, style) {}

    /// Has labels measured in the font in which they are drawn.
    void MeasureAsDrawn(float emSize, Gdiplus::FontStyle style) {
        m_entry.emplace(legend::kEntryFamily, emSize, style);
    }
    /// Measures the sample, by which labels are placed, in this family at the size of
    /// names.
    Gdiplus::Rect MeasureSample(const Gdiplus::FontFamily& family) {
        const Gdiplus::Rect sample =
            m_ruler.Measure(legend::kSampleText, family, m_name.font);
        m_sample = sample.Width;
        return sample;
    }

    /// Where the layout puts the labels of classes, and of bands and values.
    Length LabelAt() const {
        return IsMeasuredAsDrawn() ? Samples(legend::kClassLabelTenths)
                                   : legend::kClassLabelMeasuredAt * m_sample;
    }
    Length ValueLabelAt(bool areAligned) const {
        return Samples(legend::ValueLabelTenths(areAligned));
    }
    bool IsMeasuredAsDrawn() const { return m_entry.has_value(); }
    const Lettering& Name() const { return m_name; }
    const Lettering& Entry() const { return m_entry ? *m_entry : m_name; }

    std::vector<std::wstring> LinesOfName(const std::wstring& text) {
        return Fit(text, m_mostWidth, Name());
    }
    std::vector<std::wstring> LinesOfLabel(const std::wstring& text) {
        return Fit(text, m_mostWidth - static_cast<float>(LabelAt()), Entry());
    }
    /// Whether any text has been cut.
    bool HasCut() const { return m_hasCut; }

private:
    Length Samples(int tenths) const { return (tenths * m_sample + 9) / 10; }
    std::vector<std::wstring> Fit(const std::wstring& text, float width,
                                  const Lettering& lettering) {
        if (!(m_mostWidth > 0.0f)) {
            return {text};
        }
        BrokenText broken = BreakLines(text, width, m_mostLines, m_ruler, lettering);
        m_hasCut = m_hasCut || broken.isCut;
        return std::move(broken.lines);
    }

    float m_mostWidth;
    int m_mostLines;
    Ruler& m_ruler;
    Lettering m_name;
    std::optional<Lettering> m_entry;
    Length m_sample = 0;
    bool m_hasCut = false;
};

}  // namespace map_surround
