#pragma once

// The words of the page file that are no property.

#include "page/paper.h"
#include "page/units.h"

namespace host {

constexpr int kPageVersion = 1;

constexpr const char* kVersionKey = "version";
constexpr const char* kWidthKey = "width";
constexpr const char* kHeightKey = "height";
constexpr const char* kElementsKey = "elements";
constexpr const char* kTypeKey = "type";
constexpr const char* kFrameKey = "frame";

constexpr double kSmallestSide = UnitsFromMillimetres(kSmallestPaperMillimetres);
constexpr double kLargestSide = UnitsFromMillimetres(kLargestPaperMillimetres);

}  // namespace host
