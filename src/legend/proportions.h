#pragma once

/// The proportions of a legend, shared by its layout and its drawing.
///
/// A row is as high as a sample text, a swatch as wide. Where layout and drawing differ
/// (in where class labels start), each has a constant of its own.
namespace map_surround::legend {

constexpr wchar_t kSampleText[] = L"Band_1";
constexpr wchar_t kEntryFamily[] = L"Arial";

constexpr int kGap = 12;       ///< between any two items, in pixels of the measurement
constexpr int kTitleGaps = 2;  ///< below the title

constexpr int kSwatchTenths = 6;    ///< the height of a swatch, in tenths of a row
constexpr int kBandRows = 3;        ///< of an RGB source: red, green, blue
constexpr int kRampSwatches = 4;    ///< the height of a grey ramp, in swatches
constexpr int kLeastSwatches = 3;   ///< the width that leaves room for any band label
constexpr int kLineTenths = 12;     ///< from a line to the next, in tenths of a row
constexpr int kColumnGapShare = 2;  ///< of a swatch's width: half of it between columns

/// Where the highest value is written, in rows below the top of a ramp.
constexpr float kHighBelow = 0.5f;

/// Where labels are aligned, in rows: above the top of a swatch, above the top of a ramp
/// and above its end. The capitals of Arial begin a fifth of an em below the top of a
/// line, and its base line is nine tenths below.
constexpr float kLabelAbove = 0.25f;
constexpr float kHighAbove = 0.2f;
constexpr float kLowAbove = 0.9f;

/// Where the labels start, in tenths of a swatch's width from the left edge. Class labels
/// are measured further right than they are drawn, which leaves a margin, unless all is
/// measured as it is drawn.
constexpr int kBandLabelTenths = 18;
constexpr int kClassLabelTenths = 12;
constexpr int kClassLabelMeasuredAt = 2;  ///< swatches

constexpr int ValueLabelTenths(bool areAligned) {
    return areAligned ? kClassLabelTenths : kBandLabelTenths;
}

}  // namespace map_surround::legend
