#pragma once

#include <map>
#include <memory>
#include <tuple>

#include "map_surround/legend.h"
#include "page/element_of.h"
#include "page/ink.h"
#include "page/layout/layout.h"
#include "page/placed_frame.h"

namespace host {

/// How a legend is set.
struct LegendSetting {
    int columns = 1;
    double points = 8.0;  ///< of its entries
    double gap = 0.8;     ///< between its rows, in heights of one
};

/// A legend of a page's sources that is tried in several settings.
class LegendDraft {
public:
    LegendDraft(const PageDesign& design, const MapOnPage& map);

    /// False when none is wanted or there is nothing to explain.
    bool IsWanted() const { return m_frame != nullptr; }

    /// Sets the legend.
    /// @param width for its ink, page units; names that are wider are cut, or wrapped
    /// @return its ink, which may be wider all the same
    InkBox Set(const LegendSetting& setting, double width);

    /// Whether names or labels are cut as it is set now.
    bool IsCut() const { return Legend().HasCutTexts(); }

    /// The ink of the legend where nothing is cut, as Set() would have it: measured once
    /// a setting.
    const InkBox& Natural(const LegendSetting& setting);

    /// The legend as it was set last.
    std::unique_ptr<LegendFrame> Take() { return std::move(m_frame); }

private:
    CMapLegend& Legend() const { return *ElementOf<CMapLegend>(*m_frame); }

    std::unique_ptr<LegendFrame> m_frame;
    std::map<std::tuple<int, double, double>, InkBox> m_natural;
    double m_rowOfEm = 1.0;    ///< height of the ink of a row, which it is drawn in
    double m_titleOfEm = 1.0;  ///< the same of its first line
};

}  // namespace host
