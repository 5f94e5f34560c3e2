#include "page/paper.h"

#include <algorithm>
#include <string_view>

#include "system/number_text.h"

namespace host {
namespace {

struct NamedPaper {
    std::string_view name;
    double longSide;  // millimetres
    double shortSide;
};

constexpr NamedPaper kPapers[] = {
    {"a0", 1189.0, 841.0},    {"a1", 841.0, 594.0},     {"a2", 594.0, 420.0},
    {"a3", 420.0, 297.0},     {"a4", 297.0, 210.0},     {"a5", 210.0, 148.0},
    {"a6", 148.0, 105.0},     {"b0", 1414.0, 1000.0},   {"b1", 1000.0, 707.0},
    {"b2", 707.0, 500.0},     {"b3", 500.0, 353.0},     {"b4", 353.0, 250.0},
    {"b5", 250.0, 176.0},     {"letter", 279.4, 215.9}, {"legal", 355.6, 215.9},
    {"tabloid", 431.8, 279.4}};

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

bool IsPaperSide(double millimetres) {
    return millimetres >= kSmallestPaperMillimetres &&
           millimetres <= kLargestPaperMillimetres;
}

}  // namespace

bool ParsePaperSize(const std::string& text, PaperSize& paper) {
    const std::string lower = Lower(text);
    for (const NamedPaper& named : kPapers) {
        if (named.name == lower) {
            paper = {UnitsFromMillimetres(named.longSide),
                     UnitsFromMillimetres(named.shortSide)};
            return true;
        }
    }
    const std::string_view sides(lower);
    const std::size_t times = sides.find('x');
    double width = 0.0;
    double height = 0.0;
    if (times == std::string_view::npos || !ParseNumber(sides.substr(0, times), width) ||
        !ParseNumber(sides.substr(times + 1), height) || !IsPaperSide(width) ||
        !IsPaperSide(height)) {
        return false;
    }
    paper = {UnitsFromMillimetres(width), UnitsFromMillimetres(height)};
    return true;
}

}  // namespace host
