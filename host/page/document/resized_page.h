#pragma once

#include "page/page.h"
#include "page/paper.h"

namespace host {

/// A page on another sheet: everything on it grows or shrinks by one factor, so that it
/// is as large as fits, and stands in the middle. An A4 page on A3 is 1.414 times as
/// large. FitToMap makes its bars true to their maps again.
Page Resized(Page page, const PaperSize& paper);

}  // namespace host
