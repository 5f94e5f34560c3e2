#include "map_page/values.h"

#include <utility>

#include "map_page/error.h"
#include "page/colour_text.h"
#include "page/document/property.h"
#include "system/number_text.h"
#include "system/utf8.h"

namespace map_page {
namespace {

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

Words<host::LayoutDesign> LayoutDesigns() {
    return {{"classic", host::LayoutDesign::Classic},
            {"side", host::LayoutDesign::Side},
            {"bottom", host::LayoutDesign::Bottom}};
}

Words<FontProcess> FontStyles() {
    Words<FontProcess> words = ChoicesOf<FontProcess>("title", "fontStyle");
    words.resize(FontProcessBoldItalic + 1);
    return words;
}

Words<const host::CatalogueEntry*> Styles(MapSurroundType family) {
    Words<const host::CatalogueEntry*> words;
    for (const host::CatalogueEntry* const entry : host::StylesOf(family)) {
        words.emplace_back(entry->Style(), entry);
    }
    words.emplace_back("none", nullptr);
    return words;
}

std::string UsualStyle(MapSurroundType family) {
    return std::string("(") + host::UsualStyle(family)->Style() +
           ", where the map has coordinates)";
}

CLI::Validator NumberIn(double lowest, double highest) {
    const std::string range =
        host::NumberText(lowest) + " to " + host::NumberText(highest);
    const auto whyNot = [=](std::string& text) -> std::string {
        double value = 0.0;
        const bool isIn =
            host::ParseNumber(text, value) && value >= lowest && value <= highest;
        return isIn ? "" : Quoted(text) + " is not a number from " + range;
    };
    return {whyNot, range};
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
    throw UsageError(option,
                     Quoted(text) +
                         " is neither on, off, #RRGGBB, #RRGGBBAA nor the name of a "
                         "colour");
}

std::wstring ReadText(const std::string& option, const std::string& text) {
    std::wstring wide;
    if (!host::Widen(text, wide)) {
        throw UsageError(option, "is not valid UTF-8");
    }
    const std::string why = host::CheckText(text);
    if (!why.empty()) {
        throw UsageError(option, why);
    }
    return wide;
}

host::PaperSize ReadPaper(const std::string& option, const std::string& text,
                          bool portrait) {
    host::PaperSize paper;
    if (!host::ParsePaperSize(text, paper)) {
        throw UsageError(option, Quoted(text) +
                                     " is neither a paper size (A4, Letter, ...) nor "
                                     "WIDTHxHEIGHT with sides from 20 to 5000 mm");
    }
    if (portrait && paper.width > paper.height) {
        std::swap(paper.width, paper.height);
    }
    return paper;
}

}  // namespace map_page
