#pragma once

#include <map>
#include <string>
#include <vector>

#include "map_surround/legend.h"
#include "map_surround/title.h"
#include "page/page.h"
#include "page/placed_frame.h"

// Texts that were changed, and keep within their frames.
namespace host {

/// Titles of a page, and which of them are set smaller than it says.
class FittedTitles {
public:
    explicit FittedTitles(const Page& page) : m_page(page) {}

    /// Widens the frame of a title that is too long for it, about its middle, and sets
    /// one that is still too large for it smaller; any other item stays.
    void Fit(PageItem& item);

    /// Its size is that asked for, whatever its frame.
    void Forget(const PageItem& item);

    /// "title: is set in 18.5 points to fit its frame, instead of 24.0 points"
    std::vector<std::string> Remarks() const;

private:
    const Page& m_page;
    std::map<const CMapTitle*, double> m_asked;  // em sizes, page units
};

/// Where a legend stands in its frame, from the frame's middle, y growing upwards.
struct LegendPlace {
    CMapLegend* legend;
    PlacedFrame* frame;
    double left;
    double top;
};

/// Has the legends measured anew when they are opened.
std::vector<LegendPlace> ForgetLegendSizes(Page& page);

/// The legend begins where it did, and its ink is no larger than its frame has room for.
void FitLegend(const LegendPlace& place);

}  // namespace host
