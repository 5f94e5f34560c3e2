#pragma once

#include <gdiplus.h>

#include <optional>
#include <string>

#include "map_surround/title.h"
#include "page/catalogue.h"
#include "page/layout/page_design.h"

namespace map_page {

// Readers of option values. Each throws Error that names the option and says what it
// takes.

/// A number from `lowest` to `highest`.
double ReadNumber(const std::string& option, const std::string& text, double lowest,
                  double highest);

/// "none" is no colour; else one of a few names, #RRGGBB or #RRGGBBAA. "on" leaves the
/// colour as it is by default, "off" is none.
std::optional<Gdiplus::Color> ReadColor(const std::string& option,
                                        const std::string& text,
                                        std::optional<Gdiplus::Color> byDefault);

FontProcess ReadFontStyle(const std::string& option, const std::string& text);

/// A style of a family by its word; null for "none".
const host::CatalogueEntry* ReadStyle(const std::string& option, const std::string& text,
                                      MapSurroundType family);

/// What ReadStyle takes, and what a page has when nobody chooses: "one, two or none (two,
/// where the map has coordinates)".
std::string StyleHelp(MapSurroundType family);

ScaleBarPostion ReadUnitPosition(const std::string& option, const std::string& text);

/// A whole number from `lowest` to `highest`.
int ReadCount(const std::string& option, const std::string& text, int lowest,
              int highest);

/// UTF-8 as wide text.
std::wstring ReadText(const std::string& option, const std::string& text);

/// A sheet; upright when `portrait` is set and it is wider than high.
host::PaperSize ReadPaper(const std::string& option, const std::string& text,
                          bool portrait);

}  // namespace map_page
