#pragma once

// The words of the page file that are no property, and its version.

#include <cstddef>
#include <string>

#include "page/paper.h"
#include "page/units.h"

namespace host {

constexpr int kPageVersion = 3;

constexpr const char* kVersionKey = "version";
constexpr const char* kWidthKey = "width";
constexpr const char* kHeightKey = "height";
constexpr const char* kElementsKey = "elements";
constexpr const char* kTypeKey = "type";
constexpr const char* kFrameKey = "frame";

/// "elements[2]"
inline std::string PlaceOfElement(std::size_t index) {
    return std::string(kElementsKey) + "[" + std::to_string(index) + "]";
}

constexpr double kSmallestSide = UnitsFromMillimetres(kSmallestPaperMillimetres);
constexpr double kLargestSide = UnitsFromMillimetres(kLargestPaperMillimetres);

}  // namespace host
