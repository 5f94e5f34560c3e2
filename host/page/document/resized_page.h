#pragma once

#include "page/page.h"
#include "page/paper.h"

namespace host {

/// A page on another sheet: everything on it is larger or smaller by one factor, so that
/// it is as large as the sheet has room for, and stands in its middle. An A4 page on A3
/// is 1.414 times as large. Bars are true to their maps again after FitToMap.
Page Resized(Page page, const PaperSize& paper);

}  // namespace host
