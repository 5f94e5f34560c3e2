#pragma once

/// The proportions of a legend, shared by its layout and its drawing.
///
/// A row is as high as a sample text, a swatch as wide. Where layout and drawing differ
/// (in where class labels start), each has a constant of its own.
namespace map_surround::legend {

constexpr wchar_t kSampleText[] = L"Band_1";

constexpr int kGap = 12;       ///< between any two items, in pixels of the measurement
constexpr int kTitleGaps = 2;  ///< below the title

constexpr int kSwatchTenths = 6;   ///< the height of a swatch, in tenths of a row
constexpr int kBandRows = 3;       ///< of an RGB source: red, green, blue
constexpr int kRampSwatches = 4;   ///< the height of a grey ramp, in swatches
constexpr int kLeastSwatches = 3;  ///< the width that leaves room for any band label

/// Where the labels start, in swatch widths from the left edge. Class labels are measured
/// further right than they are drawn, which leaves a margin.
constexpr float kBandLabelAt = 1.8f;
constexpr float kClassLabelAt = 1.2f;
constexpr int kClassLabelMeasuredAt = 2;

}  // namespace map_surround::legend
