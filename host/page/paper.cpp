#include "page/paper.h"

#include <algorithm>
#include <iterator>
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
    {"A0", 1189.0, 841.0},    {"A1", 841.0, 594.0},     {"A2", 594.0, 420.0},
    {"A3", 420.0, 297.0},     {"A4", 297.0, 210.0},     {"A5", 210.0, 148.0},
    {"A6", 148.0, 105.0},     {"B0", 1414.0, 1000.0},   {"B1", 1000.0, 707.0},
    {"B2", 707.0, 500.0},     {"B3", 500.0, 353.0},     {"B4", 353.0, 250.0},
    {"B5", 250.0, 176.0},     {"Letter", 279.4, 215.9}, {"Legal", 355.6, 215.9},
    {"Tabloid", 431.8, 279.4}};

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

/// Whether a sheet is the next smaller one of a series: A5 of A4.
bool Follows(std::string_view name, std::string_view larger) {
    return larger.size() == 2 && name.size() == 2 && name[0] == larger[0] &&
           name[1] == larger[1] + 1;
}

}  // namespace

std::string PaperNames() {
    std::string names;
    const NamedPaper* last = nullptr;
    for (const NamedPaper* first = kPapers; first != std::end(kPapers);
         first = last + 1) {
        for (last = first;
             last + 1 != std::end(kPapers) && Follows(last[1].name, last->name);) {
            ++last;
        }
        names += names.empty() ? "" : ", ";
        names += first->name;
        if (last != first) {
            names += " to ";
            names += last->name;
        }
    }
    return names;
}

bool ParsePaperSize(const std::string& text, PaperSize& paper) {
    const std::string lower = Lower(text);
    for (const NamedPaper& named : kPapers) {
        if (Lower(std::string(named.name)) == lower) {
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
