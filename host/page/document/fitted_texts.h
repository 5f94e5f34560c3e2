#pragma once

#include <map>
#include <string>
#include <vector>

#include "map_surround/legend.h"
#include "map_surround/title.h"
#include "page/page.h"
#include "page/placed_frame.h"

// Keeping changed texts within their frames.
namespace host {

/// The titles of a page, and which of them are set smaller than it says.
class FittedTitles {
public:
    explicit FittedTitles(const Page& page) : m_page(page) {}

    /// Widens the frame of a title that is too long for it, about its middle, and sets
    /// the title smaller if it is still too large; other items are left alone.
    void Fit(PageItem& item);

    /// Sets the title in the size asked for, whatever its frame.
    void Forget(const PageItem& item);

    /// "title: is set in 18.5 points to fit its frame, instead of 24.0 points"
    std::vector<std::string> Remarks() const;

private:
    const Page& m_page;
    std::map<const CMapTitle*, double> m_asked;  // em sizes, page units
};

/// The place of a legend in its frame, from the frame's middle, y growing upwards.
struct LegendPlace {
    CMapLegend* legend;
    PlacedFrame* frame;
    double left;
    double top;
};

/// Has the legends measured again when they are opened.
std::vector<LegendPlace> ForgetLegendSizes(Page& page);

/// Keeps the legend's corner where it was, and its ink within its frame.
void FitLegend(const LegendPlace& place);

}  // namespace host
