#pragma once

#include <cmath>
#include <string>

#include "map_surround/title.h"

namespace host {

/// A map's scale in figures, "1 : 25 000", as a line of text: font and colour are those
/// of a title, the text follows from the scale.
class NumericScale : public CMapTitle {
public:
    NumericScale() {
        SetFontStyle(L"Arial");
        SetDenominator(m_denominator);
        ResetAspectRatio();
    }

    /// The denominator, as written: above 0. A measured one is rounded to four digits,
    /// which is less than a pixel of any bar.
    void SetDenominator(double denominator) {
        m_denominator = denominator;
        SetFontValue(TextOf(denominator));
    }
    double Denominator() const { return m_denominator; }

    /// 24 873.4 gives 24 870, 1 234 567 gives 1 235 000.
    static double Rounded(double denominator) {
        constexpr double kFourDigits = 1000.0;
        if (!(denominator >= kFourDigits) || !std::isfinite(denominator)) {
            return std::round(denominator);
        }
        const double unit = std::pow(10.0, std::floor(std::log10(denominator)) - 3.0);
        return std::round(denominator / unit) * unit;
    }

    /// "1 : 25 000", with non-breaking spaces.
    static std::wstring TextOf(double denominator) {
        std::wstring digits = std::to_wstring(
            static_cast<long long>(std::round(std::fmin(denominator, 1.0e15))));
        for (std::size_t i = digits.size(); i > 3; i -= 3) {
            digits.insert(i - 3, 1, L'\u00A0');
        }
        return L"1\u00A0:\u00A0" + digits;
    }

private:
    double m_denominator = 1.0;
};

}  // namespace host
