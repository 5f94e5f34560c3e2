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
    double gap = 0.8;     ///< between its rows, in row heights
};

/// A legend of a page's sources, tried in several settings.
class LegendDraft {
public:
    LegendDraft(const PageDesign& design, const MapOnPage& map);

    /// False when no legend is wanted or there is nothing to explain.
    bool IsWanted() const { return m_frame != nullptr; }

    /// Sets the legend.
    /// @param width for its ink, page units; wider names are cut or wrapped
    /// @return its ink, which may still be wider
    InkBox Set(const LegendSetting& setting, double width);

    /// Whether names or labels are cut in the present setting.
    bool IsCut() const { return Legend().HasCutTexts(); }

    /// The legend's ink with nothing cut, as Set() would have it: measured once for each
    /// setting.
    const InkBox& Natural(const LegendSetting& setting);

    /// The legend as it was last set.
    std::unique_ptr<LegendFrame> Take() { return std::move(m_frame); }

private:
    CMapLegend& Legend() const { return *ElementOf<CMapLegend>(*m_frame); }

    std::unique_ptr<LegendFrame> m_frame;
    std::map<std::tuple<int, double, double>, InkBox> m_natural;
    double m_rowOfEm = 1.0;    ///< height of a row's ink, in which it is drawn
    double m_titleOfEm = 1.0;  ///< the same for its first line
};

}  // namespace host
