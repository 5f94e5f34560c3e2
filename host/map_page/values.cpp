#include "map_page/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

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

constexpr Named<ScaleBarPostion> kUnitPositions[] = {
    {"after", UnitPosAfter},
    {"before", UnitPosBefore},
};

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

/// "line, stepped or none"
template <typename Table>
std::string Listed(const Table& table, const char* last) {
    std::string names;
    for (std::size_t i = 0; i < std::size(table); ++i) {
        names += i == 0 ? "" : i + 1 == std::size(table) ? last : ", ";
        names += table[i].name;
    }
    return names;
}

/// The value of a name out of a table; the error lists them all.
template <typename Table>
auto ReadNamed(const std::string& option, const std::string& text, const Table& table) {
    for (const auto& named : table) {
        if (named.name == text) {
            return named.value;
        }
    }
    throw Error(option, Quoted(text) + " is neither " + Listed(table, " nor "));
}

/// The styles of a family, and none.
std::vector<Named<const host::CatalogueEntry*>> StyleWords(MapSurroundType family) {
    std::vector<Named<const host::CatalogueEntry*>> words;
    for (const host::CatalogueEntry* const entry : host::StylesOf(family)) {
        words.push_back({entry->Style(), entry});
    }
    words.push_back({"none", nullptr});
    return words;
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

const host::CatalogueEntry* ReadStyle(const std::string& option, const std::string& text,
                                      MapSurroundType family) {
    return ReadNamed(option, text, StyleWords(family));
}

std::string StyleHelp(MapSurroundType family) {
    return Listed(StyleWords(family), " or ") + " (" + host::UsualStyle(family)->Style() +
           ", where the map has coordinates)";
}

ScaleBarPostion ReadUnitPosition(const std::string& option, const std::string& text) {
    return ReadNamed(option, text, kUnitPositions);
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
