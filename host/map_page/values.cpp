#include "map_page/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

#include "map_page/error.h"
#include "page/colour_text.h"
#include "system/numbers_from_text.h"
#include "system/utf8.h"

namespace map_page {
namespace {

template <typename Value>
struct Named {
    std::string_view name;
    Value value;
};

constexpr Named<FontProcess> kFontStyles[] = {
    {"regular", FontProcessRegular},
    {"bold", FontProcessBold},
    {"italic", FontProcessItalic},
    {"bold-italic", FontProcessBoldItalic},
};

constexpr Named<host::ScaleBarStyle> kScaleBarStyles[] = {
    {"line", host::ScaleBarStyle::Line},
    {"stepped", host::ScaleBarStyle::Stepped},
    {"line2", host::ScaleBarStyle::Line2},
    {"line3", host::ScaleBarStyle::Line3},
    {"alternating", host::ScaleBarStyle::Alternating},
    {"equal-alternating", host::ScaleBarStyle::EqualAlternating},
    {"none", host::ScaleBarStyle::None},
};

constexpr Named<ScaleBarPostion> kUnitPositions[] = {
    {"after", UnitPosAfter},
    {"before", UnitPosBefore},
};

constexpr Named<host::NorthArrowStyle> kNorthArrowStyles[] = {
    {"one", host::NorthArrowStyle::OneAngle},
    {"two", host::NorthArrowStyle::TwoAngle},
    {"four", host::NorthArrowStyle::FourAngle},
    {"eight", host::NorthArrowStyle::EightAngle},
    {"none", host::NorthArrowStyle::None},
};

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

/// The value of a name out of a table; the error lists them all.
template <typename Value, std::size_t Count>
Value ReadNamed(const std::string& option, const std::string& text,
                const Named<Value> (&table)[Count]) {
    std::string names;
    for (std::size_t i = 0; i < Count; ++i) {
        if (table[i].name == text) {
            return table[i].value;
        }
        names += i == 0 ? "" : i + 1 == Count ? " nor " : ", ";
        names += table[i].name;
    }
    throw Error(option, Quoted(text) + " is neither " + names);
}

/// "12", not "12.000000".
std::string Plain(double value) {
    char buffer[32];
    const std::to_chars_result end =
        std::to_chars(std::begin(buffer), std::end(buffer), value);
    return {std::begin(buffer), end.ptr};
}

}  // namespace

double ReadNumber(const std::string& option, const std::string& text, double lowest,
                  double highest) {
    double value = 0.0;
    if (!host::ParseNumber(text, value) || value < lowest || value > highest) {
        throw Error(option, Quoted(text) + " is no number from " + Plain(lowest) +
                                " to " + Plain(highest));
    }
    return value;
}

std::optional<Gdiplus::Color> ReadColor(const std::string& option,
                                        const std::string& text,
                                        std::optional<Gdiplus::Color> byDefault) {
    if (text == "on") {
        return byDefault;
    }
    if (text == "none" || text == "off") {
        return std::nullopt;
    }
    std::optional<Gdiplus::ARGB> color = host::NamedColour(text);
    if (!color) {
        color = host::ColourFromText(text);
    }
    if (color) {
        return Gdiplus::Color(*color);
    }
    throw Error(option, Quoted(text) +
                            " is neither on, off, #RRGGBB, #RRGGBBAA nor the name of a "
                            "colour");
}

FontProcess ReadFontStyle(const std::string& option, const std::string& text) {
    return ReadNamed(option, text, kFontStyles);
}

host::ScaleBarStyle ReadScaleBarStyle(const std::string& option,
                                      const std::string& text) {
    return ReadNamed(option, text, kScaleBarStyles);
}

ScaleBarPostion ReadUnitPosition(const std::string& option, const std::string& text) {
    return ReadNamed(option, text, kUnitPositions);
}

host::NorthArrowStyle ReadNorthArrowStyle(const std::string& option,
                                          const std::string& text) {
    return ReadNamed(option, text, kNorthArrowStyles);
}

int ReadCount(const std::string& option, const std::string& text, int lowest,
              int highest) {
    const double value = ReadNumber(option, text, lowest, highest);
    if (value != std::floor(value)) {
        throw Error(option, Quoted(text) + " is no whole number");
    }
    return static_cast<int>(value);
}

std::wstring ReadText(const std::string& option, const std::string& text) {
    std::wstring wide;
    if (!host::Widen(text, wide)) {
        throw Error(option, "is not valid UTF-8");
    }
    return wide;
}

host::PaperSize ReadPaper(const std::string& option, const std::string& text,
                          bool portrait) {
    host::PaperSize paper;
    if (!host::ParsePaperSize(text, paper)) {
        throw Error(option, Quoted(text) +
                                " is neither a paper size (A4, Letter, ...) nor "
                                "WIDTHxHEIGHT with sides from 20 to 5000 mm");
    }
    if (portrait && paper.width > paper.height) {
        std::swap(paper.width, paper.height);
    }
    return paper;
}

}  // namespace map_page
