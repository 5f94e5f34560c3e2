#pragma once

// The properties of every type of page item: one function per class, one file per family.

#include <initializer_list>
#include <vector>

#include "page/document/property.h"

namespace host::tables {

// The largest sheet is 5 m, which is 18 898 page units.
constexpr NumberRange kLengths = {0.0, 20'000.0};
constexpr NumberRange kPositions = {-1'000'000.0, 1'000'000.0};
constexpr NumberRange kSizes = {0.0, 1'000'000.0};
constexpr NumberRange kPixels = {-10'000.0, 10'000.0};
constexpr NumberRange kWords = {-2147483648.0, 2147483647.0};
constexpr NumberRange kTurns = {-360.0, 360.0};
constexpr NumberRange kRatios = {0.0, 1'000'000.0};
constexpr NumberRange kCounts = {0.0, 100.0};
constexpr NumberRange kDistances = {0.0, 1.7e308};

constexpr const char* kAlternativeText =
    "What is read aloud in its place; empty for what the page says by itself";

constexpr Choice kLineAlignments[] = {{"near", 0}, {"center", 1}, {"far", 2}};

/// FontStyle and FontProcess, whose flags combine.
constexpr Choice kFontStyles[] = {
    {"regular", 0},
    {"bold", 1},
    {"italic", 2},
    {"bold-italic", 3},
    {"underline", 4},
    {"bold-underline", 5},
    {"italic-underline", 6},
    {"bold-italic-underline", 7},
    {"strikeout", 8},
    {"bold-strikeout", 9},
    {"italic-strikeout", 10},
    {"bold-italic-strikeout", 11},
    {"underline-strikeout", 12},
    {"bold-underline-strikeout", 13},
    {"italic-underline-strikeout", 14},
    {"bold-italic-underline-strikeout", 15},
};

std::vector<Property> FrameProperties();        ///< CFrameBase
std::vector<Property> MapProperties();          ///< MapFrame
std::vector<Property> PlacedFrameProperties();  ///< a frame with or without an element
std::vector<Property> ElementProperties();      ///< CMapSurround
std::vector<Property> TitleProperties();
std::vector<Property> NumericScaleProperties();
std::vector<Property> PictureProperties();
std::vector<Property> LegendProperties();
std::vector<Property> NorthArrowProperties();
std::vector<Property> ScaleBarProperties();

/// The lists as one.
std::vector<Property> Join(std::initializer_list<std::vector<Property>> lists);

}  // namespace host::tables
