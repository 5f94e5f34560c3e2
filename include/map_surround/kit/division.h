#pragma once

/// @file
/// The length of a scale bar's divisions.

#include <gdiplus.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "map_surround/scale_bar.h"

namespace map_surround::kit {

/// The largest of 1, 2 and 5 times a power of ten that is not above a value: 37 gives 20,
/// 0.5 stays 0.5. A scale bar, which rounds down to one digit by itself, leaves it alone.
/// @param value above 0 and finite
inline double RoundDivision(double value) {
    constexpr double kNearly = 1.0 - 1e-12;  // rounded up, it is that value
    constexpr double kDigits[] = {10.0, 5.0, 2.0};
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    // Multiplying by a power of ten below 1 would miss the double nearest to the decimal.
    const double inverse = std::round(1.0 / power);
    const auto times = [&](double digit) {
        return power >= 1.0 ? digit * power : digit / inverse;
    };
    for (const double digit : kDigits) {
        if (times(digit) * kNearly <= value) {
            return times(digit);
        }
    }
    return times(1.0);
}

/// One of a bar's divisions.
struct Division {
    double value = 0.0;   ///< what it stands for, in the bar's unit
    double length = 0.0;  ///< page units
};

/// The largest round division such that a number of them fit within a length. On a map at
/// 1 : 25 000, a tenth of a millimetre is 2.5 m; 3 divisions within 700 of these, which
/// are 583 m each, stand for 500 m and are 200 long.
/// @param perPageUnit what a page unit stands for, in the bar's unit
/// @param divisions how many of them
/// @param longest the whole bar, page units
/// @return nothing where one of the three is not above 0, or the result is not a number
inline std::optional<Division> LargestDivision(double perPageUnit, int divisions,
                                               double longest) {
    const double most = longest / divisions * perPageUnit;
    if (!(perPageUnit > 0.0) || divisions < 1 || !std::isnormal(most) || most < 0.0) {
        return std::nullopt;
    }
    const double value = RoundDivision(most);
    return Division{value, value / perPageUnit};
}

/// Gives a bar its division, for ResetAspectRatio() and for drawing at scale 1; DrawBar
/// draws it at any scale.
inline void SetDivision(CScaleBarBase& bar, const Division& division) {
    bar.SetPaper2DataScale(division.value);
    bar.SetScreen2PaperByOneScale(division.length);
    bar.SetPaper2ScreenScale(division.length);
}

/// Draws a bar whose whole length is true to a pixel at any scale.
///
/// A bar cuts each division to whole pixels: four of 99.9 pixels are 4 pixels short. So
/// it is drawn with divisions of whole pixels and, where the difference would show, under
/// a transform that stretches them to their length. The surface's transform is then the
/// caller's again.
/// @param length of a division, page units
/// @param centreX of the bar, device pixels
/// @param scale device pixels per page unit
/// @param draw draws the bar, or the frame that holds it, at the scale that it is given
template <typename Draw>
void WithTrueDivisions(Gdiplus::Graphics& graphics, CScaleBarBase& bar, double length,
                       int centreX, double scale, Draw draw) {
    constexpr double kNobodySees = 0.15;  // pixels
    constexpr double kAboveWhole = 1e-3;  // pixels, against rounding errors
    const double pixels = length * scale;
    if (!(pixels > 0.0)) {
        bar.SetPaper2ScreenScale(pixels);
        draw();
        return;
    }
    const double whole = std::max(1.0, std::round(pixels));
    bar.SetPaper2ScreenScale(whole + kAboveWhole);
    if (std::fabs(pixels - whole) * bar.GetMainDivCount() <= kNobodySees) {
        draw();
        return;
    }
    const Gdiplus::GraphicsState state = graphics.Save();
    const auto middle = static_cast<float>(centreX);
    graphics.TranslateTransform(middle, 0.0f);
    graphics.ScaleTransform(static_cast<float>(pixels / whole), 1.0f);
    graphics.TranslateTransform(-middle, 0.0f);
    draw();
    graphics.Restore(state);
}

/// Draws a bar with such divisions: true to a pixel at any scale.
/// @param centre device pixels
/// @param scale device pixels per page unit
inline void DrawBar(Gdiplus::Graphics& graphics, CScaleBarBase& bar,
                    const Division& division, CPoint centre, double scale) {
    WithTrueDivisions(graphics, bar, division.length, centre.x, scale,
                      [&] { bar.Draw(&graphics, centre, scale); });
}

}  // namespace map_surround::kit
